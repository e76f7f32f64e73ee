#include "MekBomEngine/Test/Support/ReportBuilders.h"

#include <thread>

namespace
{
const wchar_t kSourcePath[] = L"MekBomEngine/Src/VorBomEvaluator2";

using Item = VorBomTemplateItem;
using Access = VorBomEvaluator2Access;

VorString listed(Item& section)
{
    VorString text;
    section.list(text, 0, 0, 0);
    return text;
}

// Report header, groups by material with sums, a details line per row.
void buildGroupedReport(Report& report)
{
    Item* pReport = report.addSection(nullptr, Item::kReportHeader, { { L"Title", L"Weights" } });
    report.addSection(nullptr, Item::kReportFooter, { { L"%SumBy:%Weight", 0.0 } });
    Item* pGroup =
        report.addSection(pReport, Item::kGroupHeader, { { L"%GroupBy:%Material", L"" }, { L"%Material", L"" } });
    report.addSection(pReport, Item::kGroupFooter, { { L"%SumBy:%Weight", 0.0 } });
    report.addSection(pGroup, Item::kDetails, { { L"%Num", L"" }, { L"%Weight", 0.0 } });
}

void addPart(Report& report, const wchar_t* num, const wchar_t* material, double weight)
{
    report.addRow({ { L"%Num", num }, { L"%Material", material }, { L"%Weight", weight } });
}
}

TEST(VorBomEvaluator2Test, NullTemplateGivesZero)
{
    VorBomTemplate result;

    EXPECT_EQ(0, VorBomEvaluator2::evaluate(nullptr, &result));
    EXPECT_EQ(nullptr, result.child());
}

TEST(VorBomEvaluator2Test, TemplateWithoutSectionsGivesZeroAndLeavesTheResult)
{
    Report report;
    report.addRow({ { L"%Weight", 2.5 } });

    EXPECT_EQ(0, report.evaluate());
    EXPECT_EQ(nullptr, report.result().child());
}

TEST(VorBomEvaluator2Test, DataWithoutRowsGivesOneAndAppendsNothing)
{
    Report report;
    buildGroupedReport(report);

    EXPECT_EQ(1, report.evaluate());
    EXPECT_EQ(nullptr, report.result().child());
}

TEST(VorBomEvaluator2Test, GroupsHangTheirHeaderThenTheirFooterInTheHeaderAbove)
{
    Report report;
    buildGroupedReport(report);
    addPart(report, L"P1", L"S235", 2.5);
    addPart(report, L"P2", L"S235", 1.5);
    addPart(report, L"P3", L"S355", 4.25);

    EXPECT_EQ(VorString(L"[ kReportHeader][Title:Weights]\n"
                        L" [ kGroupHeader ][%GroupBy:%Material:][%Material:S235]\n"
                        L"  [ kDetails     ][%Num:P1][%Weight:2.5]\n"
                        L"  [ kDetails     ][%Num:P2][%Weight:1.5]\n"
                        L" [ kGroupFooter ][%SumBy:%Weight:4]\n"
                        L" [ kGroupHeader ][%GroupBy:%Material:][%Material:S355]\n"
                        L"  [ kDetails     ][%Num:P3][%Weight:4.25]\n"
                        L" [ kGroupFooter ][%SumBy:%Weight:4.25]\n"
                        L"[ kReportFooter][%SumBy:%Weight:8.25]"),
              report.evaluated());
}

TEST(VorBomEvaluator2Test, ResultHoldsOnlyTexts)
{
    Report report;
    buildGroupedReport(report);
    addPart(report, L"P1", L"S235", 2.5);
    report.evaluate();

    for (const VorBomDataTuple& tuple : report.result().lastChild()->getData())
        EXPECT_EQ(VorBomDataValue::kStringData, tuple.value().type());
}

TEST(VorBomEvaluator2Test, WithoutPreparationNothingIsGroupedOrSorted)
{
    Report report;
    buildGroupedReport(report);
    addPart(report, L"P1", L"S355", 1.0);
    addPart(report, L"P2", L"S235", 2.0);

    VorBomEvaluator2::evaluate(&report.tmpl(), &report.result());

    const VorBomItemBase* pReport = report.result().child();
    EXPECT_EQ(pReport->child()->next(), pReport->lastChild()) << "one group header and its footer";
}

