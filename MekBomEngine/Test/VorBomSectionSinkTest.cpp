#include "MekBomEngine/Src/VorBomSectionSink.h"
#include "MekBomEngine/Test/Support/ReportBuilders.h"
#include "MekBomEngine/Test/Support/SectionTree.h"
#include "MekRoots/Exp/VorMemoryControllerController.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <climits>
#include <stdexcept>
#include <string>
#include <vector>

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

namespace
{
// Writes down everything that it is handed, one line for each call.
class FullLog : public VorBomSectionSink
{
public:
    explicit FullLog(int requests = kTypedValues | kFailedFormulas) : VorBomSectionSink(requests) {}

    void takeHeader(const VorBomReportSection& header) override
    {
        lines.push_back("header " + describe(header) + " row " + nameOf(header.pRow));
    }
    void takeFooter(const VorBomReportSection& footer) override
    {
        std::string line = "footer " + describe(footer) + " rows";
        for (const VorBomDataRow& row : footer.countedRows)
            line += " " + nameOf(&row);
        EXPECT_EQ(nullptr, footer.pRow);
        lines.push_back(line);
    }
    void takeMergedRow(const VorBomDataRow& row) override { lines.push_back("merged " + nameOf(&row)); }
    void takeFailedFormula(const VorBomDataRow& row, const VorString& token, const VorString& message) override
    {
        lines.push_back("failed " + nameOf(&row) + " " + narrow(token) + ": " + narrow(message));
    }
    int takeProgress(int numRowsDone) override
    {
        numRows = numRowsDone;
        return 1;
    }

    std::vector<std::string> lines;
    int numRows = -1;

private:
    static std::string narrow(const VorString& text)
    {
        return std::string(text.getStringW(), text.getStringW() + text.length());
    }
    static std::string nameOf(const VorBomDataRow* pRow)
    {
        return narrow(pRow->getTupleAt(L"%Num")->value().asString());
    }
    static std::string describe(const VorBomReportSection& taken)
    {
        std::string text = std::to_string(taken.level);
        const VorBomDataTupleArray& tuples = taken.section.getData();
        for (int i = 0; i < tuples.length(); ++i)
        {
            text += " [" + narrow(tuples[i].value().asString());
            if (taken.pValues != nullptr && taken.pValues[i].type != VorBomDataValue::kStringData)
                text += " is " + narrow(VorBomDataValue(taken.pValues[i].number).asString()) + " in " +
                        std::to_string(taken.pValues[i].unitType);
            text += "]";
        }
        return text;
    }
};

using Lines = std::vector<std::string>;

Lines linesOf(Report& report, FullLog&& log = FullLog())
{
    report.tmpl().findUsedTokens();
    EXPECT_EQ(1, VorBomEvaluator2::evaluate(&report.tmpl(), log));
    return log.lines;
}

// Does nothing but what a test overrides.
class QuietSink : public VorBomSectionSink
{
public:
    void takeHeader(const VorBomReportSection&) override {}
    void takeFooter(const VorBomReportSection&) override {}

protected:
    explicit QuietSink(int requests = kTextsAlone) : VorBomSectionSink(requests) {}
};

// Stops, or throws, at the given call of takeHeader, takeFooter, takeMergedRow or takeFailedFormula, counted from 1.
class Interrupter : public VorBomSectionSink
{
public:
    explicit Interrupter(int call) : VorBomSectionSink(kTypedValues | kFailedFormulas), m_call(call) {}

    void takeHeader(const VorBomReportSection&) override { count(); }
    void takeFooter(const VorBomReportSection&) override { count(); }
    void takeMergedRow(const VorBomDataRow&) override { count(); }
    void takeFailedFormula(const VorBomDataRow&, const VorString&, const VorString&) override { count(); }

    int numCalls = 0;

private:
    void count()
    {
        if (++numCalls == m_call)
            throw std::runtime_error("enough");
    }

    int m_call;
};

class Stopper : public QuietSink
{
public:
    explicit Stopper(int numRows) : m_numRows(numRows) {}

    void takeHeader(const VorBomReportSection&) override { ++numHeaders; }
    int takeProgress(int numRowsDone) override
    {
        lastProgress = numRowsDone;
        return numRowsDone < m_numRows ? 1 : 0;
    }

