#include "VorBomHeaderPlan.h"
#include "MekBomEngine/Test/Support/BomTestSupport.h"

#include <gtest/gtest.h>

#include <utility>

namespace
{
using Item = VorBomTemplateItem;

VorBomHeaderPlan planFor(const Item& section)
{
    return VorBomHeaderPlan(std::make_shared<VorBomTuplePositions>(), section);
}

Item details(Tuples tuples)
{
    Item section(Item::kDetails);
    addTuples(section, tuples);
    return section;
}
}

TEST(VorBomHeaderPlanTest, OfEqualTokensTheRowsFirstIsTakenAndMarked)
{
    const Item section = details({ tuple(L"%Weight", 0.0), tuple(L"%Weight", L"again") });
    VorBomDataRow row;
    addTuples(row, { tuple(L"%Weight", 2.5), tuple(L"%Weight", 4.5) });

    const auto pEvaluated = planFor(section).process(row);

    EXPECT_EQ(VorString(L"[ kDetails     ][%Weight:2.5][%Weight:2.5]"), listOf(*pEvaluated));
    EXPECT_EQ(1, row.getData()[0].used());
    EXPECT_EQ(0, row.getData()[1].used());
}

TEST(VorBomHeaderPlanTest, FormulaThatTheRowCarriesIsNotTakenOver)
{
    const Item section = details({ tuple(L"%Formula:%Weight*2", L"kept") });
    VorBomDataRow row;
    row.addData(tuple(L"%Formula:%Weight*2", 9.0));

    const auto pEvaluated = planFor(section).process(row);

    EXPECT_EQ(VorString(L"[ kDetails     ][%Formula:%Weight*2:kept]"), listOf(*pEvaluated));
    EXPECT_EQ(0, row.getData()[0].used());
}

TEST(VorBomHeaderPlanTest, OnePlanServesRowsOfAnyLayout)
{
    const Item section = details({ tuple(L"%Name", L"none"), tuple(L"%Weight", 0.5) });
    VorBomHeaderPlan plan = planFor(section);
    VorBomDataRow rows[3];
    addTuples(rows[0], { tuple(L"%Name", L"A"), tuple(L"%Weight", 1) });
    addTuples(rows[1], { tuple(L"%Weight", L"heavy"), tuple(L"%Name", L"B") });

    EXPECT_EQ(VorString(L"[ kDetails     ][%Name:A][%Weight:1]"), listOf(*plan.process(rows[0])));
    EXPECT_EQ(VorString(L"[ kDetails     ][%Name:B][%Weight:heavy]"), listOf(*plan.process(rows[1])));
    EXPECT_EQ(VorString(L"[ kDetails     ][%Name:none][%Weight:0.5]"), listOf(*plan.process(rows[2])));
    EXPECT_EQ(VorString(L"[ kDetails     ][%Name:A][%Weight:1]"), listOf(*plan.process(rows[0])));
}

// Shown and computed meanwhile, so that every value is of another kind than the next one.
TEST(VorBomHeaderPlanTest, SectionGivenBackIsFilledAnewWithWhatARowLacksFromTheTemplate)
{
    const Item section =
        details({ tuple(L"%Name", L"none"), tuple(L"%Weight", 0.5), tuple(L"%Formula:%Weight*2", L"") });
    VorBomHeaderPlan plan = planFor(section);
    VorBomTemplateUnits units;
    VorBomDataRow rows[3];
    addTuples(rows[0], { tuple(L"%Name", L"A"), tuple(L"%Weight", 1.5) });
    addTuples(rows[1], { tuple(L"%Weight", 3) });
    addTuples(rows[2], { tuple(L"%Name", 7) });
    auto pEvaluated = plan.process(rows[0]);
    plan.computeFormulas(*pEvaluated, &rows[0]);
    plan.display().show(units, pEvaluated->getData());
    const VorBomTemplateItem* const pFirst = pEvaluated.get();
    const void* const pFirstCell = pEvaluated->getData()[0].value().data();

    plan.takeBack(std::move(pEvaluated));
    pEvaluated = plan.process(rows[1]);

    EXPECT_EQ(pFirst, pEvaluated.get());
    EXPECT_EQ(pFirstCell, pEvaluated->getData()[0].value().data());
    EXPECT_EQ(VorString(L"[ kDetails     ][%Name:none][%Weight:3][%Formula:%Weight*2:]"), listOf(*pEvaluated));

    plan.takeBack(std::move(pEvaluated));
    EXPECT_EQ(VorString(L"[ kDetails     ][%Name:7][%Weight:0.5][%Formula:%Weight*2:]"),
              listOf(*plan.process(rows[2])));
    EXPECT_NE(pFirst, plan.process(rows[1]).get()) << "each is given back once";
}