TEST(VorBomEvaluator2Test, EqualNeighbouringDetailsMergeAndStopCounting)
{
    Report report;
    buildGroupedReport(report);
    addPart(report, L"P1", L"S235", 2.5);
    addPart(report, L"P1", L"S235", 2.5);
    addPart(report, L"P2", L"S235", 1.0);

    EXPECT_EQ(VorString(L"[ kReportHeader][Title:Weights]\n"
                        L" [ kGroupHeader ][%GroupBy:%Material:][%Material:S235]\n"
                        L"  [ kDetails     ][%Num:P1][%Weight:2.5]\n"
                        L"  [ kDetails     ][%Num:P2][%Weight:1]\n"
                        L" [ kGroupFooter ][%SumBy:%Weight:3.5]\n"
                        L"[ kReportFooter][%SumBy:%Weight:3.5]"),
              report.evaluated());
    const auto* pSecond = static_cast<const VorBomDataRow*>(report.data().child()->next());
    EXPECT_EQ(0, pSecond->getUseThisDataForSums());
}

TEST(VorBomEvaluator2Test, EqualDetailsApartFromEachOtherBothStay)
{
    Report report;
    buildGroupedReport(report);
    addPart(report, L"P1", L"S235", 2.5);
    addPart(report, L"P2", L"S235", 1.0);
    addPart(report, L"P1", L"S235", 2.5);

    EXPECT_NE(-1, report.evaluated().find(L"[%SumBy:%Weight:6]", 0));
}

TEST(VorBomEvaluator2Test, EqualDetailsInDifferentGroupsBothStay)
{
    Report report;
    buildGroupedReport(report);
    addPart(report, L"P1", L"S235", 2.5);
    addPart(report, L"P1", L"S355", 2.5);

    EXPECT_NE(-1, report.evaluated().find(L"[ kReportFooter][%SumBy:%Weight:5]", 0));
}

TEST(VorBomEvaluator2Test, DetailsThatShowAlikeMergeThoughTheirNumbersDiffer)
{
    Report report;
    buildGroupedReport(report);
    addPart(report, L"P1", L"S235", 2.5000001);
    addPart(report, L"P1", L"S235", 2.5000002);

    EXPECT_NE(-1, report.evaluated().find(L"[ kReportFooter][%SumBy:%Weight:2.5]", 0));
}

TEST(VorBomEvaluator2Test, ThirdEqualDetailsMergesIntoTheFirst)
{
    Report report;
    buildGroupedReport(report);
    for (int i = 0; i < 3; ++i)
        addPart(report, L"P1", L"S235", 2.0);

    EXPECT_NE(-1, report.evaluated().find(L"[ kReportFooter][%SumBy:%Weight:2]", 0));
}

TEST(VorBomEvaluator2Test, DeepestSectionsThatAreNotDetailsNeverMerge)
{
    Report report;
    Item* pReport = report.addSection(nullptr, Item::kReportHeader, {});
    report.addSection(nullptr, Item::kReportFooter, { { L"%SumBy:%Weight", 0.0 } });
    report.addSection(pReport, Item::kGroupHeader, { { L"%Num", L"" } });
    addPart(report, L"P1", L"S235", 2.5);
    addPart(report, L"P1", L"S235", 2.5);

    EXPECT_EQ(VorString(L"[ kReportHeader]\n"
                        L" [ kGroupHeader ][%Num:P1]\n"
                        L" [ kGroupHeader ][%Num:P1]\n"
                        L"[ kReportFooter][%SumBy:%Weight:5]"),
              report.evaluated());
}

TEST(VorBomEvaluator2Test, DetailsFooterStandsBetweenLinesSoThatNoneMerge)
{
    Report report;
    Item* pReport = report.addSection(nullptr, Item::kReportHeader, {});
    report.addSection(pReport, Item::kDetails, { { L"%Num", L"" } });
    report.addSection(pReport, Item::kGroupFooter, { { L"%Num", L"" }, { L"%SumBy:%Weight", 0.0 } });
    addPart(report, L"P1", L"S235", 2.5);
    addPart(report, L"P1", L"S235", 2.5);

    EXPECT_EQ(VorString(L"[ kReportHeader]\n"
                        L" [ kDetails     ][%Num:P1]\n"
                        L" [ kGroupFooter ][%Num:P1][%SumBy:%Weight:2.5]\n"
                        L" [ kDetails     ][%Num:P1]\n"
                        L" [ kGroupFooter ][%Num:P1][%SumBy:%Weight:2.5]"),
              report.evaluated());
}

