#include "ConstantFactors.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <limits>

namespace mekbom
{
namespace
{
using Units = VorBomTemplateUnits;

FormulaConstant constant(const char* text)
{
    return { std::strtod(text, nullptr), text };
}

// What a quantity times the constant hides.
std::string hidden(const char* text, Units::eTokenUnitType type)
{
    ConstantFactors factors;
    factors.multiplyBy(constant(text));
    return factors.hiddenUnitOf(Dimension::ofType(type));
}
}

TEST(ConstantFactorsTest, ARatioOfUnitsHidesOne)
{
    EXPECT_EQ("the constant 1000 hides a unit of length (1 m = 1000 mm)", hidden("1000", Units::kDistanceUnit));
    EXPECT_EQ("the constant 0.001 hides a unit of length (1 m = 1000 mm)", hidden("0.001", Units::kDistanceUnit));
    EXPECT_EQ("the constant 25.4 hides a unit of length (1 in = 25.4 mm)", hidden("25.4", Units::kDistanceUnit));
    EXPECT_EQ("the constant 1e6 hides a unit of area (1 m2 = 1000000 mm2)", hidden("1e6", Units::kAreaUnit));
    EXPECT_EQ("the constant 0.4536 hides a unit of weight (1 lb = 0.45359237 kg)",
              hidden("0.4536", Units::kWeightUnit));
    EXPECT_EQ("the constant 2.2 hides a unit of weight (1 lb = 0.45359237 kg)", hidden("2.2", Units::kWeightUnit));
    EXPECT_EQ("the constant 1000 hides a unit of weight-per-length (1 kg/m = 0.001 kg/mm)",
              hidden("1000", Units::kWeightPerDistanceUnit));
}

// Files have areas in m2 and weights per length in kg/m, and so have their readers, whatever the model keeps.
TEST(ConstantFactorsTest, RatiosToTheUsualUnitOfFilesHideOneToo)
{
    for (const char* text : { "10.764", "10.8", "0.0929" })
        EXPECT_EQ("the constant " + std::string(text) + " hides a unit of area (1 ft2 = 0.09290304 m2)",
                  hidden(text, Units::kAreaUnit));
    EXPECT_EQ("the constant 0.672 hides a unit of weight-per-length (1 lb/ft = 1.48816394 kg/m)",
              hidden("0.672", Units::kWeightPerDistanceUnit));
    EXPECT_EQ("the constant 3.281 hides a unit of area-per-length (1 ft2/ft = 0.3048 m2/m)",
              hidden("3.281", Units::kAreaPerDistanceUnit));
    EXPECT_EQ("the constant 0.0624 hides a unit of density (1 lb/ft3 = 16.0184634 kg/m3)",
              hidden("0.0624", Units::kDensityUnit));
}

TEST(ConstantFactorsTest, OrdinaryFactorsOfAreasAndWeightsPerLengthHideNothing)
{
    for (const char* text : { "2", "3", "4", "6", "9", "0.5", "1.05", "1.1", "1.5", "0.67", "7.85", "11" })
        for (const auto type : { Units::kAreaUnit, Units::kWeightPerDistanceUnit, Units::kAreaPerDistanceUnit })
            EXPECT_EQ("", hidden(text, type)) << text;
}

TEST(ConstantFactorsTest, TheUnitThatAFactorOrADivisorGivesComesFirst)
{
    const Dimension weight = Dimension::ofType(Units::kWeightUnit);
    ConstantFactors tonnes;
    tonnes.divideBy(constant("1000"));
    ConstantFactors grams;
    grams.multiplyBy(constant("1000"));

    EXPECT_EQ("the constant 1000 hides a unit of weight (1 t = 1000 kg)", tonnes.hiddenUnitOf(weight));
    EXPECT_EQ("the constant 1000 hides a unit of weight (1 g = 0.001 kg)", grams.hiddenUnitOf(weight));
}

TEST(ConstantFactorsTest, OtherConstantsHideNothing)
{
    for (const char* text : { "1", "2", "0.5", "1.05", "3", "12", "25", "30", "110", "7.85", "0", "0.00000785" })
        EXPECT_EQ("", hidden(text, Units::kDistanceUnit)) << text;
    for (const char* text : { "1", "2", "0.5", "1.03", "4", "25.4", "304.8", "0.1" })
        EXPECT_EQ("", hidden(text, Units::kWeightUnit)) << text;
}

TEST(ConstantFactorsTest, ANumberWithoutUnitHidesNone)
{
    EXPECT_EQ("", hidden("1000", Units::kNoUnit));
    EXPECT_EQ("", ConstantFactors().hiddenUnitOf(Dimension::ofType(Units::kWeightUnit)));
}

TEST(ConstantFactorsTest, TheProductOfAllConstantsCountsToo)
{
    const Dimension angle = Dimension::ofType(Units::kAngleUnit);
    ConstantFactors degrees;
    degrees.multiplyBy(constant("180"));
    degrees.divideBy(constant("3.14159"));
    ConstantFactors tonnes;
    tonnes.divideBy(constant("20"));
    ConstantFactors others;
    others.multiplyBy(constant("50"));
    tonnes.divideBy(others);

    EXPECT_NE(std::string::npos, degrees.hiddenUnitOf(angle).find("hides a unit of angle (1 deg = "));
    EXPECT_EQ("the constant 0.001 hides a unit of weight (1 t = 1000 kg)",
              tonnes.hiddenUnitOf(Dimension::ofType(Units::kWeightUnit)));
}

TEST(ConstantFactorsTest, ConstantsThatUndoEachOtherHideNothing)
{
    ConstantFactors factors;
    factors.divideBy(constant("1000"));
    factors.multiplyBy(constant("1000"));

    EXPECT_EQ("", factors.hiddenUnitOf(Dimension::ofType(Units::kDistanceUnit)));
}

TEST(ConstantFactorsTest, NegativeConstantsHideWhatPositiveOnesDo)
{
    ConstantFactors factors;
    factors.multiplyBy(FormulaConstant{ -1000.0, "" });

    EXPECT_NE("", factors.hiddenUnitOf(Dimension::ofType(Units::kDistanceUnit)));
}

TEST(ConstantFactorsTest, InfinityAndNoNumberHideNothing)
{
    for (const double value :
         { 0.0, std::numeric_limits<double>::infinity(), std::numeric_limits<double>::quiet_NaN() })
    {
        ConstantFactors factors;
        factors.divideBy(FormulaConstant{ value, "" });
        factors.divideBy(FormulaConstant{ 2.0, "2" });
        EXPECT_EQ("", factors.hiddenUnitOf(Dimension::ofType(Units::kDistanceUnit))) << value;
    }
}
}