    int numHeaders = 0;
    int lastProgress = -1;

private:
    int m_numRows;
};

// Groups by material with a failing formula, merged lines and footers on every level.
void buildEventfulReport(Report& report)
{
    Item* pReport = report.addSection(nullptr, Item::kReportHeader, { { L"%Formula:%Weight/0", L"none" } });
    report.addSection(nullptr, Item::kReportFooter, { { L"%SumBy:%Weight", 0.0 } });
    Item* pGroup = report.addSection(pReport, Item::kGroupHeader,
                                     { { L"%GroupBy:%Material", L"" }, { L"%SortAscBy:%Material", L"" } });
    report.addSection(pReport, Item::kGroupFooter, { { L"%SumBy:%Weight", 0.0 } });
    report.addSection(pGroup, Item::kDetails, { { L"%Weight", 0.0 }, { L"%Formula:%Weight*2", 0.0 } });
    addPart(report, L"P1", L"S355", 4.0);
    addPart(report, L"P2", L"S235", 2.5);
    addPart(report, L"P3", L"S235", 2.5);
    addPart(report, L"P4", L"S235", 1.0);
}
}

TEST(VorBomSectionSinkTest, HeadersNameTheirRowsAndFootersThoseTheyCount)
{
    Report report;
    buildGroupedReport(report);
    addPart(report, L"P1", L"S235", 2.5);
    addPart(report, L"P2", L"S235", 1.0);
    addPart(report, L"P3", L"S355", 4.0);
    static_cast<VorBomDataRow*>(report.data().child())->setUseThisDataForSums(0);

    EXPECT_EQ((Lines{ "header 0 [Weights] row P1", "header 1 [] row P1", "header 2 [P1] [2.5] row P1",
                      "header 2 [P2] [1] row P2", "footer 1 [1] rows P2", "header 1 [] row P3",
                      "header 2 [P3] [4] row P3", "footer 1 [4] rows P3", "footer 0 [5] rows P2 P3" }),
              linesOf(report, FullLog(VorBomSectionSink::kTextsAlone)));
}

TEST(VorBomSectionSinkTest, TypedValuesComeBesideTheTextsWithTheKindTheyAreShownIn)
{
    Report report;
    Item* pReport = report.addSection(nullptr, Item::kReportHeader, { { L"%Length", 0.0 } });
    report.addSection(nullptr, Item::kReportFooter,
                      { { L"%SumBy:%Weight", 0.0 }, { L"%SumBy:%Formula:2*%Length*%Weight", 0.0 } });
    report.addSection(pReport, Item::kDetails,
                      { { L"%Num", L"" }, { L"%Quantity", 0 }, { L"%Formula:2*%Length*%Weight", 0.0 } });
    report.addRow({ { L"%Num", L"P1" }, { L"%Quantity", 3 }, { L"%Weight", 2.5 }, { L"%Length", 100.0 } });
    report.tmpl().getBomTemplateUnits()->AddTokenType(L"%Length", VorBomTemplateUnits::kDistanceUnit);
    report.tmpl().getBomTemplateUnits()->AddTokenType(L"%Weight", VorBomTemplateUnits::kWeightUnit);

    EXPECT_EQ((Lines{ "header 0 [100 is 100 in 1] row P1", "header 1 [P1] [3 is 3 in 0] [500 is 500 in 1] row P1",
                      "footer 0 [2.5 is 2.5 in 2] [500 is 500 in 1] rows P1" }),
              linesOf(report));
}

TEST(VorBomSectionSinkTest, MergedRowsAndFailedFormulasAreToldAsTheyHappen)
{
    Report report;
    buildEventfulReport(report);

    EXPECT_EQ((Lines{ "failed P2 %Formula:%Weight/0: Division by zero", "header 0 [none] row P2",
                      "header 1 [] [] row P2", "header 2 [2.5 is 2.5 in 0] [5 is 5 in 0] row P2", "merged P3",
                      "header 2 [1 is 1 in 0] [2 is 2 in 0] row P4", "footer 1 [3.5 is 3.5 in 0] rows P2 P4",
                      "header 1 [] [] row P1", "header 2 [4 is 4 in 0] [8 is 8 in 0] row P1",
                      "footer 1 [4 is 4 in 0] rows P1", "footer 0 [7.5 is 7.5 in 0] rows P2 P4 P1" }),
              linesOf(report));
}

