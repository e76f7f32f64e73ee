#include "VorBomFooterPlan.h"
#include "MekBomEngine/Test/Support/BomTestSupport.h"

#include <gtest/gtest.h>

namespace
{
using Item = VorBomTemplateItem;

VorBomFooterPlan planFor(const Item& section)
{
    return VorBomFooterPlan(std::make_shared<VorBomTuplePositions>(), section);
}

Item footer(Tuples tuples)
{
    Item section(Item::kGroupFooter);
    addTuples(section, tuples);
    return section;
}
}

TEST(VorBomFooterPlanTest, RowsAreTakenInOnceHoweverOftenTheyAreOffered)
{
    const Item section = footer({ tuple(L"%SumBy:%Weight", 0.5), tuple(L"%Name", L"none") });
    VorBomFooterPlan plan = planFor(section);
    VorBomDataRow rows[3];
    VorBomDataRowPointerArray group;
    for (int i = 0; i < 3; ++i)
    {
        rows[i].addData(tuple(L"%Weight", 1.0 + i));
        group.append(&rows[i]);
        plan.takeNewRows(group);
        plan.takeNewRows(group);
    }
    rows[1].addData(tuple(L"%Name", L"too late"));

    EXPECT_EQ(VorString(L"[ kGroupFooter ][%SumBy:%Weight:6.5][%Name:none]"), listOf(*plan.finish(group)));
}

TEST(VorBomFooterPlanTest, EveryFooterStartsFromTheTemplatesValues)
{
    const Item section = footer({ tuple(L"%SumBy:%Weight", 0.5), tuple(L"%Name", L"none") });
    VorBomFooterPlan plan = planFor(section);
    VorBomDataRow row;
    addTuples(row, { tuple(L"%Weight", 2.0), tuple(L"%Name", L"A") });
    VorBomDataRowPointerArray group;
    group.append(&row);

    EXPECT_EQ(VorString(L"[ kGroupFooter ][%SumBy:%Weight:2.5][%Name:A]"), listOf(*plan.finish(group)));
    EXPECT_EQ(VorString(L"[ kGroupFooter ][%SumBy:%Weight:2.5][%Name:A]"), listOf(*plan.finish(group)));
    EXPECT_EQ(VorString(L"[ kGroupFooter ][%SumBy:%Weight:0.5][%Name:none]"),
              listOf(*plan.finish(VorBomDataRowPointerArray())));
}

TEST(VorBomFooterPlanTest, RowsThatDoNotCountGiveNeitherTotalsNorTexts)
{
    const Item section = footer({ tuple(L"%SumBy:%Weight", 0.0), tuple(L"%Weight", 0.0), tuple(L"%Name", L"none") });
    VorBomDataRow rows[3];
    VorBomDataRowPointerArray group;
    for (VorBomDataRow& row : rows)
    {
        addTuples(row, { tuple(L"%Weight", 2.0), tuple(L"%Name", L"A") });
        group.append(&row);
    }
    rows[1].setUseThisDataForSums(2); // anything but 0 counts
    rows[2].setUseThisDataForSums(0);
    rows[2].getData()[1].value().set(VorString(L"B"));

    EXPECT_EQ(VorString(L"[ kGroupFooter ][%SumBy:%Weight:4][%Weight:2][%Name:A]"),
              listOf(*planFor(section).finish(group)));
}

TEST(VorBomFooterPlanTest, OfEqualTokensTheRowsFirstCountsForEveryTupleThatAsks)
{
    const Item section = footer({ tuple(L"%SumBy:%Weight", 0), tuple(L"%SumBy:%Weight", 10), tuple(L"%Weight", 0) });
    VorBomDataRow row;
    addTuples(row, { tuple(L"%Weight", 1), tuple(L"%Weight", 100) });
    VorBomDataRowPointerArray group;
    group.append(&row);

    EXPECT_EQ(VorString(L"[ kGroupFooter ][%SumBy:%Weight:1][%SumBy:%Weight:11][%Weight:1]"),
              listOf(*planFor(section).finish(group)));
    EXPECT_EQ(0, row.getData()[0].used());
}

TEST(VorBomFooterPlanTest, RequestsAreLookedUpUnderTheirWholeText)
{
    const Item section = footer(
        { tuple(L"%SumBy:%SumBy:%A", 0), tuple(L"%GroupBy:%A", 0), tuple(L"%Formula:%A*2", 0), tuple(L"%SumBy:", 0) });
    VorBomDataRow row;
    addTuples(row, { tuple(L"%A", 1), tuple(L"%SumBy:%A", 2), tuple(L"%GroupBy:%A", 3), tuple(L"%Formula:%A*2", 4),
                     tuple(L"", 5) });
    VorBomDataRowPointerArray group;
    group.append(&row);

    EXPECT_EQ(VorString(L"[ kGroupFooter ][%SumBy:%SumBy:%A:2][%GroupBy:%A:3][%Formula:%A*2:4][%SumBy::5]"),
              listOf(*planFor(section).finish(group)));
}
