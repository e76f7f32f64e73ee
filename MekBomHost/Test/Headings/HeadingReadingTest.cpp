#include "HeadingReading.h"

#include <gtest/gtest.h>

#include <string>

namespace mekbom
{
namespace
{
// "%Weight [kg]", "%PNum|%Num"; of a column of one's own "-".
std::string readingOf(const char* pField)
{
    const TokenKinds kinds;
    const HeadingReading reading = HeadingReading::of(pField, kinds);
    std::string text;
    for (const std::string& token : reading.tokens)
        text += (text.empty() ? "" : "|") + token;
    return text.empty() ? "-" : text + (reading.unit.empty() ? "" : " [" + reading.unit + "]");
}

struct FieldCase
{
    const char* field;
    const char* reading;
};

const FieldCase kFields[] = {
    { "Gewicht", "%Weight" },
    { "Gewicht [kg]", "%Weight [kg]" },
    { "Gewicht (kg)", "%Weight [kg]" },
    { "Gewicht kg", "%Weight [kg]" },
    { "Gewicht/kg", "%Weight [kg]" },
    { "Gewicht / KG", "%Weight [kg]" },
    { "Gewicht, kg", "%Weight [kg]" },
    { "weight_kg", "%Weight [kg]" },
    { "Length in mm", "%Length [mm]" },
    { "Longueur en mm", "%Length [mm]" },
    { "L\u00E4nge\n(mm)", "%Length [mm]" },
    { "Weight (short ton)", "%Weight [short ton]" },
    { "Weight short ton", "%Weight [short ton]" },

    // The unit tells which weight it is.
    { "Gewicht [kg/m]", "%WeightMeter [kg/m]" },
    { "Gewicht kg/m", "%WeightMeter [kg/m]" },
    { "kg/m", "%WeightMeter [kg/m]" },
    { "kg", "%Weight [kg]" },
    { "Weight kg/pc", "%Weight [kg]" },
    { "Unit weight", "%Weight|%WeightMeter" },
    { "Unit weight [kg]", "%Weight [kg]" },
    { "Unit weight (kg/m)", "%WeightMeter [kg/m]" },
    { "Oberfl\u00E4che", "%Paint|%Coating" },
    { "Oberfl\u00E4che [m\u00B2]", "%Paint [m\u00B2]" },
    { "Surface (m2/m)", "%%PaintMeter [m2/m]" },

    // Of all pieces, wherever it says so. What says both is nothing that the table knows.
    { "Total weight (kg)", "%Weight [kg]" },
    { "Weight (kg) total", "%Weight [kg]" },
    { "Total kg", "%Weight [kg]" },
    { "Total weight (kg/pc)", "-" },

    // A word for pieces is the unit of pieces alone.
    { "Anzahl [Stk]", "%Quantity" },
    { "Qty (pcs)", "%Quantity" },
    { "Length (pcs)", "-" },

    // What is no unit, or one of something else, is a part of the name; in brackets it has to be a unit.
    { "Weight (net)", "-" },
    { "Weight (each)", "%Weight" },
    { "Weight mm", "-" },
    { "Menge (kg)", "-" },
    { "Weight [net]", "%Weight [net]" },
    { "Length [kg]", "%Length [kg]" },
    { "Profile mm", "-" },

    // Tokens.
    { "%Gewicht", "-" },
    { "%Weight", "-" },
    { "UserAttr1", "%UserAttr1" },
    { "Handle", "%Handle" },
    { "", "-" },
    { "[kg]", "-" },
    { "Cost code", "-" },
};
}

TEST(HeadingReadingTest, HeadingsAreReadWithTheirUnits)
{
    for (const FieldCase& test : kFields)
        EXPECT_EQ(test.reading, readingOf(test.field)) << test.field;
}

TEST(HeadingReadingTest, TheLabelIsTheHeadingWithoutTheUnit)
{
    const TokenKinds kinds;
    const auto labelOf = [&kinds](const char* pField) { return HeadingReading::of(pField, kinds).label; };

    EXPECT_EQ("Gewicht", labelOf("Gewicht [kg]"));
    EXPECT_EQ("Length", labelOf("Length in mm"));
    EXPECT_EQ("Weight (each)", labelOf("Weight (each)"));
    EXPECT_EQ("Weight total", labelOf("Weight (kg) total"));
    EXPECT_EQ("Load", labelOf("Load [kg]"));
}

TEST(HeadingReadingTest, AUnitIsFoundForATokenThatTheHeadingDoesNotName)
{
    const TokenKinds kinds;

    EXPECT_EQ("kg", HeadingReading::unitIn("Masse brutto (kg)", "%Weight", kinds));
    EXPECT_EQ("kg", HeadingReading::unitIn("Brutto kg", "%Weight", kinds));
    EXPECT_EQ("", HeadingReading::unitIn("Brutto kg", "%UserAttr1", kinds));
    EXPECT_EQ("EUR", HeadingReading::unitIn("Brutto [EUR]", "%Weight", kinds)); // refused when it is wanted
}

TEST(HeadingReadingTest, AHeadingIsCalledAsItIsWrittenWithItsUnitOrWithout)
{
    for (const char* const heading : { "Brutto", "Brutto (kg)" })
        EXPECT_TRUE(HeadingReading::isCalled("Brutto (kg)", heading)) << heading;
    EXPECT_TRUE(HeadingReading::isCalled("Brutto [EUR]", "Brutto"));
    EXPECT_TRUE(HeadingReading::isCalled("%Brutto", "Brutto"));
    EXPECT_FALSE(HeadingReading::isCalled("Brutto (EUR)", "Brutto"));
    EXPECT_FALSE(HeadingReading::isCalled("Brutto", "brutto"));
}

TEST(HeadingReadingTest, AHeadingOfAnyLengthIsRead)
{
    EXPECT_EQ("-", readingOf(std::string(1000000, ' ').append("x").c_str()));
    EXPECT_EQ("-", readingOf(std::string(1000000, '(').c_str()));
}
}