TEST(VorBomSectionSinkTest, EqualLinesComeEachToASinkThatAsksForThem)
{
    Report report;
    buildEventfulReport(report);

    EXPECT_EQ((Lines{ "header 0 [none] row P2", "header 1 [] [] row P2", "header 2 [2.5] [5] row P2",
                      "header 2 [2.5] [5] row P3", "header 2 [1] [2] row P4", "footer 1 [6] rows P2 P3 P4",
                      "header 1 [] [] row P1", "header 2 [4] [8] row P1", "footer 1 [4] rows P1",
                      "footer 0 [10] rows P2 P3 P4 P1" }),
              linesOf(report, FullLog(VorBomSectionSink::kEqualLines)));
    for (const VorBomItemBase* pRow = report.data().child(); pRow != nullptr; pRow = pRow->next())
        EXPECT_EQ(1, static_cast<const VorBomDataRow*>(pRow)->getUseThisDataForSums());
}

TEST(VorBomSectionSinkTest, FootersTellHowManyRowsHadEachDatum)
{
    class Counts : public QuietSink
    {
    public:
        void takeHeader(const VorBomReportSection& header) override { EXPECT_EQ(nullptr, header.pNumRowsWithDatum); }
        void takeFooter(const VorBomReportSection& footer) override
        {
            for (int i = 0; i < footer.section.getData().length(); ++i)
                numbers.push_back(footer.pNumRowsWithDatum[i]);
        }

        std::vector<int> numbers;
    };
    Report report;
    Item* pGroup = report.addSection(nullptr, Item::kGroupHeader, { { L"%GroupBy:%Material", L"" } });
    report.addSection(nullptr, Item::kGroupFooter,
                      { { L"%SumBy:%Weight", 0.0 }, { L"%Num", L"" }, { L"%SumBy:%Formula:%Weight*2", 0.0 } });
    report.addSection(pGroup, Item::kDetails, { { L"%Num", L"" }, { L"%Formula:%Weight*2", 0.0 } });
    addPart(report, L"P1", L"S235", 2.5);
    addPart(report, L"P1", L"S235", 2.5); // merged
    report.addRow({ { L"%Num", L"P2" }, { L"%Material", L"S235" } });
    report.addRow({ { L"%Material", L"S355" } });
    report.tmpl().findUsedTokens();
    Counts counts;

    VorBomEvaluator2::evaluate(&report.tmpl(), counts);

    EXPECT_EQ((std::vector<int>{ 1, 2, 1, 0, 0, 0 }), counts.numbers);
}

TEST(VorBomSectionSinkTest, RowsThatAHostTookOutStayOutWhenEqualLinesCome)
{
    Report report;
    buildGroupedReport(report);
    addPart(report, L"P1", L"S235", 2.5);
    addPart(report, L"P1", L"S235", 2.5);
    static_cast<VorBomDataRow*>(report.data().child())->setUseThisDataForSums(0);

    EXPECT_EQ((Lines{ "header 0 [Weights] row P1", "header 1 [] row P1", "header 2 [P1] [2.5] row P1",
                      "header 2 [P1] [2.5] row P1", "footer 1 [2.5] rows P1", "footer 0 [2.5] rows P1" }),
              linesOf(report, FullLog(VorBomSectionSink::kEqualLines)));
}

TEST(VorBomSectionSinkTest, EqualLinesWithFootersComeEach)
{
    Report report;
    Item* pReport = report.addSection(nullptr, Item::kReportHeader, {});
    report.addSection(nullptr, Item::kReportFooter, { { L"%SumBy:%Weight", 0.0 } });
    report.addSection(pReport, Item::kDetails, { { L"%Weight", 0.0 } });
    report.addSection(pReport, Item::kGroupFooter, { { L"%SumBy:%Weight", 0.0 } });
    addPart(report, L"P1", L"S235", 2.5);
    addPart(report, L"P2", L"S235", 2.5);

    EXPECT_EQ((Lines{ "header 0 row P1", "header 1 [2.5] row P1", "footer 1 [2.5] rows P1", "header 1 [2.5] row P2",
                      "footer 1 [2.5] rows P2", "footer 0 [5] rows P1 P2" }),
              linesOf(report, FullLog(VorBomSectionSink::kEqualLines)));
}