TEST(VorBomEvaluator2Test, DetailsAsTheOnlyLevelHangInTheResultAndNeverMerge)
{
    Report report;
    report.addSection(nullptr, Item::kDetails, { { L"%Num", L"" } });
    addPart(report, L"P1", L"S235", 2.5);
    addPart(report, L"P1", L"S235", 2.5);

    EXPECT_EQ(VorString(L"[ kDetails     ][%Num:P1]\n[ kDetails     ][%Num:P1]"), report.evaluated());
}

TEST(VorBomEvaluator2Test, OnlyTheFirstTwoSiblingsOfALevelAreEvaluated)
{
    Report report;
    report.addSection(nullptr, Item::kReportHeader, { { L"A", 1 } });
    report.addSection(nullptr, Item::kReportFooter, { { L"B", 2 } });
    report.addSection(nullptr, Item::kReportFooter, { { L"C", 3 } });
    report.addRow({ { L"%Weight", 1.0 } });

    EXPECT_EQ(VorString(L"[ kReportHeader][A:1]\n[ kReportFooter][B:2]"), report.evaluated());
}

TEST(VorBomEvaluator2Test, LevelWithoutGroupingKeepsOneGroupAsLongAsTheLevelsAbove)
{
    Report report;
    Item* pOuter =
        report.addSection(nullptr, Item::kGroupHeader, { { L"%GroupBy:%Material", L"" }, { L"%Material", L"" } });
    Item* pInner = report.addSection(pOuter, Item::kGroupHeader, { { L"%Num", L"" } });
    report.addSection(pOuter, Item::kGroupFooter, { { L"%SumBy:%Weight", 0.0 } });
    report.addSection(pInner, Item::kDetails, { { L"%Weight", 0.0 } });
    addPart(report, L"P1", L"S235", 1.0);
    addPart(report, L"P2", L"S235", 2.0);
    addPart(report, L"P3", L"S355", 4.0);

    EXPECT_EQ(VorString(L"[ kGroupHeader ][%GroupBy:%Material:][%Material:S235]\n"
                        L" [ kGroupHeader ][%Num:P1]\n"
                        L"  [ kDetails     ][%Weight:1]\n"
                        L"  [ kDetails     ][%Weight:2]\n"
                        L" [ kGroupFooter ][%SumBy:%Weight:3]\n"
                        L"[ kGroupHeader ][%GroupBy:%Material:][%Material:S355]\n"
                        L" [ kGroupHeader ][%Num:P3]\n"
                        L"  [ kDetails     ][%Weight:4]\n"
                        L" [ kGroupFooter ][%SumBy:%Weight:4]"),
              report.evaluated());
}

TEST(VorBomEvaluator2Test, OuterGroupChangeOpensTheInnerGroupAnewThoughItsTokensAgree)
{
    Report report;
    Item* pOuter = report.addSection(nullptr, Item::kGroupHeader, { { L"%GroupBy:%Material", L"" } });
    Item* pInner = report.addSection(pOuter, Item::kGroupHeader, { { L"%GroupBy:%Num", L"" }, { L"%Num", L"" } });
    report.addSection(pInner, Item::kDetails, { { L"%Weight", 0.0 } });
    addPart(report, L"P1", L"S235", 1.0);
    addPart(report, L"P1", L"S355", 2.0);

    const VorString text = report.evaluated();

    EXPECT_NE(text.find(L"[%Num:P1]", 0), text.find(L"[%Num:P1]", text.find(L"[%Weight:1]", 0)));
    EXPECT_NE(-1, text.find(L"[%Num:P1]", text.find(L"[%Weight:1]", 0)));
}

TEST(VorBomEvaluator2Test, GroupsAreRunsOfNeighbouringRows)
{
    Report report;
    report.addSection(nullptr, Item::kGroupHeader, { { L"%GroupBy:%Material", L"" }, { L"%Material", L"" } });
    Item* pGroup = static_cast<Item*>(report.tmpl().child());
    report.addSection(pGroup, Item::kDetails, { { L"%Num", L"" } });
    addPart(report, L"P1", L"S235", 1.0);
    addPart(report, L"P2", L"S355", 1.0);
    addPart(report, L"P3", L"S235", 1.0);
    report.evaluate();

    int numGroups = 0;
    for (const VorBomItemBase* pItem = report.result().child(); pItem != nullptr; pItem = pItem->next())
        ++numGroups;
    EXPECT_EQ(3, numGroups);
}

