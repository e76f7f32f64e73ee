#include "SheetColumn.h"

#include "SheetPen.h"

#include "Support/EvaluatedList.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <optional>
#include <string>

namespace mekbom
{
namespace
{
// The first line of a list of one column, as a sheet has it.
class OneColumn
{
public:
    OneColumn(const std::string& token, const std::string& style, const std::string& partsText,
              const VorUnitsManager& units = VorUnitsManager::metric())
        : m_list(details("{ \"token\": \"" + token + "\" }",
                         "\"columns\": [ { \"token\": \"" + token + "\"" + style + " } ]"),
                 partsText, units),
          m_column(m_list.report().columns().front())
    {
        m_list.report().lines().next(m_line);
    }

    const SheetColumn& column() const { return m_column; }

    // "8.5744 as 0.00", or the text.
    std::string cell() const { return shown(m_column.numberIn(m_line.texts.front(), m_line.values.front())); }
    std::string beside() const { return shown(m_column.numberBeside(m_line.values.front())); }

private:
    std::string shown(const std::optional<SheetNumber>& number) const
    {
        if (!number.has_value())
            return "\"" + std::string(m_line.texts.front().view()) + "\"";
        char text[32];
        std::snprintf(text, sizeof text, "%.15g", number->number);
        return std::string(text) + " as " + number->format();
    }

    EvaluatedList m_list;
    SheetColumn m_column;
    ReportLine m_line;
};

VorUnitsManager inchesInFractions()
{
    VorUnitsManager units = VorUnitsManager::imperial();
    units.setUnit(VorUnitsTransformArray::kDistance, L"in/1/16");
    return units;
}
}

TEST(SheetColumnTest, ANumberHoldsMoreThanItsFormatShows)
{
    const OneColumn weights("%Weight", "", "Weight [kg]\n8.5744\n");

    EXPECT_EQ("Weight [kg]", weights.column().heading());
    EXPECT_EQ("8.5744 as 0.00", weights.cell());
    EXPECT_TRUE(weights.column().isAlignedRight());
    EXPECT_FALSE(weights.column().hasNumbersBeside());
}

TEST(SheetColumnTest, ANumberIsInTheUnitOfItsHeading)
{
    const OneColumn pounds("%Weight", "", "Weight [kg]\n10\n", VorUnitsManager::imperial());
    const OneColumn metres("%Length", ", \"unit\": \"m/2\"", "Length [mm]\n3185\n");
    const OneColumn tonnes("%Weight", ", \"unit\": \"t/1\"", "Weight [kg]\n-26290\n");

    EXPECT_EQ("Weight [lb]", pounds.column().heading());
    EXPECT_EQ("22.0462262184878 as 0", pounds.cell());
    EXPECT_EQ("Length [m]", metres.column().heading());
    EXPECT_EQ("3.185 as 0.00", metres.cell()); // shown as 3.19, as the list has it
    EXPECT_EQ("Weight [t]", tonnes.column().heading());
    EXPECT_EQ("-26.29 as 0.0", tonnes.cell());
}

TEST(SheetColumnTest, ThousandsAreDividedByBlanksOfTheFormat)
{
    EXPECT_EQ("-1234567.5 as #\\ ###\\ ##0.0",
              OneColumn("%Weight", ", \"thousands\": true", "Weight [kg]\n-1234567.5\n").cell());
}

TEST(SheetColumnTest, TextsStayTexts)
{
    for (const std::string text : { "0417", "3-5", "1E5", "12", "-5", "1.50" })
        EXPECT_EQ("\"" + text + "\"", OneColumn("%PNum", "", "PNum\n" + text + "\n").cell());
}

// As numbers, programs would show them with zeros in place of the last digits.
TEST(SheetColumnTest, WhatHasMoreDigitsThanProgramsShowIsText)
{
    EXPECT_EQ("123456789012345 as 0", OneColumn("%Weight", "", "Weight [kg]\n123456789012345\n").cell());
    EXPECT_EQ("\"1.23456789012346e+15\"", OneColumn("%Weight", "", "Weight [kg]\n1234567890123456\n").cell());
    EXPECT_EQ("\"9.00719925474099e+15\"", OneColumn("%Weight", "", "Weight [kg]\n9007199254740993\n").cell());
}

TEST(SheetColumnTest, FeetAndInchesAreTextsWithFeetBeside)
{
    const OneColumn lengths("%Length", "", "Length [in]\n90.0625\n", VorUnitsManager::imperial());

    EXPECT_EQ("Length [ft-in]", lengths.column().heading());
    EXPECT_EQ("\"7' 6 1/16\"\"", lengths.cell());
    EXPECT_TRUE(lengths.column().hasNumbersBeside());
    EXPECT_EQ("Length [ft]", lengths.column().besideHeading());
    EXPECT_EQ("7.50520833333333 as 0.0000", lengths.beside());
}

// Seven inches among fractions would be all that a sum of the column adds up.
TEST(SheetColumnTest, AWholeNumberAmongFractionsIsText)
{
    const OneColumn lengths("%Length", "", "Length [in]\n7\n", inchesInFractions());

    EXPECT_EQ("\"7\"", lengths.cell());
    EXPECT_EQ("Length [in]", lengths.column().heading());
    EXPECT_EQ("Length [in] (decimal)", lengths.column().besideHeading());
    EXPECT_EQ("7 as 0.0000", lengths.beside());
}

TEST(SheetColumnTest, BesideATextThereIsNoNumber)
{
    const OneColumn lengths("%Length", "", "PNum,Length [in]\nP1,\n", VorUnitsManager::imperial());

    EXPECT_EQ("\"\"", lengths.cell());
    EXPECT_EQ("\"\"", lengths.beside());
}

TEST(SheetColumnTest, TheTemplateSaysHowWideATextMayBe)
{
    EXPECT_EQ(12, OneColumn("%Name", ", \"width\": 12", "Name\nHEA200\n").column().textLimit());
    EXPECT_EQ(SheetPen::kUsualLimit, OneColumn("%Name", "", "Name\nHEA200\n").column().textLimit());
}

TEST(SheetColumnTest, TheTemplateSaysWhereATextStands)
{
    EXPECT_FALSE(OneColumn("%Weight", ", \"align\": \"left\"", "Weight [kg]\n1\n").column().isAlignedRight());
    EXPECT_TRUE(OneColumn("%Name", ", \"align\": \"right\"", "Name\nHEA200\n").column().isAlignedRight());
}
}