// The footer of a line is made before it shows that the line is merged.
TEST(VorBomSectionSinkTest, FooterOfAMergedLineCountsItsRow)
{
    Report report;
    Item* pReport = report.addSection(nullptr, Item::kReportHeader, {});
    report.addSection(nullptr, Item::kReportFooter, { { L"%SumBy:%Weight", 0.0 } });
    report.addSection(pReport, Item::kDetails, { { L"%Weight", 0.0 } });
    report.addSection(pReport, Item::kGroupFooter, { { L"%SumBy:%Weight", 0.0 } });
    addPart(report, L"P1", L"S235", 2.5);
    addPart(report, L"P2", L"S235", 2.5);

    EXPECT_EQ((Lines{ "header 0 row P1", "header 1 [2.5] row P1", "footer 1 [2.5] rows P1", "merged P2",
                      "footer 1 [2.5] rows P2", "footer 0 [2.5] rows P1" }),
              linesOf(report, FullLog(VorBomSectionSink::kTextsAlone)));
}

TEST(VorBomSectionSinkTest, FormulasThatAreNoneDoNotFail)
{
    Report report;
    report.addSection(nullptr, Item::kDetails,
                      { { L"%Num", L"" },
                        { L"%Formula:1+2", L"" },
                        { L"%Formula:%Weight", L"" },
                        { L"%Formula:(%Name", L"" },
                        { L"%Formula:%Unknown*2", L"" } });
    addPart(report, L"P1", L"S235", 2.5);

    const Lines lines = linesOf(report);

    ASSERT_EQ(3u, lines.size());
    EXPECT_EQ("failed P1 %Formula:(%Name: Impaired paranthesis", lines[0]);
    EXPECT_EQ("failed P1 %Formula:%Unknown*2: ", lines[1].substr(0, 31));
}

TEST(VorBomSectionSinkTest, ProgressIsToldForEveryRow)
{
    Report report;
    buildEventfulReport(report);
    FullLog log;
    VorBomEvaluator2::evaluate(&report.tmpl(), log);

    EXPECT_EQ(4, log.numRows);
}

TEST(VorBomSectionSinkTest, StoppedEvaluationAnswersNoAndKeepsNothing)
{
    for (int numRows = 0; numRows <= 4; ++numRows)
    {
        Report report;
        buildEventfulReport(report);
        report.tmpl().findUsedTokens();
        Stopper stopper(numRows);

        EXPECT_EQ(0, VorBomEvaluator2::evaluate(&report.tmpl(), stopper));

        EXPECT_EQ(numRows, stopper.lastProgress) << "nothing is called after that";
        EXPECT_EQ(numRows == 0, stopper.numHeaders == 0);
    }
    Report report;
    buildEventfulReport(report);
    Stopper neverReached(5);
    EXPECT_EQ(1, VorBomEvaluator2::evaluate(&report.tmpl(), neverReached));
}

TEST(VorBomSectionSinkTest, StoppingAndThrowingLeakNothing)
{
    const auto interruptAt = [](int call)
    {
        Report report;
        buildEventfulReport(report);
        report.tmpl().findUsedTokens();
        Interrupter interrupter(call);
        try
        {
            VorBomEvaluator2::evaluate(&report.tmpl(), interrupter);
        }
        catch (const std::runtime_error& error)
        {
            EXPECT_STREQ("enough", error.what());
            EXPECT_EQ(call, interrupter.numCalls) << "nothing is called after that";
            return true;
        }
        return false;
    };
    const auto interruptEverywhere = [&interruptAt]
    {
        int numCalls = 0;
        while (interruptAt(numCalls + 1))
            ++numCalls;
        EXPECT_EQ(11, numCalls);
        for (int numRows = 0; numRows <= 4; ++numRows)
        {
            Report report;
            buildEventfulReport(report);
            Stopper stopper(numRows);
            EXPECT_EQ(0, VorBomEvaluator2::evaluate(&report.tmpl(), stopper));
        }
    };
    interruptEverywhere(); // so that what a thread keeps for good is there before blocks are counted
    const LeakCheck leaks;

    interruptEverywhere();
}