TEST(VorBomEvaluator2Test, GroupHeaderKeepsTheValuesOfTheRowThatOpenedIt)
{
    Report report;
    buildGroupedReport(report);
    static_cast<Item*>(report.tmpl().child()->child())->addData(VorBomDataTuple(L"%Num", VorString()));
    addPart(report, L"P1", L"S235", 2.5);
    addPart(report, L"P2", L"S235", 1.5);

    EXPECT_NE(-1, report.evaluated().find(L"[%Material:S235][%Num:P1]", 0));
}

TEST(VorBomEvaluator2Test, FirstDataRowIsTheRowThatOpenedTheSection)
{
    Report report;
    buildGroupedReport(report);
    addPart(report, L"P1", L"S235", 2.5);
    addPart(report, L"P2", L"S235", 1.5);
    report.evaluate();

    const auto* pGroup = static_cast<const Item*>(report.result().child()->child());
    EXPECT_EQ(report.data().child(), pGroup->getFirstDataRow());
    EXPECT_EQ(report.data().child()->next(), static_cast<const Item*>(pGroup->child()->next())->getFirstDataRow());
}

TEST(VorBomEvaluator2Test, DetailsAboveTheDeepestLevelReportEachFurtherRow)
{
    Report report;
    Item* pDetails = report.addSection(nullptr, Item::kDetails, { { L"%Num", L"" } });
    report.addSection(pDetails, Item::kDetails, { { L"%Weight", 0.0 } });
    addPart(report, L"P1", L"S235", 2.5);
    addPart(report, L"P2", L"S235", 1.5);
    AssertLog log;

    report.evaluate();

    EXPECT_EQ(1, log.count(L"VorBomTemplateItem::kDetails != state.m_pHeader->type()", kSourcePath));
}

TEST(VorBomEvaluator2Test, NullResultIsReportedAndEverythingDestroyed)
{
    Report warmUp; // so that what a thread keeps for good is there before blocks are counted
    buildGroupedReport(warmUp);
    addPart(warmUp, L"P1", L"S235", 2.5);
    warmUp.evaluate();
    LeakCheck leaks;
    AssertLog log;
    {
        Report report;
        buildGroupedReport(report);
        addPart(report, L"P1", L"S235", 2.5);
        addPart(report, L"P2", L"S355", 2.5);
        report.tmpl().findUsedTokens();

        EXPECT_EQ(1, VorBomEvaluator2::evaluate(&report.tmpl(), nullptr));
    }
    EXPECT_TRUE(log.holdsOnly(L"NULL != completedGroup.m_pCollector", kSourcePath));
    VorAssert::clearReports();
}

TEST(VorBomEvaluator2Test, NullResultWithGroupsAtTheFirstLevelIsSurvived)
{
    Report report;
    Item* pGroup = report.addSection(nullptr, Item::kGroupHeader, { { L"%GroupBy:%Material", L"" } });
    report.addSection(nullptr, Item::kGroupFooter, { { L"%SumBy:%Weight", 0.0 } });
    Item* pInner = report.addSection(pGroup, Item::kGroupHeader, { { L"%GroupBy:%Num", L"" } });
    report.addSection(pInner, Item::kDetails, { { L"%Num", L"" } });
    addPart(report, L"P1", L"S235", 2.5);
    addPart(report, L"P2", L"S355", 2.5);
    addPart(report, L"P3", L"S355", 2.5);
    report.tmpl().findUsedTokens();
    AssertLog log;

    EXPECT_EQ(1, VorBomEvaluator2::evaluate(&report.tmpl(), nullptr));
    EXPECT_EQ(2, log.count(L"NULL != completedGroup.m_pCollector", kSourcePath)) << "once per group";
}

TEST(VorBomEvaluator2Test, NullResultWithDetailsAloneIsSurvived)
{
    Report report;
    report.addSection(nullptr, Item::kDetails, { { L"%Num", L"" } });
    addPart(report, L"P1", L"S235", 2.5);
    addPart(report, L"P2", L"S355", 2.5);
    AssertLog log;

    EXPECT_EQ(1, VorBomEvaluator2::evaluate(&report.tmpl(), nullptr));
    EXPECT_EQ(2, log.count(L"NULL != completedGroup.m_pCollector", kSourcePath));
}

TEST(VorBomEvaluator2Test, RowsBelowTheTopLevelAreNotVisited)
{
    Report report;
    report.addSection(nullptr, Item::kDetails, { { L"%Num", L"" } });
    VorBomDataRow* pRow = report.addRow({ { L"%Num", L"P1" } });
    auto* pSubRow = new VorBomDataRow;
    pSubRow->addData(VorBomDataTuple(L"%Num", VorString(L"P2")));
    pRow->addChild(pSubRow);

    EXPECT_EQ(VorString(L"[ kDetails     ][%Num:P1]"), report.evaluated());
}