TEST(VorBomHeaderPlanTest, SectionWithEmptyValuesIsMadeAnew)
{
    const Item section = details({ tuple(L"%Name", NoValue()) });
    VorBomHeaderPlan plan = planFor(section);
    VorBomDataRow named;
    VorBomDataRow nameless;
    named.addData(tuple(L"%Name", L"A"));

    plan.takeBack(plan.process(named));

    EXPECT_EQ(VorBomDataValue::kUnknownData, plan.process(nameless)->getData()[0].value().type());
}

TEST(VorBomHeaderPlanTest, EmptyValueInARowIsReportedForEachTupleThatAsks)
{
    const Item section = details({ tuple(L"%Name", L"none"), tuple(L"%Name", NoValue()) });
    VorBomDataRow row;
    row.addData(tuple(L"%Name", NoValue()));
    AssertLog log;

    const auto pEvaluated = planFor(section).process(row);

    EXPECT_EQ(2, log.count(L"false", L"MekBomEngine/Src/VorBomEvaluator2"));
    EXPECT_EQ(VorString(L"[ kDetails     ][%Name:none][%Name:]"), listOf(*pEvaluated));
    EXPECT_EQ(VorBomDataValue::kUnknownData, pEvaluated->getData()[1].value().type());
    EXPECT_EQ(0, row.getData()[0].used());
}

TEST(VorBomHeaderPlanTest, EvaluatedSectionKeepsCachesRowAndFlagsButNoLinks)
{
    Item section = details({ tuple(L"%GroupBy:%Name", L""), tuple(L"%SortAscBy:%Name", L""), usedTuple(L"%Name", 7) });
    section.findGroupingTokens();
    section.findSortingTokens();
    VorBomDataRow row;
    row.addData(tuple(L"%Name", L"A"));
    section.setFirstDataRow(&row);
    Item other;
    section.setNext(&other);
    section.setChild(&other);

    const auto pEvaluated = planFor(section).process(row);

    EXPECT_EQ(Texts{ L"%Name" }, elementsOf(pEvaluated->groupingTokens()));
    EXPECT_EQ(Texts{ L"%SortAscBy:%Name" }, elementsOf(pEvaluated->sortingTokens()));
    EXPECT_EQ(&row, pEvaluated->getFirstDataRow());
    EXPECT_EQ(7, pEvaluated->getData()[2].used()) << "the section's own flag, not the row's";
    EXPECT_EQ(nullptr, pEvaluated->next());
    EXPECT_EQ(nullptr, pEvaluated->child());
    EXPECT_EQ(nullptr, pEvaluated->lastChild());
}

TEST(VorBomHeaderPlanTest, EachFormulaIsComputedAndAppendedToTheRow)
{
    const Item section = details({ tuple(L"%Formula:%Weight*2", L""), tuple(L"%Weight", 0.0),
                                   tuple(L"%Formula:%Name*2", L"kept"), tuple(L"%Formula:%Weight*2", L"") });
    VorBomDataRow row;
    row.addData(tuple(L"%Weight", 1.5));
    VorBomHeaderPlan plan = planFor(section);

    const auto pEvaluated = plan.process(row);
    plan.computeFormulas(*pEvaluated, &row);

    EXPECT_EQ(VorString(L"[ kDetails     ][%Formula:%Weight*2:3][%Weight:1.5][%Formula:%Name*2:kept]"
                        L"[%Formula:%Weight*2:3]"),
              listOf(*pEvaluated));
    EXPECT_EQ(VorString(L"[%Weight:1.5][%Formula:%Weight*2:3][%Formula:%Weight*2:3]"), listOf(row));
    EXPECT_EQ(0, row.getData()[1].used());
}
