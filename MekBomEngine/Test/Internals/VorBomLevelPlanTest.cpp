// What a level reads from its sections once must give what reading them for every row gives. Whole reports that would
// come out differently otherwise.
#include "VorBomLevelPlan.h"
#include "MekBomEngine/Test/Support/ReportBuilders.h"

namespace
{
using Item = VorBomTemplateItem;

// A report header and footer around one details section.
void buildDetailsReport(Report& report, std::initializer_list<VorBomDataTuple> details,
                        std::initializer_list<VorBomDataTuple> footer)
{
    Item* pReport = report.addSection(nullptr, Item::kReportHeader, {});
    report.addSection(nullptr, Item::kReportFooter, footer);
    report.addSection(pReport, Item::kDetails, details);
}

const VorBomItemBase* rowAt(Report& report, int index)
{
    const VorBomItemBase* pRow = report.data().child();
    while (index-- > 0)
        pRow = pRow->next();
    return pRow;
}
}

TEST(VorBomLevelPlanTest, RowsAgreeWhenTheirFirstTuplesDo)
{
    Item header(Item::kGroupHeader);
    header.addData(VorBomDataTuple(L"%GroupBy:%Name,%Weight", VorString()));
    header.findGroupingTokens();
    VorBomLevelPlan plan(std::make_shared<VorBomTuplePositions>(), header, nullptr);
    VorBomDataRow first;
    VorBomDataRow second;
    EXPECT_EQ(1, plan.isSameGroup(first, second)) << "both lack everything";

    first.addData(VorBomDataTuple(L"%Weight", 1.0));
    EXPECT_EQ(0, plan.isSameGroup(first, second));
    second.addData(VorBomDataTuple(L"%Weight", 1.0000005));
    EXPECT_EQ(1, plan.isSameGroup(first, second)) << "within the tolerance";
    second.addData(VorBomDataTuple(L"%Weight", 2.0));
    EXPECT_EQ(1, plan.isSameGroup(first, second)) << "a second tuple does not count";
    first.addData(VorBomDataTuple(L"%Name", VorString()));
    EXPECT_EQ(0, plan.isSameGroup(first, second)) << "an empty text is not a missing one";
}

TEST(VorBomLevelPlanTest, RowsOfUnlikeKindsAreReportedAndNeverAgree)
{
    Item header(Item::kGroupHeader);
    header.addData(VorBomDataTuple(L"%GroupBy:%Weight", VorString()));
    header.findGroupingTokens();
    VorBomLevelPlan plan(std::make_shared<VorBomTuplePositions>(), header, nullptr);
    VorBomDataRow first;
    VorBomDataRow second;
    first.addData(VorBomDataTuple(L"%Weight", 1));
    second.addData(VorBomDataTuple(L"%Weight", 1.0));
    AssertLog log;

    EXPECT_EQ(0, plan.isSameGroup(first, second));
    EXPECT_TRUE(log.holdsOnly(L"false", L"MekBomEngine/Src/VorBomDataValue"));
}

TEST(VorBomLevelPlanTest, DeepestLevelMakesASectionPerRowThoughItGroups)
{
    Report report;
    Item* pReport = report.addSection(nullptr, Item::kReportHeader, {});
    report.addSection(pReport, Item::kGroupHeader, { { L"%GroupBy:%Name", L"" }, { L"%Num", 0 } });
    report.addRow({ { L"%Name", L"A" }, { L"%Num", 1 } });
    report.addRow({ { L"%Name", L"A" }, { L"%Num", 2 } });

    EXPECT_EQ(VorString(L"[ kReportHeader]\n"
                        L" [ kGroupHeader ][%GroupBy:%Name:][%Num:1]\n"
                        L" [ kGroupHeader ][%GroupBy:%Name:][%Num:2]"),
              report.evaluated());
}