TEST(VorBomEvaluator2Test, EvaluationMarksTheDataThatSectionsShow)
{
    Report report;
    buildGroupedReport(report);
    addPart(report, L"P1", L"S235", 2.5);
    report.data().child()->addData(VorBomDataTuple(L"%Length", 6000.0));
    report.evaluate();

    VorBomItemBase* pRow = report.data().child();
    EXPECT_EQ(1, pRow->getTupleAt(L"%Num")->used());
    EXPECT_EQ(1, pRow->getTupleAt(L"%Material")->used());
    EXPECT_EQ(0, pRow->getTupleAt(L"%Length")->used());
}

TEST(VorBomEvaluator2Test, SumsInFootersMarkNothingAsUsed)
{
    Report report;
    report.addSection(nullptr, Item::kReportHeader, {});
    report.addSection(nullptr, Item::kReportFooter, { { L"%SumBy:%Weight", 0.0 }, { L"%Num", L"" } });
    addPart(report, L"P1", L"S235", 2.5);
    report.evaluate();

    EXPECT_EQ(0, report.data().child()->getTupleAt(L"%Weight")->used());
    EXPECT_EQ(0, report.data().child()->getTupleAt(L"%Num")->used());
}

TEST(VorBomEvaluator2Test, FooterFormulasAreNotComputed)
{
    Report report;
    report.addSection(nullptr, Item::kReportHeader, {});
    report.addSection(nullptr, Item::kReportFooter, { { L"%Formula:%Weight*2", L"untouched" } });
    addPart(report, L"P1", L"S235", 2.5);

    EXPECT_EQ(VorString(L"[ kReportHeader]\n[ kReportFooter][%Formula:%Weight*2:untouched]"), report.evaluated());
}

TEST(VorBomEvaluator2Test, FooterShowsTheFormulaThatItsLastCountedRowCarries)
{
    Report report;
    Item* pReport = report.addSection(nullptr, Item::kReportHeader, {});
    report.addSection(nullptr, Item::kReportFooter,
                      { { L"%Formula:%Weight*2", L"" }, { L"%SumBy:%Formula:%Weight*2", 0.0 } });
    report.addSection(pReport, Item::kDetails, { { L"%Num", L"" }, { L"%Formula:%Weight*2", L"" } });
    addPart(report, L"P1", L"S235", 2.5);
    addPart(report, L"P2", L"S235", 1.0);

    EXPECT_EQ(VorString(L"[ kReportHeader]\n"
                        L" [ kDetails     ][%Num:P1][%Formula:%Weight*2:5]\n"
                        L" [ kDetails     ][%Num:P2][%Formula:%Weight*2:2]\n"
                        L"[ kReportFooter][%Formula:%Weight*2:2][%SumBy:%Formula:%Weight*2:7]"),
              report.evaluated());
}

TEST(VorBomEvaluator2Test, SecondEvaluationAppendsToTheResultAndKeepsTheRowsAsTheyAre)
{
    Report report;
    buildGroupedReport(report);
    addPart(report, L"P1", L"S235", 2.5);
    addPart(report, L"P1", L"S235", 2.5);
    const VorString first = report.evaluated();

    report.evaluate();

    VorString twice = first;
    twice += L"\n";
    twice += first;
    EXPECT_EQ(twice, report.resultText());
}

TEST(VorBomEvaluator2Test, StackHasOneLevelPerFirstChild)
{
    Report report;
    EXPECT_EQ(0, Access::getTemplateStack(&report.tmpl()).length());

    buildGroupedReport(report);
    VorBomEngineStateArray stack = Access::getTemplateStack(&report.tmpl());

    ASSERT_EQ(3, stack.length());
    EXPECT_EQ(Item::kReportHeader, stack[0].m_pHeader->type());
    EXPECT_EQ(Item::kReportFooter, stack[0].m_pFooter->type());
    EXPECT_EQ(Item::kGroupHeader, stack[1].m_pHeader->type());
    EXPECT_EQ(Item::kDetails, stack[2].m_pHeader->type());
    EXPECT_EQ(nullptr, stack[2].m_pFooter);
    EXPECT_EQ(2000, stack[1].m_dataRows.growBy());
    EXPECT_EQ(8, stack.growBy());
    EXPECT_EQ(0, stack[1].m_bGroupOpen);
    EXPECT_EQ(nullptr, stack[0].m_pCollector);
}

