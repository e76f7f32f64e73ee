#include "MekUnits/Src/VorUnitNotation.h"

#include "IndependentFactors.h"

#include "MekRoots/Test/Support/TestSupport.h"

namespace
{
const int kMillimetre = 3;
const int kInches = 10;
const int kFeetAndInches = 13;
const int kPounds = 1021;
const int kPoundPerFoot = 4011;

// "unit format", or "-".
std::string readAs(const wchar_t* text)
{
    MEKUnit unit(kMillimetre, kMillimetre, 5);
    if (VorUnitNotation::read(text, unit) == 0)
        return unit.unit() == kMillimetre && unit.format() == 5 ? "-" : "changed";
    EXPECT_EQ(unit.unit(), unit.inputUnit());
    return std::to_string(unit.unit()) + " " + std::to_string(unit.format());
}

TEST(VorUnitNotationTest, APrecisionIsDecimalsOrInFeetAndInchesADenominator)
{
    EXPECT_EQ("1021 1", readAs(L"lb/1"));
    EXPECT_EQ("3 0", readAs(L"mm/0"));
    EXPECT_EQ("3011 9", readAs(L"ft2/9"));
    EXPECT_EQ("3011 2", readAs(L"ft\u00B2/2"));
    EXPECT_EQ("4011 2", readAs(L"lb/ft/2"));
    EXPECT_EQ("4011 2", readAs(L"plf/2"));
    EXPECT_EQ("13 1016", readAs(L"ft-in/16"));
    EXPECT_EQ("13 1001", readAs(L"ft-in/1"));
    EXPECT_EQ("13 1256", readAs(L"ft-in/256"));
    EXPECT_EQ("2008 1", readAs(L"dms/1"));
}

TEST(VorUnitNotationTest, PointsAskForDecimalsAndOnesForFractions)
{
    EXPECT_EQ("13 2", readAs(L"ft-in/.2"));
    EXPECT_EQ("13 0", readAs(L"ft-in/.0"));
    EXPECT_EQ("3 2", readAs(L"mm/.2"));
    EXPECT_EQ("10 1016", readAs(L"in/1/16"));
    EXPECT_EQ("4011 1004", readAs(L"lb/ft/1/4"));
    EXPECT_EQ("13 1032", readAs(L"ft-in/1/32"));
}

TEST(VorUnitNotationTest, WithoutAPrecisionItIsTheUnitsOwn)
{
    EXPECT_EQ("3 1", readAs(L"mm"));
    EXPECT_EQ("13 1016", readAs(L"ft-in"));
    EXPECT_EQ("4011 2", readAs(L"lb/ft"));
    EXPECT_EQ("3003 2", readAs(L"m2"));
    EXPECT_EQ("11 2", readAs(L"feet"));
}

TEST(VorUnitNotationTest, OtherWordsAreRefused)
{
    for (const wchar_t* const text :
         { L"",          L"/",          L"/1",     L"furlong", L"furlong/1", L"mm/",      L"mm/x",    L"mm/10",
           L"mm/-1",     L"mm/.",       L"mm/.10", L"mm/1/",   L"mm/1/0",    L"mm/1/257", L"mm/2/16", L"ft-in/0",
           L"ft-in/257", L"ft-in/1000", L"mm /1",  L"mm/ 1",   L"mm/1 ",     L"lb//1" })
        EXPECT_EQ("-", readAs(text)) << VorString(text);
}

TEST(VorUnitNotationTest, UnitsAreWrittenWithTheirPrecision)
{
    EXPECT_EQ(VorString(L"ft-in/16"), VorUnitNotation::write(MEKUnit(kFeetAndInches, 3, 1016)));
    EXPECT_EQ(VorString(L"ft-in/.2"), VorUnitNotation::write(MEKUnit(kFeetAndInches, 3, 2)));
    EXPECT_EQ(VorString(L"in/1/16"), VorUnitNotation::write(MEKUnit(kInches, 3, 1016)));
    EXPECT_EQ(VorString(L"lb/2"), VorUnitNotation::write(MEKUnit(kPounds, 3, 112)));
    EXPECT_EQ(VorString(L"lb/ft/0"), VorUnitNotation::write(MEKUnit(kPoundPerFoot, 3, 0)));
}

TEST(VorUnitNotationTest, AUnitThatIsNotListedHasNoWord)
{
    AssertLog log; // the unit itself reports that it is none

    EXPECT_EQ(VorString(), VorUnitNotation::write(MEKUnit(99999, 3, 2)));
}

TEST(VorUnitNotationTest, WhatIsWrittenReadsAsTheSameUnit)
{
    for (const int unit : allUnits())
        for (int format = 0; format <= 1256; format == 9 ? format = 1001 : ++format)
        {
            MEKUnit read(kMillimetre, kMillimetre, 5);
            const VorString word = VorUnitNotation::write(MEKUnit(unit, unit, format));
            EXPECT_EQ(1, VorUnitNotation::read(word, read)) << word;
            EXPECT_EQ(unit, read.unit()) << word;
            EXPECT_EQ(format, read.format()) << word;
        }
}

// Hosts may set any format; what it is shown as is what the word says.
TEST(VorUnitNotationTest, FormatsOutOfRangeAreWrittenAsTheyAreShown)
{
    EXPECT_EQ(VorString(L"lb/0"), VorUnitNotation::write(MEKUnit(kPounds, 3, -5)));
    EXPECT_EQ(VorString(L"ft-in/1"), VorUnitNotation::write(MEKUnit(kFeetAndInches, 3, 1000)));
    EXPECT_EQ(VorString(L"ft-in/256"), VorUnitNotation::write(MEKUnit(kFeetAndInches, 3, 1300)));
}
}