TEST(VorBomLevelPlanTest, FooterCountsTheFormulaThatARowGotFirst)
{
    Report report;
    Item* pGroup =
        report.addSection(nullptr, Item::kGroupHeader, { { L"%Factor", 10 }, { L"%Formula:%Weight*%Factor", L"" } });
    report.addSection(nullptr, Item::kGroupFooter, { { L"%SumBy:%Formula:%Weight*%Factor", 0.0 } });
    report.addSection(pGroup, Item::kDetails, { { L"%Factor", 1 }, { L"%Formula:%Weight*%Factor", L"" } });
    report.addRow({ { L"%Weight", 1.0 } });
    report.addRow({ { L"%Weight", 2.0 } });

    EXPECT_EQ(VorString(L"[ kGroupHeader ][%Factor:10][%Formula:%Weight*%Factor:10]\n"
                        L" [ kDetails     ][%Factor:1][%Formula:%Weight*%Factor:1]\n"
                        L" [ kDetails     ][%Factor:1][%Formula:%Weight*%Factor:2]\n"
                        L"[ kGroupFooter ][%SumBy:%Formula:%Weight*%Factor:12]"),
              report.evaluated());
    EXPECT_EQ(3, rowAt(report, 0)->getData().length()) << "from the group header and from the details";
    EXPECT_EQ(2, rowAt(report, 1)->getData().length());
}

TEST(VorBomLevelPlanTest, RowsThatDoNotCountFromTheStartOpenGroupsAndShow)
{
    Report report;
    Item* pGroup = report.addSection(nullptr, Item::kGroupHeader, { { L"%GroupBy:%Name", L"" }, { L"%Num", 0 } });
    report.addSection(nullptr, Item::kGroupFooter, { { L"%SumBy:%Num", 0 }, { L"%Name", L"none" } });
    report.addSection(pGroup, Item::kDetails, { { L"%Num", 0 } });
    report.addRow({ { L"%Name", L"A" }, { L"%Num", 1 } })->setUseThisDataForSums(0);
    report.addRow({ { L"%Name", L"A" }, { L"%Num", 2 } });
    report.addRow({ { L"%Name", L"B" }, { L"%Num", 3 } })->setUseThisDataForSums(0);

    EXPECT_EQ(VorString(L"[ kGroupHeader ][%GroupBy:%Name:][%Num:1]\n"
                        L" [ kDetails     ][%Num:1]\n"
                        L" [ kDetails     ][%Num:2]\n"
                        L"[ kGroupFooter ][%SumBy:%Num:2][%Name:A]\n"
                        L"[ kGroupHeader ][%GroupBy:%Name:][%Num:3]\n"
                        L" [ kDetails     ][%Num:3]\n"
                        L"[ kGroupFooter ][%SumBy:%Num:0][%Name:none]"),
              report.evaluated());
}

// A details line is compared with whatever hangs last above it, the footer of the line before included. The footer of
// the line that goes was made while its row still counted.
TEST(VorBomLevelPlanTest, LineThatReadsAsTheFooterBeforeItIsMergedAndItsOwnFooterStays)
{
    Report report;
    Item* pReport = report.addSection(nullptr, Item::kReportHeader, {});
    report.addSection(nullptr, Item::kReportFooter, { { L"%SumBy:%Weight", 0.0 } });
    report.addSection(pReport, Item::kDetails, { { L"%Name", L"" }, { L"%Weight", 0.0 } });
    report.addSection(pReport, Item::kGroupFooter, { { L"%Name", L"" }, { L"%SumBy:%Weight", 0.0 } });
    report.addRow({ { L"%Name", L"A" }, { L"%Weight", 2.5 } });
    report.addRow({ { L"%Name", L"A" }, { L"%Weight", 2.5 } });

    EXPECT_EQ(VorString(L"[ kReportHeader]\n"
                        L" [ kDetails     ][%Name:A][%Weight:2.5]\n"
                        L" [ kGroupFooter ][%Name:A][%SumBy:%Weight:2.5]\n"
                        L" [ kGroupFooter ][%Name:A][%SumBy:%Weight:2.5]\n"
                        L"[ kReportFooter][%SumBy:%Weight:2.5]"),
              report.evaluated());
}