TEST(VorBomEvaluator2Test, SectionWithoutChildIsAStackOfOneLevel)
{
    Report report;
    report.addSection(nullptr, Item::kDetails, {});

    EXPECT_EQ(1, Access::getTemplateStack(&report.tmpl()).length());
}

TEST(VorBomEvaluator2Test, ProcessingARowCopiesWhatTheRowHas)
{
    Report report;
    Item section(Item::kDetails);
    section.addData(VorBomDataTuple(L"%Num", 7));
    section.addData(VorBomDataTuple(L"%Weight", 0));
    section.addData(VorBomDataTuple(L"%Formula:%Weight*2", VorString(L"later")));
    section.addData(VorBomDataTuple(L"%Length", 1.5));
    section.setNext(&section);
    VorBomDataRow* pRow =
        report.addRow({ { L"%Num", L"P1" }, { L"%Weight", 2.5 }, { L"%Formula:%Weight*2", 99.0 }, { L"%Paint", 3 } });

    const auto pEvaluated = Access::process(&section, pRow);

    EXPECT_EQ(VorString(L"[ kDetails     ][%Num:P1][%Weight:2.5][%Formula:%Weight*2:later][%Length:1.5]"),
              listed(*pEvaluated));
    EXPECT_EQ(nullptr, pEvaluated->next());
    EXPECT_EQ(nullptr, pEvaluated->child());
    EXPECT_EQ(nullptr, pEvaluated->lastChild());
    EXPECT_EQ(1, pRow->getTupleAt(L"%Num")->used());
    EXPECT_EQ(0, pRow->getTupleAt(L"%Paint")->used());
    EXPECT_EQ(0, pRow->getTupleAt(L"%Formula:%Weight*2")->used());
    EXPECT_EQ(VorBomDataValue::kIntData, section.getData()[0].value().type()) << "the template stays";
}

TEST(VorBomEvaluator2Test, EmptyValueInARowIsReportedAndLeavesTheTemplatesValue)
{
    Report report;
    Item section(Item::kDetails);
    section.addData(VorBomDataTuple(L"%Num", 7));
    VorBomDataRow* pRow = report.addRow({ emptyTuple(L"%Num") });
    AssertLog log;

    const auto pEvaluated = Access::process(&section, pRow);

    EXPECT_EQ(VorString(L"[ kDetails     ][%Num:7]"), listed(*pEvaluated));
    EXPECT_EQ(0, pRow->getTupleAt(L"%Num")->used());
    EXPECT_TRUE(log.holdsOnly(L"false", kSourcePath));
}

TEST(VorBomEvaluator2Test, ProcessingNoSectionIsReported)
{
    VorBomDataRow row;
    AssertLog log;

    EXPECT_EQ(nullptr, Access::process(nullptr, &row));
    EXPECT_EQ(nullptr, Access::process(nullptr, std::vector<VorBomDataRow*>{ &row }));
    EXPECT_EQ(2, log.count(L"NULL != pTemplateItem", kSourcePath));
}

namespace
{
// What a footer with one tuple holds after rows with these values of "%X"; null for a row without it.
VorBomDataValue footerValue(const VorBomDataTuple& column, std::initializer_list<VorBomDataTuple> rowTuples)
{
    Item footer(Item::kGroupFooter);
    footer.addData(column);
    std::vector<std::unique_ptr<VorBomDataRow>> rows;
    std::vector<VorBomDataRow*> pointers;
    for (const VorBomDataTuple& tuple : rowTuples)
    {
        rows.push_back(std::make_unique<VorBomDataRow>());
        rows.back()->addData(tuple);
        pointers.push_back(rows.back().get());
    }
    return Access::process(&footer, pointers)->getData()[0].value();
}

void expectInt(int expected, const VorBomDataValue& value)
{
    ASSERT_EQ(VorBomDataValue::kIntData, value.type());
    EXPECT_EQ(expected, *static_cast<const int*>(value.data()));
}

void expectDouble(double expected, const VorBomDataValue& value)
{
    ASSERT_EQ(VorBomDataValue::kDoubleData, value.type());
    EXPECT_DOUBLE_EQ(expected, *static_cast<const double*>(value.data()));
}
}

