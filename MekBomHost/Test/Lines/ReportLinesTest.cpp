#include "ReportLines.h"

#include "Support/EvaluatedParts.h"

#include <gtest/gtest.h>

#include <string>

namespace mekbom
{
namespace
{
const std::vector<Part> kThree = { { L"HEA200", L"S355", 10.5 },
                                   { L"IPE360", L"S235", 2 },
                                   { L"IPE450", L"S355", 100 } };

// "1 header: S235||", the texts each with a bar after it.
std::string describe(const ReportLine& line)
{
    std::string text = std::to_string(line.place.level) + (line.place.hasHeader ? " header" : "") +
                       (line.place.hasFooter ? " footer:" : ":");
    if (!line.label.empty())
        text += " " + std::string(line.label) + " in " + std::to_string(line.labelColumn) + ":";
    for (const ShownText& shown : line.texts)
        text += " " + std::string(shown.view()) + "|";
    return text + "\n";
}

std::string describe(ReportLines lines)
{
    std::string text;
    ReportLine line;
    while (lines.next(line))
        text += describe(line);
    return text;
}

std::size_t numRows(ReportLines lines, bool ofHeaders)
{
    std::size_t count = 0;
    ReportLine line;
    while (lines.next(line))
        count += ofHeaders ? line.headerRows.size() : line.footerRows.size();
    return count;
}
}

TEST(ReportLinesTest, EachPrintedSectionHasItsLine)
{
    const EvaluatedParts parts(kPartsByMaterial, kThree);

    EXPECT_EQ("1 header: S235| | |\n"
              "2 header: | IPE360| 2|\n"
              "1 footer: | | 2|\n"
              "1 header: S355| | |\n"
              "2 header: | HEA200| 10.5|\n"
              "2 header: | IPE450| 100|\n"
              "1 footer: | | 110.5|\n"
              "0 footer: Total in 0: | | 112.5|\n",
              describe(parts.report().lines()));
}

TEST(ReportLinesTest, LinesCanBeReadAgain)
{
    const EvaluatedParts parts(kPartsByMaterial, kThree);

    const std::string once = describe(parts.report().lines());

    EXPECT_EQ(once, describe(parts.report().lines()));
}

TEST(ReportLinesTest, HeaderAndFooterShareALineWhenNothingStandsBetween)
{
    const EvaluatedParts parts(kMaterials, kThree);

    EXPECT_EQ("1 header footer: S235| 2|\n"
              "1 header footer: S355| 110.5|\n"
              "0 footer: | 112.5|\n",
              describe(parts.report().lines()));
}

TEST(ReportLinesTest, AReportWithoutRowsHasNoLines)
{
    const EvaluatedParts parts(kPartsByMaterial, {});
    ReportLines lines = parts.report().lines();
    ReportLine line;

    EXPECT_FALSE(lines.next(line));
    EXPECT_FALSE(lines.next(line));
}

TEST(ReportLinesTest, NothingButTextsIsThereUnlessItIsAskedFor)
{
    const EvaluatedParts parts(kPartsByMaterial, kThree);
    ReportLines lines = parts.report().lines();
    ReportLine line;

    while (lines.next(line))
        EXPECT_TRUE(line.values.empty() && line.headerRows.size() == 0 && line.footerRows.size() == 0);
}

TEST(ReportLinesTest, ValuesAreWhatTheTextsShow)
{
    const EvaluatedParts parts(kMaterials, kThree, { true, false }, VorUnitsManager::imperial());
    ReportLines lines = parts.report().lines();
    ReportLine line;
    ASSERT_TRUE(lines.next(line));

    ASSERT_EQ(line.texts.size(), line.values.size());
    EXPECT_EQ("S235", line.texts[0].view());
    EXPECT_EQ(VorBomDataValue::kStringData, line.values[0].type);
    EXPECT_NE("2", line.texts[1].view()) << "shown in pounds";
    EXPECT_EQ(VorBomDataValue::kDoubleData, line.values[1].type);
    EXPECT_EQ(VorBomTemplateUnits::kWeightUnit, line.values[1].unitType);
    EXPECT_EQ(2.0, line.values[1].number) << "in kilograms";
}

TEST(ReportLinesTest, ColumnsThatALineDoesNotShowHaveNoValue)
{
    const EvaluatedParts parts(kPartsByMaterial, kThree, { true, false });
    ReportLines lines = parts.report().lines();
    ReportLine line;
    ASSERT_TRUE(lines.next(line)); // the group's header
    ASSERT_TRUE(lines.next(line)); // details, in the same ReportLine

    EXPECT_EQ(VorBomDataValue::kUnknownData, line.values[0].type);
    EXPECT_EQ(VorBomDataValue::kStringData, line.values[1].type);
    EXPECT_EQ(2.0, line.values[2].number);
}

TEST(ReportLinesTest, LinesKnowTheirRows)
{
    const std::vector<Part> twins = { { L"A", L"S235", 1 }, { L"A", L"S235", 1 }, { L"B", L"S235", 1 } };
    const EvaluatedParts parts(kPartsByMaterial, twins, { false, true });
    ReportLines lines = parts.report().lines();
    ReportLine line;

    ASSERT_TRUE(lines.next(line));
    EXPECT_EQ(1U, line.headerRows.size()) << "the row that opened the group";
    ASSERT_TRUE(lines.next(line));
    EXPECT_EQ("A", line.texts[1].view());
    EXPECT_EQ(2U, line.headerRows.size()) << "its own and the one merged into it";
    ASSERT_TRUE(lines.next(line));
    EXPECT_EQ("B", line.texts[1].view());
    EXPECT_EQ(1U, line.headerRows.size());
    ASSERT_TRUE(lines.next(line));
    EXPECT_EQ(2U, line.footerRows.size()) << "the merged one does not count";
    EXPECT_EQ(4U, numRows(parts.report().lines(), true));
    EXPECT_EQ(4U, numRows(parts.report().lines(), false));
}
}