TEST(VorBomSectionSinkTest, RowsOfAnInterruptedReportCanBeEvaluatedAgain)
{
    Report report;
    buildEventfulReport(report);
    report.tmpl().findUsedTokens();
    Interrupter interrupter(5);
    EXPECT_THROW(VorBomEvaluator2::evaluate(&report.tmpl(), interrupter), std::runtime_error);

    FullLog log;
    EXPECT_EQ(1, VorBomEvaluator2::evaluate(&report.tmpl(), log));

    EXPECT_EQ("footer 0 [7.5 is 7.5 in 0] rows P2 P4 P1", log.lines.back());
}

TEST(VorBomSectionSinkTest, OtherTemplatesMayBeEvaluatedFromWithinACall)
{
    class Nesting : public QuietSink
    {
    public:
        void takeHeader(const VorBomReportSection&) override { evaluateOthers(); }
        void takeFooter(const VorBomReportSection& footer) override
        {
            evaluateOthers();
            lastFooter = footer.section.getData()[0].value().asString();
        }

        VorString lastFooter;

    private:
        static void evaluateOthers()
        {
            Report inner;
            buildEventfulReport(inner);
            EXPECT_EQ(11u, linesOf(inner).size());
            Report innerTree;
            buildEventfulReport(innerTree);
            EXPECT_EQ(1, innerTree.evaluate());
        }
    };
    Report report;
    buildEventfulReport(report);
    report.tmpl().findUsedTokens();
    Nesting nesting;

    EXPECT_EQ(1, VorBomEvaluator2::evaluate(&report.tmpl(), nesting));
    EXPECT_EQ(VorString(L"7.5"), nesting.lastFooter);
}

// The details' formula lends its text a unit, and the header has a column under that very text.
TEST(VorBomSectionSinkTest, TreeShowsHeadersWhenTheirGroupsClose)
{
    const auto build = [](Report& report)
    {
        Item* pReport = report.addSection(nullptr, Item::kReportHeader, { { L"%Length*2", 7.0 } });
        report.addSection(pReport, Item::kDetails, { { L"%Formula:%Length*2", 0.0 } });
        report.addRow({ { L"%Num", L"P1" }, { L"%Length", 5.0 } });
        report.tmpl().getBomTemplateUnits()->AddTokenType(L"%Length", VorBomTemplateUnits::kReservedUnitType);
    };
    Report tree;
    build(tree);
    Report sections;
    build(sections);

    EXPECT_EQ(VorString(L"[ kReportHeader][%Length*2:]\n [ kDetails     ][%Formula:%Length*2:]"), tree.evaluated());
    EXPECT_EQ((Lines{ "header 0 [7 is 7 in 0] row P1", "header 1 [ is 10 in 7] row P1" }), linesOf(sections));
}

namespace
{
// The typed values of the footer that comes last, and the sections of the template that were named.
class LastFooter : public VorBomSectionSink
{
public:
    LastFooter() : VorBomSectionSink(kTypedValues) {}

    void takeHeader(const VorBomReportSection& header) override { templateSections.push_back(header.pTemplateSection); }
    void takeFooter(const VorBomReportSection& footer) override
    {
        templateSections.push_back(footer.pTemplateSection);
        const int numTuples = footer.section.getData().length();
        values.assign(footer.pValues, footer.pValues + numTuples);
        text = footer.section.getData()[0].value().asString();
    }

    std::vector<const Item*> templateSections;
    std::vector<VorBomTypedValue> values;
    VorString text;
};

// The total of these quantities, ints where they are given so.
VorBomTypedValue totalOf(const std::vector<VorBomDataValue>& quantities, const VorBomDataValue& start = 0)
{
    Report report;
    Item* pReport = report.addSection(nullptr, Item::kReportHeader, {});
    Item* pFooter = report.addSection(nullptr, Item::kReportFooter, {});
    report.addSection(pReport, Item::kGroupHeader, {});
    pFooter->addData(VorBomDataTuple(L"%SumBy:%Quantity", start));
    for (const VorBomDataValue& quantity : quantities)
    {
        auto* pRow = new VorBomDataRow;
        pRow->addData(VorBomDataTuple(L"%Quantity", quantity));
        report.tmpl().getBomData()->addChild(pRow);
    }
    LastFooter last;
    VorBomEvaluator2::evaluate(&report.tmpl(), last);
    return last.values.at(0);
}
}