TEST(VorBomLevelPlanTest, EqualLinesWithoutValuesAreReportedAndMerged)
{
    Report report;
    buildDetailsReport(report, { emptyTuple(L"%Name") }, { { L"%SumBy:%Num", 0 } });
    report.addRow({ { L"%Num", 1 } });
    report.addRow({ { L"%Num", 2 } });
    AssertLog log;

    EXPECT_EQ(VorString(L"[ kReportHeader]\n [ kDetails     ][%Name:]\n[ kReportFooter][%SumBy:%Num:1]"),
              report.evaluated());
    EXPECT_TRUE(log.holdsOnly(L"false", L"MekBomEngine/Src/VorBomDataValue"));
}

TEST(VorBomLevelPlanTest, UnitOfAFormulaHoldsFromTheLineOnThatShowsIt)
{
    Report report;
    buildDetailsReport(report, { { L"%Num", 0 }, { L"%Length*2", 0.0 }, { L"%Formula:%Length*2", L"" } }, {});
    report.tmpl().getBomTemplateUnits()->AddTokenType(L"%Length", VorBomTemplateUnits::kReservedUnitType);
    for (int num = 1; num <= 2; ++num)
        report.addRow({ { L"%Num", num }, { L"%Length", 1.5 }, { L"%Length*2", 2.5 } });

    EXPECT_EQ(VorString(L"[ kReportHeader]\n"
                        L" [ kDetails     ][%Num:1][%Length*2:2.5][%Formula:%Length*2:]\n"
                        L" [ kDetails     ][%Num:2][%Length*2:][%Formula:%Length*2:]\n"
                        L"[ kReportFooter]"),
              report.evaluated());
}

TEST(VorBomLevelPlanTest, SecondEvaluationFindsTheFormulasOfTheFirstInItsFooters)
{
    Report report;
    buildDetailsReport(report, { { L"%Formula:%Weight*2", L"" } }, { { L"%SumBy:%Formula:%Weight*2", 0.0 } });
    report.addRow({ { L"%Weight", 1.0 } });
    report.evaluate();
    report.data().child()->getData()[0].value().set(5.0);

    EXPECT_EQ(VorString(L"[ kReportHeader]\n"
                        L" [ kDetails     ][%Formula:%Weight*2:2]\n"
                        L"[ kReportFooter][%SumBy:%Formula:%Weight*2:2]\n"
                        L"[ kReportHeader]\n"
                        L" [ kDetails     ][%Formula:%Weight*2:10]\n"
                        L"[ kReportFooter][%SumBy:%Formula:%Weight*2:2]"),
              report.evaluated());
}

TEST(VorBomLevelPlanTest, ReportIsTheSameWhetherRowsShareTheTextsOfTheirTokensOrNot)
{
    const auto makeReport = [](bool sharesTexts)
    {
        Report report;
        Item* pGroup = report.addSection(
            nullptr, Item::kGroupHeader,
            { { L"%GroupBy:%Material", L"" }, { L"%Material", L"" }, { L"%Formula:%Weight*3", L"" } });
        report.addSection(nullptr, Item::kGroupFooter,
                          { { L"%SumBy:%Formula:%Weight*2", 0.0 }, { L"%SumBy:%Weight", 0.0 } });
        report.addSection(pGroup, Item::kDetails, { { L"%Num", 0 }, { L"%Formula:%Weight*2", L"" } });
        const VorString tokens[] = { L"%Num", L"%Material", L"%Weight" };
        for (int num = 0; num < 1500; ++num)
        {
            VorBomDataRow* pRow = report.addRow({});
            const auto token = [&](int i) { return sharesTexts ? tokens[i] : VorString(tokens[i].getStringW()); };
            pRow->addData(VorBomDataTuple(token(0), num / 2));
            if (num % 7 != 0)
                pRow->addData(VorBomDataTuple(token(1), VorString(num % 100 < 40 ? L"S235" : L"S355")));
            pRow->addData(VorBomDataTuple(token(2), num / 8.0));
        }
        return report.evaluated();
    };

    EXPECT_EQ(makeReport(true), makeReport(false));
}
