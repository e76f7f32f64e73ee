#include "ReportColumn.h"

#include <gtest/gtest.h>

namespace mekbom
{
namespace
{
std::string headingOf(const std::string& label, const std::string& unitSymbol, const std::string& kind = "")
{
    ReportColumn column;
    column.pUnitKind = UnitKinds::find(kind);
    column.label = label;
    column.unitSymbol = unitSymbol;
    return column.heading();
}
}

TEST(ReportColumnTest, HeadingsNameTheirUnitOnce)
{
    EXPECT_EQ("Length [mm]", headingOf("Length", "mm"));
    EXPECT_EQ("Length", headingOf("Length", ""));
    EXPECT_EQ("Length [mm]", headingOf("Length [mm]", "mm"));
    EXPECT_EQ("Cost [EUR]", headingOf("Cost [EUR]", "EUR"));
    EXPECT_EQ("Cost [EUR]", headingOf("Cost [EUR]", ""));
    EXPECT_EQ("mm", headingOf("mm", "mm"));
    EXPECT_EQ("mm [ft-in]", headingOf("mm", "ft-in"));
    EXPECT_EQ(" [mm]", headingOf("", "mm"));
}

TEST(ReportColumnTest, HeadingsNameNoUnitButTheOneShown)
{
    EXPECT_EQ("Weight [lb]", headingOf("Weight [kg]", "lb", "weight"));
    EXPECT_EQ("Weight [lb]", headingOf("Weight [pounds]", "lb", "weight"));
    EXPECT_EQ("Weight [lb]", headingOf("Weight [lb]", "lb", "weight"));
    EXPECT_EQ("Cost [EUR] [lb]", headingOf("Cost [EUR]", "lb", "weight"));
    EXPECT_EQ("Length [m] [lb]", headingOf("Length [m]", "lb", "weight"));
    EXPECT_EQ("Weight [net] [lb]", headingOf("Weight [net]", "lb", "weight"));
    EXPECT_EQ("] [lb]", headingOf("]", "lb", "weight"));
}

// "Weight (kg) [lb]" named two.
TEST(ReportColumnTest, UnitsInParenthesesAreThoseShownToo)
{
    EXPECT_EQ("Weight (lb)", headingOf("Weight (kg)", "lb", "weight"));
    EXPECT_EQ("Weight (kg)", headingOf("Weight (kg)", "kg", "weight"));
    EXPECT_EQ("Cost (EUR)", headingOf("Cost (EUR)", "EUR"));
    EXPECT_EQ("Weight (net) [lb]", headingOf("Weight (net)", "lb", "weight"));
    EXPECT_EQ("Length (m) [lb]", headingOf("Length (m)", "lb", "weight"));
}

TEST(ReportColumnTest, BracketsThatAreNoUnitOfTheNumbersAreFoundInTheLabel)
{
    const auto otherBracketsOf = [](const std::string& label, const std::string& unitSymbol, const char* kind)
    {
        ReportColumn column;
        column.pUnitKind = UnitKinds::find(kind);
        column.label = label;
        column.unitSymbol = unitSymbol;
        return column.otherBrackets();
    };

    EXPECT_EQ("EUR", otherBracketsOf("Cost [EUR]", "kg", "weight"));
    EXPECT_EQ("m", otherBracketsOf("Weight [m]", "kg", "weight"));
    EXPECT_EQ("m", otherBracketsOf("Weight (m)", "kg", "weight"));
    EXPECT_EQ("", otherBracketsOf("Weight (t)", "kg", "weight"));
    EXPECT_EQ("", otherBracketsOf("Weight (net)", "kg", "weight"));
    EXPECT_EQ("", otherBracketsOf("Weight [lb]", "kg", "weight"));
    EXPECT_EQ("", otherBracketsOf("Weight", "kg", "weight"));
    EXPECT_EQ("", otherBracketsOf("Cost [EUR]", "EUR", ""));
    EXPECT_EQ("", otherBracketsOf("Cost [EUR]", "", ""));
}
}
