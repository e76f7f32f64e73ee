#include "MekBomEngine/Src/VorBomSectionSink.h"
#include "MekBomEngine/Test/Support/ReportBuilders.h"
#include "MekBomEngine/Test/Support/SectionTree.h"
#include "MekRoots/Exp/VorMemoryControllerController.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

namespace
{
using Item = VorBomTemplateItem;

// Report header, groups by material with sums, a details line per row.
void buildGroupedReport(Report& report)
{
    Item* pReport = report.addSection(nullptr, Item::kReportHeader, { { L"Title", L"Weights" } });
    report.addSection(nullptr, Item::kReportFooter, { { L"%SumBy:%Weight", 0.0 } });
    Item* pGroup = report.addSection(pReport, Item::kGroupHeader, { { L"%GroupBy:%Material", L"" } });
    report.addSection(pReport, Item::kGroupFooter, { { L"%SumBy:%Weight", 0.0 } });
    report.addSection(pGroup, Item::kDetails, { { L"%Num", L"" }, { L"%Weight", 0.0 } });
}

void addPart(Report& report, const wchar_t* num, const wchar_t* material, double weight)
{
    report.addRow({ { L"%Num", num }, { L"%Material", material }, { L"%Weight", weight } });
}

// Writes down what it is handed.
class Log : public VorBomSectionSink
{
public:
    void takeHeader(const VorBomReportSection& header) override { add(header); }
    void takeFooter(const VorBomReportSection& footer) override { add(footer); }

    VorString text;

private:
    void add(const VorBomReportSection& taken)
    {
        text.append(L' ', taken.level);
        Item(taken.section).list(text, taken.level, 0, 0);
        text += L'\n';
    }
};

// How many sections are handed over, and how many blocks of memory are in use meanwhile, at most.
class Counter : public VorBomSectionSink
{
public:
    void takeHeader(const VorBomReportSection&) override { count(); }
    void takeFooter(const VorBomReportSection&) override { count(); }

    int numSections = 0;
    long long mostBlocks = 0;

private:
    void count()
    {
        ++numSections;
        mostBlocks = std::max(mostBlocks, VorMemoryControllerController::liveBlocks());
    }
};

long long blocksWhileEvaluating(int numRows)
{
    Report report;
    buildGroupedReport(report);
    for (int i = 0; i < numRows; ++i)
        addPart(report, std::to_wstring(i).c_str(), i % 2 == 0 ? L"S235" : L"S355", i % 10);
    report.tmpl().findUsedTokens();
    const long long before = VorMemoryControllerController::liveBlocks();
    Counter counter;
    VorBomEvaluator2::evaluate(&report.tmpl(), counter);
    return counter.mostBlocks - before;
}
}

TEST(VorBomSectionSinkTest, SectionsComeInTheOrderOfTheReport)
{
    Report report;
    buildGroupedReport(report);
    addPart(report, L"P1", L"S235", 2.5);
    addPart(report, L"P2", L"S235", 1.0);
    addPart(report, L"P3", L"S355", 4.0);
    report.tmpl().findUsedTokens();
    Log log;

    EXPECT_EQ(1, VorBomEvaluator2::evaluate(&report.tmpl(), log));
    EXPECT_EQ(VorString(L"[ kReportHeader][Title:Weights]\n"
                        L" [ kGroupHeader ][%GroupBy:%Material:]\n"
                        L"  [ kDetails     ][%Num:P1][%Weight:2.5]\n"
                        L"  [ kDetails     ][%Num:P2][%Weight:1]\n"
                        L" [ kGroupFooter ][%SumBy:%Weight:3.5]\n"
                        L" [ kGroupHeader ][%GroupBy:%Material:]\n"
                        L"  [ kDetails     ][%Num:P3][%Weight:4]\n"
                        L" [ kGroupFooter ][%SumBy:%Weight:4]\n"
                        L"[ kReportFooter][%SumBy:%Weight:7.5]\n"),
              log.text);
}