TEST(VorBomEvaluator2Test, FooterSumsCountedRowsOnTopOfTheStartingValue)
{
    Item footer(Item::kGroupFooter);
    footer.addData(VorBomDataTuple(L"%SumBy:%Weight", 0.0));
    footer.addData(VorBomDataTuple(L"%SumBy:%Quantity", 100));
    VorBomDataRow rows[3];
    const double weights[] = { 2.5, 1.5, 100.0 };
    for (int i = 0; i < 3; ++i)
    {
        rows[i].addData(VorBomDataTuple(L"%Weight", weights[i]));
        rows[i].addData(VorBomDataTuple(L"%Quantity", 2));
    }
    rows[2].setUseThisDataForSums(0);

    const auto pFooter = Access::process(&footer, { &rows[0], &rows[1], &rows[2] });

    expectDouble(4.0, pFooter->getData()[0].value());
    expectInt(104, pFooter->getData()[1].value());
}

TEST(VorBomEvaluator2Test, PlainFooterTokenHoldsTheLastCountedRowThatHasIt)
{
    VorBomDataRow rows[4];
    rows[0].addData(VorBomDataTuple(L"%Material", VorString(L"S235")));
    rows[1].addData(VorBomDataTuple(L"%Material", VorString(L"S355")));
    rows[3].addData(VorBomDataTuple(L"%Material", VorString(L"S460")));
    rows[3].setUseThisDataForSums(0);
    Item footer(Item::kGroupFooter);
    footer.addData(VorBomDataTuple(L"%Material", VorString()));

    const auto pFooter = Access::process(&footer, { &rows[0], &rows[1], &rows[2], &rows[3] });

    EXPECT_EQ(VorString(L"[ kGroupFooter ][%Material:S355]"), listed(*pFooter));
}

TEST(VorBomEvaluator2Test, SummingTextsIsReportedAndHoldsTheLastText)
{
    AssertLog log;

    const VorBomDataValue value = footerValue({ L"%SumBy:%X", 0 }, { { L"%X", L"a" }, { L"%X", L"b" } });

    EXPECT_EQ(VorString(L"b"), value.asString());
    EXPECT_EQ(2, log.count(L"!bIsSummingRequest", kSourcePath));
}

TEST(VorBomEvaluator2Test, TotalsWithoutNumericStartBeginAtZeroOfTheRowsType)
{
    expectInt(5, footerValue({ L"%SumBy:%X", L"" }, { { L"%X", 2 }, { L"%X", 3 } }));
    expectInt(5, footerValue(emptyTuple(L"%SumBy:%X"), { { L"%X", 2 }, { L"%X", 3 } }));
    expectDouble(5.5, footerValue({ L"%SumBy:%X", L"n/a" }, { { L"%X", 2.5 }, { L"%X", 3.0 } }));
}

TEST(VorBomEvaluator2Test, UnlikeNumericTypesMakeTheTotalADoubleForGood)
{
    expectDouble(4.0, footerValue({ L"%SumBy:%X", 0 }, { { L"%X", 2.5 }, { L"%X", 1.5 } }));
    expectDouble(4.0, footerValue({ L"%SumBy:%X", 0.0 }, { { L"%X", 1 }, { L"%X", 3 } }));
    expectDouble(6.5, footerValue({ L"%SumBy:%X", 0 }, { { L"%X", 1 }, { L"%X", 2.5 }, { L"%X", 3 } }));
}

TEST(VorBomEvaluator2Test, NumberAfterATextStartsTheTotalAnew)
{
    AssertLog log;

    expectInt(3, footerValue({ L"%SumBy:%X", 0.0 }, { { L"%X", 2.5 }, { L"%X", L"a" }, { L"%X", 3 } }));
}

TEST(VorBomEvaluator2Test, IntegerTotalLeavingThe32BitRangeBecomesADouble)
{
    expectInt(2147483647, footerValue({ L"%SumBy:%X", 0 }, { { L"%X", 2147483646 }, { L"%X", 1 } }));
    expectDouble(2147483648.0, footerValue({ L"%SumBy:%X", 0 }, { { L"%X", 2147483647 }, { L"%X", 1 } }));
    expectDouble(-2147483649.0, footerValue({ L"%SumBy:%X", -1 }, { { L"%X", -2147483647 - 1 } }));
    expectDouble(2147483646.0,
                 footerValue({ L"%SumBy:%X", 0 }, { { L"%X", 2147483647 }, { L"%X", 1 }, { L"%X", -2 } }));
}