TEST(VorBomSectionSinkTest, SectionsNameThatOfTheTemplateTheyAreMadeFrom)
{
    Report report;
    Item* pReport = report.addSection(nullptr, Item::kReportHeader, {});
    Item* pFooter = report.addSection(nullptr, Item::kReportFooter, { { L"%SumBy:%Weight", 0.0 } });
    Item* pDetails = report.addSection(pReport, Item::kDetails, { { L"%Num", L"" } });
    addPart(report, L"P1", L"S235", 2.5);
    LastFooter sink;
    VorBomEvaluator2::evaluate(&report.tmpl(), sink);

    EXPECT_EQ((std::vector<const Item*>{ pReport, pDetails, pFooter }), sink.templateSections);
}

// Three billion pieces are no int, and the text shows six digits of them.
TEST(VorBomSectionSinkTest, TotalsOfIntsBeyondTheirRangeHaveAllTheirDigits)
{
    const VorBomTypedValue total = totalOf({ 1'500'000'000, 1'500'000'001, 0 });

    EXPECT_EQ(VorBomDataValue::kDoubleData, total.type);
    EXPECT_TRUE(total.isWhole);
    EXPECT_EQ(3'000'000'001, total.whole);
    EXPECT_EQ(3'000'000'001.0, total.number);
}

TEST(VorBomSectionSinkTest, TotalsOfIntsAreWholeAlsoBackInTheirRange)
{
    const VorBomTypedValue total = totalOf({ INT_MAX, 1, INT_MIN });

    EXPECT_EQ(VorBomDataValue::kDoubleData, total.type) << "once a double, always a double";
    EXPECT_TRUE(total.isWhole);
    EXPECT_EQ(0, total.whole);
}

TEST(VorBomSectionSinkTest, TotalsInTheRangeOfIntsAreWhole)
{
    const VorBomTypedValue total = totalOf({ 2, 3 }, 4);

    EXPECT_EQ(VorBomDataValue::kIntData, total.type);
    EXPECT_TRUE(total.isWhole);
    EXPECT_EQ(9, total.whole);
    EXPECT_EQ(9.0, total.number);
}

TEST(VorBomSectionSinkTest, TotalsWithADoubleInThemAreNotWhole)
{
    EXPECT_FALSE(totalOf({ 2'000'000'000, 2'000'000'000, 1.0 }).isWhole);
    EXPECT_FALSE(totalOf({ 1.0, 2'000'000'000, 2'000'000'000 }).isWhole);
    EXPECT_FALSE(totalOf({ 2'000'000'000, 2'000'000'000 }, 0.0).isWhole) << "the template says: a double";
    EXPECT_FALSE(totalOf({ 2'000'000'000, VorString(L"many"), 2'000'000'000, 2'000'000'000 }).isWhole)
        << "a text has replaced what was added before it";
    EXPECT_TRUE(totalOf({ 2'000'000'000, 2'000'000'000 }, VorString()).isWhole) << "starts from zero of the first int";
}

// The plan of a footer serves one group after the other.
TEST(VorBomSectionSinkTest, WholeTotalsOfOneGroupAreNotThoseOfTheNext)
{
    Report report;
    Item* pGroup = report.addSection(nullptr, Item::kGroupHeader, { { L"%GroupBy:%Material", L"" } });
    report.addSection(nullptr, Item::kGroupFooter, { { L"%SumBy:%Quantity", 0 } });
    report.addSection(pGroup, Item::kGroupHeader, {});
    for (int i = 0; i < 2; ++i)
        report.addRow({ { L"%Material", L"S235" }, { L"%Quantity", 2'000'000'000 } });
    report.addRow({ { L"%Material", L"S355" }, { L"%Quantity", 3 } });
    report.tmpl().findUsedTokens();
    LastFooter last;
    VorBomEvaluator2::evaluate(&report.tmpl(), last);

    EXPECT_TRUE(last.values.at(0).isWhole);
    EXPECT_EQ(3, last.values.at(0).whole);
}