TEST(VorBomSectionSinkTest, FootersOfInnerGroupsComeBeforeThoseAroundThem)
{
    Report report;
    Item* pGroup = report.addSection(nullptr, Item::kGroupHeader, { { L"%GroupBy:%Material", L"" } });
    report.addSection(nullptr, Item::kGroupFooter, { { L"%Material", L"" } });
    Item* pInner = report.addSection(pGroup, Item::kGroupHeader, { { L"%GroupBy:%Num", L"" } });
    report.addSection(pGroup, Item::kGroupFooter, { { L"%Num", L"" } });
    report.addSection(pInner, Item::kDetails, { { L"%Weight", 0.0 } });
    addPart(report, L"P1", L"S235", 2.5);
    addPart(report, L"P2", L"S355", 4.0);
    report.tmpl().findUsedTokens();
    Log log;
    VorBomEvaluator2::evaluate(&report.tmpl(), log);

    EXPECT_EQ(VorString(L"[ kGroupHeader ][%GroupBy:%Material:]\n"
                        L" [ kGroupHeader ][%GroupBy:%Num:]\n"
                        L"  [ kDetails     ][%Weight:2.5]\n"
                        L" [ kGroupFooter ][%Num:P1]\n"
                        L"[ kGroupFooter ][%Material:S235]\n"
                        L"[ kGroupHeader ][%GroupBy:%Material:]\n"
                        L" [ kGroupHeader ][%GroupBy:%Num:]\n"
                        L"  [ kDetails     ][%Weight:4]\n"
                        L" [ kGroupFooter ][%Num:P2]\n"
                        L"[ kGroupFooter ][%Material:S355]\n"),
              log.text);
}

TEST(VorBomSectionSinkTest, MergedLinesAreNotHandedOver)
{
    Report report;
    buildGroupedReport(report);
    for (int i = 0; i < 3; ++i)
        addPart(report, L"P1", L"S235", 2.5);
    report.tmpl().findUsedTokens();
    Log log;
    VorBomEvaluator2::evaluate(&report.tmpl(), log);

    EXPECT_EQ(VorString(L"[ kReportHeader][Title:Weights]\n"
                        L" [ kGroupHeader ][%GroupBy:%Material:]\n"
                        L"  [ kDetails     ][%Num:P1][%Weight:2.5]\n"
                        L" [ kGroupFooter ][%SumBy:%Weight:2.5]\n"
                        L"[ kReportFooter][%SumBy:%Weight:2.5]\n"),
              log.text);
}

TEST(VorBomSectionSinkTest, TemplateWithoutSectionsOrRowsHandsNothingOver)
{
    Log log;
    Report report;
    addPart(report, L"P1", L"S235", 2.5);
    Report withoutRows;
    buildGroupedReport(withoutRows);

    EXPECT_EQ(0, VorBomEvaluator2::evaluate(nullptr, log));
    EXPECT_EQ(0, VorBomEvaluator2::evaluate(&report.tmpl(), log));
    EXPECT_EQ(1, VorBomEvaluator2::evaluate(&withoutRows.tmpl(), log));
    EXPECT_EQ(VorString(), log.text);
}

TEST(VorBomSectionSinkTest, SectionsAreNotKept)
{
    blocksWhileEvaluating(1000); // so that what a thread keeps for good is there before blocks are counted

    EXPECT_LE(blocksWhileEvaluating(1000), blocksWhileEvaluating(100) + 10);
}

TEST(VorBomSectionSinkTest, NothingIsLeakedOrReported)
{
    blocksWhileEvaluating(10);
    const LeakCheck leakCheck;
    const AssertLog log;

    blocksWhileEvaluating(10);

    EXPECT_TRUE(log.isEmpty());
}

TEST(VorBomSectionSinkTest, HundredThousandLevelsAreSurvived)
{
    Report report;
    Item* pParent = nullptr;
    for (int i = 0; i < 100'000; ++i)
        pParent = report.addSection(pParent, Item::kGroupHeader, {});
    addPart(report, L"P1", L"S235", 2.5);
    addPart(report, L"P2", L"S235", 2.5);
    Counter counter;

    EXPECT_EQ(1, VorBomEvaluator2::evaluate(&report.tmpl(), counter));
    EXPECT_EQ(100'001, counter.numSections) << "the deepest level has a section for each row";
}
