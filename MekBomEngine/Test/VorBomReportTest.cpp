#include "MekBomEngine/Src/VorBomReport.h"
#include "MekBomEngine/Test/Support/ReportBuilders.h"

#include <gtest/gtest.h>

#include <random>
#include <stdexcept>
#include <string>
#include <vector>

#if defined(__GLIBC__)
#include <malloc.h>
#endif

namespace
{
using Item = VorBomTemplateItem;
using Strings = std::vector<std::string>;

std::string narrow(const VorString& text)
{
    return std::string(text.getStringW(), text.getStringW() + text.length());
}

void addPart(Report& report, int key, const wchar_t* num, const wchar_t* material, double weight, int quantity = 1)
{
    VorBomDataRow* pRow = report.addRow(
        { { L"%Num", num }, { L"%Material", material }, { L"%Weight", weight }, { L"%Quantity", quantity } });
    pRow->setHostKey(static_cast<std::uint64_t>(key));
}

// Report header, groups by material with totals, a line per row.
void buildGroupedReport(Report& report)
{
    Item* pReport = report.addSection(nullptr, Item::kReportHeader, { { L"Title", L"Weights" } });
    report.addSection(nullptr, Item::kReportFooter, { { L"%SumBy:%Weight", 0.0 }, { L"%SumBy:%Quantity", 0 } });
    Item* pGroup = report.addSection(pReport, Item::kGroupHeader, { { L"%GroupBy:%Material", L"" } });
    report.addSection(pReport, Item::kGroupFooter, { { L"%SumBy:%Weight", 0.0 }, { L"%Material", L"" } });
    report.addSection(pGroup, Item::kDetails, { { L"%Num", L"" }, { L"%Weight", 0.0 } });
    report.tmpl().findUsedTokens();
}

std::string keysOf(const VorBomReport::Rows& rows)
{
    std::string keys;
    int count = 0;
    for (const VorBomDataRow& row : rows)
    {
        keys += (keys.empty() ? "" : " ") + std::to_string(row.hostKey());
        ++count;
    }
    EXPECT_EQ(count, rows.count());
    return keys;
}

// "2 line P1|2.5 rows 1 2"
std::string described(const VorBomReport::Section& section)
{
    std::string text = std::to_string(section.level());
    text += section.isHeader() ? " header " : section.isLine() ? " line " : " footer ";
    for (int tuple = 0; tuple < section.numTuples(); ++tuple)
        text += (tuple == 0 ? "" : "|") + narrow(section.text(tuple));
    return text + " rows " + keysOf(section.rows());
}

template <class Sections>
Strings described(const Sections& sections)
{
    Strings texts;
    for (const VorBomReport::Section section : sections)
        texts.push_back(described(section));
    return texts;
}

// Of materials in groups, with two lines that are merged.
struct KeptReport : Report
{
    KeptReport()
    {
        buildGroupedReport(*this);
        addPart(*this, 1, L"P1", L"S235", 2.5);
        addPart(*this, 2, L"P1", L"S235", 2.5);
        addPart(*this, 3, L"P2", L"S235", 1.0);
        addPart(*this, 4, L"P3", L"S355", 4.0);
    }
    int evaluateInto(VorBomReport& report) { return VorBomEvaluator2::evaluate(&tmpl(), report); }
};
}

TEST(VorBomReportTest, WalkMeetsAllSectionsWithTheirRows)
{
    KeptReport source;
    VorBomReport report;

    EXPECT_EQ(1, source.evaluateInto(report));

    EXPECT_EQ((Strings{ "0 header Weights rows 1 2 3 4", "1 header  rows 1 2 3", "2 line P1|2.5 rows 1 2",
                        "2 line P2|1 rows 3", "1 footer 3.5|S235 rows 1 3", "1 header  rows 4", "2 line P3|4 rows 4",
                        "1 footer 4|S355 rows 4", "0 footer 7.5|3 rows 1 3 4" }),
              described(report));
    EXPECT_EQ(9U, report.numSections());
    EXPECT_EQ(1, report.isComplete());
}

