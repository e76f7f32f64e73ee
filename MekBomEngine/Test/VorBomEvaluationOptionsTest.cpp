#include "MekBomEngine/Src/VorBomEvaluationOptions.h"
#include "MekBomEngine/Src/VorBomDiagnostics.h"
#include "MekBomEngine/Src/VorBomProgress.h"
#include "MekBomEngine/Src/VorBomReport.h"
#include "MekBomEngine/Test/Support/ReportBuilders.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>
#include <vector>

namespace
{
using Item = VorBomTemplateItem;
using Options = VorBomEvaluationOptions;

// Groups by material, a line per row, totals at the end; two rows read alike.
struct Parts : Report
{
    Parts()
    {
        Item* pGroup = addSection(nullptr, Item::kGroupHeader, { { L"%GroupBy:%Material", L"" } });
        addSection(nullptr, Item::kGroupFooter, { { L"%SumBy:%Weight", 0.0 } });
        addSection(pGroup, Item::kDetails, { { L"%Num", L"" }, { L"%Weight", 0.0 } });
        add(L"P1", L"S235", 2.5);
        add(L"P1", L"S235", 2.5);
        add(L"P2", L"S235", 4.0);
        add(L"P3", L"S355", 1.0);
        tmpl().findUsedTokens();
    }
    void add(const wchar_t* num, const wchar_t* material, double weight)
    {
        addRow({ { L"%Num", num }, { L"%Material", material }, { L"%Weight", weight } });
    }
    using Report::evaluate;
    int evaluate(const Options& options) { return VorBomEvaluator2::evaluate(&tmpl(), &result(), options); }
};

std::wstring wide(const VorString& text)
{
    return std::wstring(text.getStringW(), static_cast<std::size_t>(text.length()));
}

std::wstring textWith(Options::eEqualLines equalLines)
{
    Parts parts;
    Options options;
    options.equalLines = equalLines;
    EXPECT_EQ(1, parts.evaluate(options));
    return wide(parts.resultText());
}

class Progress : public VorBomProgress
{
public:
    explicit Progress(int numRowsUntilStop, bool throws = false) : m_numRows(numRowsUntilStop), m_throws(throws) {}

    int takeProgress(int numRowsDone) override
    {
        calls.push_back(numRowsDone);
        if (numRowsDone < m_numRows)
            return 1;
        if (m_throws)
            throw std::runtime_error("enough");
        return 0;
    }

    std::vector<int> calls;

private:
    int m_numRows;
    bool m_throws;
};

const int kNever = 1000;
}

TEST(VorBomEvaluationOptionsTest, AsTheyAreMadeTheyChangeNothing)
{
    Parts plain;
    plain.evaluate();

    EXPECT_EQ(wide(plain.resultText()), textWith(Options().equalLines));
}

TEST(VorBomEvaluationOptionsTest, EqualLinesAreMergedCountedOrKept)
{
    const std::wstring rest = L"[ kGroupHeader ][%GroupBy:%Material:]\n"
                              L" [ kDetails     ][%Num:P3][%Weight:1]\n"
                              L"[ kGroupFooter ][%SumBy:%Weight:1]";
    const std::wstring header = L"[ kGroupHeader ][%GroupBy:%Material:]\n";
    const std::wstring first = L" [ kDetails     ][%Num:P1][%Weight:2.5]\n";
    const std::wstring second = L" [ kDetails     ][%Num:P2][%Weight:4]\n";

    EXPECT_EQ(header + first + second + L"[ kGroupFooter ][%SumBy:%Weight:6.5]\n" + rest,
              textWith(Options::kMergeEqualLines));
    EXPECT_EQ(header + first + second + L"[ kGroupFooter ][%SumBy:%Weight:9]\n" + rest,
              textWith(Options::kMergeAndCountEqualLines));
    EXPECT_EQ(header + first + first + second + L"[ kGroupFooter ][%SumBy:%Weight:9]\n" + rest,
              textWith(Options::kKeepEqualLines));
}

TEST(VorBomEvaluationOptionsTest, RowsAreMarkedOnlyWhereTheyDoNotCount)
{
    for (const auto equalLines :
         { Options::kMergeEqualLines, Options::kMergeAndCountEqualLines, Options::kKeepEqualLines })
    {
        Parts parts;
        Options options;
        options.equalLines = equalLines;
        parts.evaluate(options);
        const auto* pSecond = static_cast<const VorBomDataRow*>(parts.data().child()->next());
        EXPECT_EQ(equalLines == Options::kMergeEqualLines ? 0 : 1, pSecond->getUseThisDataForSums());
    }
}

