#include "CellParser.h"

#include "ColumnTypes.h"
#include "TokenKinds.h"
#include "Utf8.h"

#include "Support/FakeSource.h"

#include <gtest/gtest.h>

#include <string>

namespace mekbom
{
namespace
{
// A column of the catalogue's %Length, or another token, in that unit.
InputColumn columnOf(const std::string& token, const std::string& unit)
{
    InputColumn column;
    column.name = token.substr(1);
    column.token = token;
    column.tupleToken = Utf8::toWide(token);
    column.unitSymbol = unit;
    const VorBomTemplateUnits units = TokenKinds().units();
    EXPECT_FALSE(ColumnTypes(units, {}).resolve(column));
    return column;
}

// "2286", "2286, 1 decimal", "2286 of a unit", or why the cell is none.
std::string numberIn(const InputColumn& column, const RecordCell& cell, CellParser parser = CellParser())
{
    CellNumber number;
    if (!parser.readNumber(column, cell, number))
        return messageOf(parser.refusal());
    return numberText(number.value) + (number.numDecimals > 0 ? ", " + std::to_string(number.numDecimals) : "") +
           (number.namesUnit ? " of a unit" : "");
}

std::string wholeIn(const RecordCell& cell, CellParser parser = CellParser())
{
    int value = 0;
    return parser.readWhole(cell, value) ? std::to_string(value) : messageOf(parser.refusal());
}

CellParser commaParser()
{
    CellParser parser;
    parser.setNotation(NumberNotation(NumberNotation::kComma, NumberNotation::kShown, ""));
    return parser;
}
}

TEST(CellParserTest, NumbersAreInTheModelsUnit)
{
    const InputColumn feet = columnOf("%Length", "ft");

    EXPECT_EQ("2286, 1", numberIn(feet, textCell("7.5")));
    EXPECT_EQ("2286, 1", numberIn(feet, RecordCell(7.5)));
    EXPECT_EQ("2286 of a unit", numberIn(feet, textCell("2286 mm")));
    EXPECT_EQ("2286 of a unit", numberIn(columnOf("%Length", "ft-in"), textCell("7'-6\"")));
    EXPECT_EQ("7.5, 1", numberIn(columnOf("%Length", ""), textCell("7.5")));
}

TEST(CellParserTest, WhatIsNoNumberIsRefusedWithAReason)
{
    EXPECT_EQ("found \"n/a\", expected a number", numberIn(columnOf("%Weight", ""), textCell("n/a")));
    EXPECT_EQ("found \"7\", expected feet and inches such as 7'-6 1/2\": every number needs its mark",
              numberIn(columnOf("%Length", "ft-in"), textCell("7")));
    EXPECT_EQ("found \"1e308\", expected a smaller number", numberIn(columnOf("%Length", "ft"), textCell("1e308")));
    EXPECT_EQ("found \"2\", expected a number with its unit: write the heading \"Paint [m2]\", or give --input-unit "
              "%Paint=m2",
              numberIn(columnOf("%Paint", ""), textCell("2")));
    EXPECT_EQ("2000000 of a unit", numberIn(columnOf("%Paint", ""), textCell("2 m2")));
}

// "1 1/2" was once 1.5 mm2 where "1.5" is refused.
TEST(CellParserTest, FractionsTakeTheUnitOfTheirColumnAndLackItAsOtherNumbersDo)
{
    EXPECT_EQ("38.1", numberIn(columnOf("%Length", "in"), textCell("1 1/2")));
    EXPECT_EQ(
        "found \"1 1/2\", expected a number with its unit: write the heading \"Paint [m2]\", or give --input-unit "
        "%Paint=m2",
        numberIn(columnOf("%Paint", ""), textCell("1 1/2")));
}

TEST(CellParserTest, WholeNumbersMayHaveZerosBehindTheirPoint)
{
    EXPECT_EQ("4", wholeIn(textCell("4.0")));
    EXPECT_EQ("4", wholeIn(RecordCell(4.0)));
    EXPECT_EQ("found \"4.5\", expected a whole number", wholeIn(RecordCell(4.5)));
    EXPECT_EQ("found \"3000000000\", expected a whole number from -2147483648 to 2147483647",
              wholeIn(textCell("3000000000")));
}

TEST(CellParserTest, TextsAreReadInTheirNotationAndNumbersAsTheyAre)
{
    const InputColumn weight = columnOf("%Weight", "");

    EXPECT_EQ("1253.5, 1", numberIn(weight, textCell("1.253,5"), commaParser()));
    EXPECT_EQ("1.253, 3", numberIn(weight, RecordCell(1.253), commaParser()));
    EXPECT_EQ("1200", wholeIn(textCell("1.200"), commaParser()));
    EXPECT_EQ("found \"0.5\", which is 0.5 with a decimal point and no number with a decimal comma, expected a decimal "
              "comma: mend the cell, or give --decimal . if all numbers are written so",
              numberIn(weight, textCell("0.5"), commaParser()));
    EXPECT_EQ(
        "\"1,234\" is 1234 with a decimal point and 1.234 with a decimal comma, and nothing tells which is meant: "
        "give --decimal . or --decimal ,",
        numberIn(weight, textCell("1,234")));
}

TEST(CellParserTest, DigitsInGroupsAreWorthANote)
{
    CellParser parser = commaParser();
    int value = 0;

    EXPECT_TRUE(parser.readWhole(textCell("1.200"), value));
    EXPECT_TRUE(parser.hadGroups());
    EXPECT_EQ("\"1.200\" is read as 1200", messageOf(parser.noteOfGroups()));
    EXPECT_TRUE(parser.readWhole(textCell("12"), value));
    EXPECT_FALSE(parser.hadGroups());
}

TEST(CellParserTest, AColumnThatMustHoldNumbersGivesTheirPlainTexts)
{
    InputColumn column;
    column.whyNumbers = "the list computes with it";
    CellParser parser = commaParser();
    std::string_view plain;

    EXPECT_TRUE(parser.readPlainText(column, textCell("1.200,50"), plain));
    EXPECT_EQ("1200.50", plain);
    EXPECT_FALSE(parser.readPlainText(column, textCell("M16"), plain));
    EXPECT_EQ("the list computes with it", parser.refusal().remedy);
}

TEST(CellParserTest, EveryCellHasAText)
{
    CellParser parser;

    EXPECT_EQ("HEA200", parser.textOf(textCell("HEA200")));
    EXPECT_EQ("7.5", parser.textOf(RecordCell(7.5)));
}
}