TEST(VorBomReportTest, ChildrenAreTheSectionsOfTheNextLevel)
{
    KeptReport source;
    VorBomReport report;
    source.evaluateInto(report);

    EXPECT_EQ((Strings{ "0 header Weights rows 1 2 3 4", "0 footer 7.5|3 rows 1 3 4" }), described(report.children()));
    const VorBomReport::Section header = report.section(0);
    EXPECT_EQ(
        (Strings{ "1 header  rows 1 2 3", "1 footer 3.5|S235 rows 1 3", "1 header  rows 4", "1 footer 4|S355 rows 4" }),
        described(header.children()));
    EXPECT_EQ((Strings{ "2 line P1|2.5 rows 1 2", "2 line P2|1 rows 3" }), described(report.section(1).children()));
    EXPECT_EQ(Strings(), described(report.section(2).children())) << "a line";
    EXPECT_EQ(Strings(), described(report.section(8).children())) << "a footer";
}

TEST(VorBomReportTest, SectionsNameTheirRowAndTheTemplatesSection)
{
    KeptReport source;
    VorBomReport report;
    source.evaluateInto(report);

    const Item* pHeader = static_cast<const Item*>(source.tmpl().child());
    EXPECT_EQ(pHeader, &report.section(0).templateSection());
    EXPECT_EQ(pHeader->next(), &report.section(8).templateSection());
    EXPECT_EQ(pHeader->child()->child(), &report.section(2).templateSection());
    EXPECT_EQ(1U, report.section(0).row()->hostKey());
    EXPECT_EQ(4U, report.section(5).row()->hostKey());
    EXPECT_EQ(3U, report.section(3).row()->hostKey());
    EXPECT_EQ(nullptr, report.section(8).row());
    EXPECT_EQ(3U, report.section(3).index());
}