// A report that is kept tells the rows of a line and those that count apart in each of the ways.
TEST(VorBomEvaluationOptionsTest, KeptReportKnowsWhichRowsCount)
{
    for (const auto equalLines :
         { Options::kMergeEqualLines, Options::kMergeAndCountEqualLines, Options::kKeepEqualLines })
    {
        Parts parts;
        Options options;
        options.equalLines = equalLines;
        VorBomReport report;
        EXPECT_EQ(1, VorBomEvaluator2::evaluate(&parts.tmpl(), report, options));

        const VorBomReport::Section line = report.section(1);
        EXPECT_EQ(equalLines == Options::kKeepEqualLines ? 1 : 2, line.rows().count());
        const VorBomReport::Section footer = report.section(equalLines == Options::kKeepEqualLines ? 4 : 3);
        ASSERT_TRUE(footer.isFooter());
        EXPECT_EQ(equalLines == Options::kMergeEqualLines ? 2 : 3, footer.rows().count());
        EXPECT_EQ(footer.rows().count(), footer.numRowsWithDatum(0));
    }
}

TEST(VorBomEvaluationOptionsTest, SinkThatAsksForEqualLinesGetsThem)
{
    Parts parts;
    Options options;
    options.equalLines = Options::kMergeAndCountEqualLines;
    VorBomReport report(VorBomSectionSink::kEqualLines);
    VorBomEvaluator2::evaluate(&parts.tmpl(), report, options);

    EXPECT_EQ(8U, report.numSections()) << "four lines";
}

TEST(VorBomEvaluationOptionsTest, ProgressComesForEveryRowOfATree)
{
    Parts parts;
    Progress progress(kNever);
    Options options;
    options.pProgress = &progress;

    EXPECT_EQ(1, parts.evaluate(options));
    EXPECT_EQ((std::vector<int>{ 0, 1, 2, 3, 4 }), progress.calls);
    EXPECT_NE(nullptr, parts.result().child());
    EXPECT_EQ(parts.result().lastChild(), parts.result().child()->next()->next()->next());
}

TEST(VorBomEvaluationOptionsTest, StoppedTreeAppendsNothing)
{
    for (const bool throws : { false, true })
        for (int numRows = 0; numRows <= 4; ++numRows)
        {
            Parts parts;
            auto* pBefore = new Item(Item::kDetails);
            parts.result().addChild(pBefore);
            Progress progress(numRows, throws);
            Options options;
            options.pProgress = &progress;
            const LeakCheck leaks;
            {
                if (throws)
                    EXPECT_THROW(parts.evaluate(options), std::runtime_error);
                else
                    EXPECT_EQ(0, parts.evaluate(options));
                EXPECT_EQ(pBefore, parts.result().child());
                EXPECT_EQ(nullptr, pBefore->next());
            }
        }
}

TEST(VorBomEvaluationOptionsTest, SectionsAreAppendedBehindThoseThatAreThere)
{
    Parts parts;
    auto* pBefore = new Item(Item::kDetails);
    parts.result().addChild(pBefore);
    Progress progress(kNever);
    Options options;
    options.pProgress = &progress;
    parts.evaluate(options);
    auto* pBehind = new Item(Item::kDetails);
    parts.result().addChild(pBehind);

    int numSections = 0;
    for (const VorBomItemBase* pItem = parts.result().child(); pItem != nullptr; pItem = pItem->next())
        ++numSections;
    EXPECT_EQ(6, numSections);
    EXPECT_EQ(pBefore, parts.result().child());
    EXPECT_EQ(pBehind, parts.result().lastChild());
}

TEST(VorBomEvaluationOptionsTest, SinkAndObserverBothHearOfProgress)
{
    Parts parts;
    Progress progress(2);
    Options options;
    options.pProgress = &progress;
    VorBomReport report;

    EXPECT_EQ(0, VorBomEvaluator2::evaluate(&parts.tmpl(), report, options));
    EXPECT_EQ(0, report.isComplete());
    EXPECT_EQ((std::vector<int>{ 0, 1, 2 }), progress.calls);
}

TEST(VorBomEvaluationOptionsTest, ResultsThatAreNoneAreReportedAsEver)
{
    Parts parts;
    const AssertLog log;

    EXPECT_EQ(1, VorBomEvaluator2::evaluate(&parts.tmpl(), nullptr, Options()));
    EXPECT_TRUE(log.count(L"NULL != completedGroup.m_pCollector", L"MekBomEngine/Src/VorBomEvaluator2") > 0);
    EXPECT_EQ(0, VorBomEvaluator2::evaluate(nullptr, &parts.result(), Options()));
    Report empty;
    EXPECT_EQ(0, VorBomEvaluator2::evaluate(&empty.tmpl(), &parts.result(), Options()));
}