TEST(VorBomEvaluator2Test, EmptyValuesInSummedRowsAreSkipped)
{
    AssertLog log;

    expectInt(2, footerValue({ L"%SumBy:%X", 0 }, { { L"%X", 2 }, emptyTuple(L"%X") }));
    EXPECT_TRUE(log.isEmpty());
}

TEST(VorBomEvaluator2Test, PlainFooterTokenTakesTheTypeOfTheRow)
{
    expectInt(2, footerValue({ L"%X", 1.5 }, { { L"%X", 2 } }));
    expectDouble(1.5, footerValue({ L"%X", 1.5 }, {}));
}

TEST(VorBomEvaluator2Test, RowMatchesAGroupWithEqualGroupingTokens)
{
    Report report;
    buildGroupedReport(report);
    addPart(report, L"P1", L"S235", 2.5);
    addPart(report, L"P2", L"S235", 1.5);
    addPart(report, L"P3", L"S355", 1.5);
    report.tmpl().findUsedTokens();
    VorBomEngineStateArray stack = Access::getTemplateStack(&report.tmpl());
    auto* pFirst = static_cast<VorBomDataRow*>(report.data().child());
    auto* pSecond = static_cast<VorBomDataRow*>(pFirst->next());
    auto* pThird = static_cast<VorBomDataRow*>(pSecond->next());

    EXPECT_EQ(1, Access::dataMatchGroup(pFirst, stack[1])) << "no row yet";
    stack[1].m_dataRows.append(pFirst);
    stack[2].m_dataRows.append(pFirst);
    EXPECT_EQ(1, Access::dataMatchGroup(pSecond, stack[1]));
    EXPECT_EQ(0, Access::dataMatchGroup(pThird, stack[1]));
    EXPECT_EQ(1, Access::dataMatchGroup(pThird, stack[2])) << "no grouping tokens";
    stack[1].m_pHeader = nullptr;
    EXPECT_EQ(1, Access::dataMatchGroup(pThird, stack[1])) << "no header";
}

TEST(VorBomEvaluator2Test, EndingAClosedGroupDoesNothing)
{
    Report report;
    buildGroupedReport(report);
    VorBomEngineStateArray stack = Access::getTemplateStack(&report.tmpl());

    EXPECT_EQ(1, Access::endGroup(stack, 1, report.tmpl().getBomTemplateUnits()));
    EXPECT_EQ(nullptr, stack[1].m_pEvaluatedFooter);
}

TEST(VorBomEvaluator2Test, EvaluationLeavesNoBlockBehind)
{
    Report warmUp;
    buildGroupedReport(warmUp);
    addPart(warmUp, L"P1", L"S235", 2.5);
    warmUp.evaluate();
    LeakCheck leaks;

    Report report;
    buildGroupedReport(report);
    addPart(report, L"P1", L"S235", 2.5);
    addPart(report, L"P1", L"S235", 2.5);
    addPart(report, L"P2", L"S355", 2.5);
    report.evaluate();
}

TEST(VorBomEvaluator2Test, HundredThousandLevelsAreSurvived)
{
    Report report;
    Item* pParent = nullptr;
    for (int i = 0; i < 100000; ++i)
        pParent = report.addSection(pParent, Item::kGroupHeader, {});
    report.addRow({ { L"%Num", L"P1" } });

    ASSERT_EQ(1, report.evaluate());

    int depth = 0;
    for (const VorBomItemBase* pItem = report.result().child(); pItem != nullptr; pItem = pItem->child())
        ++depth;
    EXPECT_EQ(100000, depth);
}

TEST(VorBomEvaluator2ThreadTest, EvaluationsOnDifferentThreadsRunAtOnce)
{
    const auto makeReport = [](VorString* pText, int firstNumber)
    {
        Report report;
        buildGroupedReport(report);
        static_cast<Item*>(report.tmpl().child()->child())
            ->addData(VorBomDataTuple(L"%SortDescBy:%Weight", VorString()));
        for (int i = 0; i < 300; ++i)
        {
            VorString num;
            num.format(L"P%d", firstNumber + i);
            addPart(report, num.getStringW(), i % 2 == 0 ? L"S235" : L"S355", i / 8.0);
        }
        *pText = report.evaluated();
    };
    VorString alone;
    makeReport(&alone, 1);

    VorString texts[4];
    std::vector<std::thread> threads;
    for (VorString& text : texts)
        threads.emplace_back(makeReport, &text, 1);
    for (std::thread& thread : threads)
        thread.join();

    for (const VorString& text : texts)
        EXPECT_EQ(alone, text);
}