TEST(VorBomReportTest, ValuesAreWhatStoodThereBeforeItWasShown)
{
    Report source;
    buildGroupedReport(source);
    source.tmpl().getBomTemplateUnits()->AddTokenType(L"%Weight", VorBomTemplateUnits::kWeightUnit);
    addPart(source, 1, L"P1", L"S235", 12.3456, 1'500'000'000);
    addPart(source, 2, L"P2", L"S235", 1.0, 1'500'000'001);
    VorBomReport report;
    VorBomEvaluator2::evaluate(&source.tmpl(), report);

    const VorBomReport::Section line = report.section(2);
    EXPECT_EQ(VorBomDataValue::kStringData, line.value(0).type);
    EXPECT_EQ(VorBomDataValue::kDoubleData, line.value(1).type);
    EXPECT_EQ(12.3456, line.value(1).number);
    EXPECT_EQ(VorBomTemplateUnits::kWeightUnit, line.value(1).unitType);
    EXPECT_FALSE(line.value(1).isWhole);
    const VorBomReport::Section footer = report.section(report.numSections() - 1);
    EXPECT_EQ(13.3456, footer.value(0).number);
    EXPECT_EQ(VorString(L"3e+09"), footer.text(1));
    EXPECT_TRUE(footer.value(1).isWhole);
    EXPECT_EQ(3'000'000'001, footer.value(1).whole);
    EXPECT_EQ(3'000'000'001.0, footer.value(1).number);
}

TEST(VorBomReportTest, FootersTellHowManyRowsHadADatum)
{
    KeptReport source;
    source.addRow({ { L"%Num", L"P4" }, { L"%Material", L"S355" } });
    VorBomReport report;
    source.evaluateInto(report);

    const VorBomReport::Section footer = report.section(report.numSections() - 1);
    EXPECT_EQ(4, footer.rows().count());
    EXPECT_EQ(3, footer.numRowsWithDatum(0)) << "one has no weight";
    EXPECT_EQ(0, report.section(0).numRowsWithDatum(0)) << "a header counts none";
}

TEST(VorBomReportTest, TuplesThatThereAreNotHaveNothing)
{
    KeptReport source;
    VorBomReport report;
    source.evaluateInto(report);

    for (const VorBomReport::Section section : report)
        for (const int tuple : { -1, section.numTuples() })
        {
            EXPECT_EQ(VorString(), section.text(tuple));
            EXPECT_EQ(VorBomDataValue::kUnknownData, section.value(tuple).type);
            EXPECT_EQ(0, section.numRowsWithDatum(tuple));
        }
}

// Who adds a column to the template for the next list must not see the numbers of the line below in it.
TEST(VorBomReportTest, TuplesThatTheTemplateGotSinceAreNotRead)
{
    KeptReport source;
    VorBomReport report;
    source.evaluateInto(report);
    const Strings before = described(report);
    auto* pDetails = static_cast<Item*>(source.tmpl().child()->child()->child());
    pDetails->addData(VorBomDataTuple(L"%Length", 0.0));

    EXPECT_EQ(2, report.section(2).numTuples());
    EXPECT_EQ(VorString(), report.section(2).text(2));
    EXPECT_EQ(before, described(report));
}

TEST(VorBomReportTest, EqualLinesAreKeptWhereTheyAreAskedFor)
{
    KeptReport source;
    VorBomReport report(VorBomSectionSink::kEqualLines);
    source.evaluateInto(report);

    EXPECT_EQ((Strings{ "2 line P1|2.5 rows 1", "2 line P1|2.5 rows 2", "2 line P2|1 rows 3" }),
              described(report.section(1).children()));
    EXPECT_EQ("0 footer 10|4 rows 1 2 3 4", described(report.section(report.numSections() - 1)));
}

// What counts is what counted: flags change when the rows serve another list.
TEST(VorBomReportTest, RowsCountAsTheyDidWhenTheReportWasMade)
{
    KeptReport source;
    VorBomReport report;
    source.evaluateInto(report);
    for (VorBomItemBase* pRow = source.data().child(); pRow != nullptr; pRow = pRow->next())
        static_cast<VorBomDataRow*>(pRow)->setUseThisDataForSums(1);

    EXPECT_EQ("0 footer 7.5|3 rows 1 3 4", described(report.section(8)));
}

TEST(VorBomReportTest, RowsThatTheHostTookOutAreNotCounted)
{
    KeptReport source;
    static_cast<VorBomDataRow*>(source.data().child())->setUseThisDataForSums(0);
    VorBomReport report;
    source.evaluateInto(report);

    EXPECT_EQ("2 line P1|2.5 rows 1 2", described(report.section(2)));
    EXPECT_EQ("1 footer 1|S235 rows 3", described(report.section(4)));
}

// A line's own footer counts its row before that is merged away.
TEST(VorBomReportTest, FootersOfLinesCountTheRowOfTheirLine)
{
    Report source;
    Item* pReport = source.addSection(nullptr, Item::kReportHeader, {});
    source.addSection(nullptr, Item::kReportFooter, { { L"%SumBy:%Weight", 0.0 } });
    source.addSection(pReport, Item::kDetails, { { L"%Num", L"" } });
    source.addSection(pReport, Item::kGroupFooter, { { L"%Num", L"" } });
    addPart(source, 1, L"P1", L"S235", 2.5);
    addPart(source, 2, L"P1", L"S235", 2.5);
    static_cast<VorBomDataRow*>(source.data().lastChild())->setUseThisDataForSums(0);
    VorBomReport report;
    VorBomEvaluator2::evaluate(&source.tmpl(), report);

    EXPECT_EQ((Strings{ "0 header  rows 1 2", "1 line P1 rows 1 2", "1 footer P1 rows 1", "1 footer  rows ",
                        "0 footer 2.5 rows 1" }),
              described(report));
}

TEST(VorBomReportTest, TemplateOfOneLevelMakesLinesOfIt)
{
    Report source;
    source.addSection(nullptr, Item::kDetails, { { L"%Num", L"" } });
    addPart(source, 1, L"P1", L"S235", 2.5);
    addPart(source, 2, L"P1", L"S235", 2.5);
    VorBomReport report;
    VorBomEvaluator2::evaluate(&source.tmpl(), report);

    EXPECT_EQ((Strings{ "0 line P1 rows 1", "0 line P1 rows 2" }), described(report)) << "never merged";
}

TEST(VorBomReportTest, EachEvaluationBeginsAnew)
{
    KeptReport source;
    Report empty;
    buildGroupedReport(empty);
    Report other;
    other.addSection(nullptr, Item::kDetails, { { L"%Num", L"" } });
    addPart(other, 9, L"P9", L"S235", 2.5);
    VorBomReport report;
    EXPECT_EQ(0, report.isComplete());

    source.evaluateInto(report);
    VorBomEvaluator2::evaluate(&other.tmpl(), report);
    EXPECT_EQ((Strings{ "0 line P9 rows 9" }), described(report));

    VorBomEvaluator2::evaluate(&empty.tmpl(), report);
    EXPECT_EQ(Strings(), described(report));
    EXPECT_EQ(1, report.isComplete()) << "a report of no rows";
}

namespace
{
// Hands everything on, and stops or throws after so many rows.
class Interrupted : public VorBomReport
{
public:
    Interrupted(int numRows, bool throws) : m_numRows(numRows), m_throws(throws) {}
    int takeProgress(int numRowsDone) override
    {
        VorBomReport::takeProgress(numRowsDone);
        if (numRowsDone < m_numRows)
            return 1;
        if (m_throws)
            throw std::runtime_error("enough");
        return 0;
    }

private:
    int m_numRows;
    bool m_throws;
};
}

TEST(VorBomReportTest, StoppedReportHoldsWhatWasCompleteAndSaysSo)
{
    for (const bool throws : { false, true })
    {
        KeptReport source;
        Interrupted report(3, throws);
        if (throws)
            EXPECT_THROW(source.evaluateInto(report), std::runtime_error);
        else
            EXPECT_EQ(0, source.evaluateInto(report));

        EXPECT_EQ(0, report.isComplete());
        EXPECT_EQ((Strings{ "0 header Weights rows 1 2 3", "1 header  rows 1 2 3", "2 line P1|2.5 rows 1 2",
                            "2 line P2|1 rows 3" }),
                  described(report));
        EXPECT_EQ(1U, described(report.children()).size());
    }
}

namespace
{
// Writes down what each section is when it is handed over, and what is merged into which.
class Witness : public VorBomReport
{
public:
    void takeHeader(const VorBomReportSection& header) override
    {
        VorBomReport::takeHeader(header);
        add(header, " row " + std::to_string(header.pRow->hostKey()));
    }
    void takeFooter(const VorBomReportSection& footer) override
    {
        VorBomReport::takeFooter(footer);
        std::string rows;
        for (const VorBomDataRow& row : footer.countedRows)
            rows += " " + std::to_string(row.hostKey());
        add(footer, " counts" + rows);
    }

    Strings sections;

private:
    void add(const VorBomReportSection& taken, const std::string& rows)
    {
        std::string text = std::to_string(taken.level);
        const VorBomDataTupleArray& tuples = taken.section.getData();
        for (int i = 0; i < tuples.length(); ++i)
            text += "|" + narrow(tuples[i].value().asString()) + "=" + std::to_string(taken.pValues[i].number) +
                    (taken.pNumRowsWithDatum == nullptr ? "" : "/" + std::to_string(taken.pNumRowsWithDatum[i]));
        sections.push_back(text + rows);
    }
};

Strings readBack(const VorBomReport& report)
{
    Strings sections;
    for (const VorBomReport::Section section : report)
    {
        std::string text = std::to_string(section.level());
        for (int i = 0; i < section.numTuples(); ++i)
            text += "|" + narrow(section.text(i)) + "=" + std::to_string(section.value(i).number) +
                    (section.isFooter() ? "/" + std::to_string(section.numRowsWithDatum(i)) : "");
        if (!section.isFooter())
            text += " row " + std::to_string(section.row()->hostKey());
        else
        {
            text += " counts";
            for (const VorBomDataRow& row : section.rows())
                text += " " + std::to_string(row.hostKey());
        }
        sections.push_back(text);
    }
    return sections;
}

// Every section once, by way of children.
void addChildren(const VorBomReport::Sections& sections, std::vector<std::size_t>& indices)
{
    for (const VorBomReport::Section section : sections)
    {
        indices.push_back(section.index());
        addChildren(section.children(), indices);
    }
}
}

// Levels with and without footers, groups, merged lines, rows that do not count and missing data.
TEST(VorBomReportTest, RandomReportsReadAsTheyWereHandedOver)
{
    std::mt19937 random(4711);
    const auto below = [&random](unsigned limit) { return static_cast<int>(random() % limit); };
    const wchar_t* const tokens[] = { L"%Num", L"%Material", L"%Weight" };
    const wchar_t* const groupings[] = { L"%GroupBy:%Num", L"%GroupBy:%Material", L"%GroupBy:%Weight", L"none" };
    for (int round = 0; round < 300; ++round)
    {
        Report source;
        Item* pParent = nullptr;
        for (int levels = 1 + below(4); levels > 0; --levels)
        {
            Item* pHeader = source.addSection(pParent, levels == 1 ? Item::kDetails : Item::kGroupHeader,
                                              { { groupings[below(4)], L"" }, { tokens[below(3)], L"" } });
            if (below(2) == 0)
                source.addSection(pParent, Item::kGroupFooter,
                                  { { L"%SumBy:%Weight", 0.0 }, { L"%SumBy:%Quantity", 0 } });
            pParent = pHeader;
        }
        for (int key = below(12); key > 0; --key)
        {
            addPart(source, key, std::to_wstring(below(3)).c_str(), below(2) == 0 ? L"S235" : L"S355", below(3));
            if (below(5) == 0)
                static_cast<VorBomDataRow*>(source.data().lastChild())->setUseThisDataForSums(0);
        }
        source.tmpl().findUsedTokens();
        Witness report;
        VorBomEvaluator2::evaluate(&source.tmpl(), report);

        EXPECT_EQ(report.sections, readBack(report)) << "round " << round;
        std::vector<std::size_t> met;
        addChildren(report.children(), met);
        ASSERT_EQ(report.numSections(), met.size());
        for (std::size_t i = 0; i < met.size(); ++i)
            EXPECT_EQ(i, met[i]);
    }
}

TEST(VorBomReportTest, HundredThousandLevelsAreSurvived)
{
    Report source;
    Item* pParent = nullptr;
    for (int i = 0; i < 100'000; ++i)
        pParent = source.addSection(pParent, Item::kGroupHeader, {});
    addPart(source, 1, L"P1", L"S235", 2.5);
    addPart(source, 2, L"P2", L"S235", 2.5);
    VorBomReport report;

    EXPECT_EQ(1, VorBomEvaluator2::evaluate(&source.tmpl(), report));
    EXPECT_EQ(100'001U, report.numSections());
    EXPECT_EQ(2, report.section(0).rows().count());
}

#if defined(__GLIBC__)
namespace
{
std::size_t bytesInUse()
{
    const struct mallinfo2 info = mallinfo2();
    return info.uordblks + info.hblkhd;
}

// Of a report of lines with a number of their own, a text that all share and a weight of which there are many equal.
double bytesPerLine(int numLines)
{
    Report source;
    Item* pReport = source.addSection(nullptr, Item::kReportHeader, {});
    source.addSection(pReport, Item::kDetails, { { L"%Num", L"" }, { L"%Material", L"" }, { L"%Weight", 0.0 } });
    for (int i = 0; i < numLines; ++i)
        addPart(source, i, std::to_wstring(i).c_str(), L"S235", i % 100);
    VorBomReport report;
    const std::size_t before = bytesInUse();
    VorBomEvaluator2::evaluate(&source.tmpl(), report);
    EXPECT_EQ(static_cast<std::size_t>(numLines) + 1, report.numSections());
    return static_cast<double>(bytesInUse() - before) / numLines;
}
}

TEST(VorBomReportTest, MemoryGrowsWithTheLinesAndNoFaster)
{
    if (bytesInUse() == 0)
        GTEST_SKIP() << "memory is not counted here";
    const double ofMany = bytesPerLine(200'000);

    EXPECT_LT(ofMany, 160.0);
    EXPECT_LT(ofMany, 1.1 * bytesPerLine(20'000));
    RecordProperty("bytesPerLine", std::to_string(ofMany));
}
#endif
