// Quantities as they are written on drawings, in parts lists and by hand.
#include "MekUnits/Src/VorQuantityReader.h"

#include "IndependentFactors.h"

#include "MekRoots/Exp/MEKUnit.h"
#include "MekRoots/Test/Support/TestSupport.h"

#include <atomic>
#include <clocale>
#include <cmath>
#include <iterator>
#include <thread>
#include <vector>

namespace
{
const int kMillimetre = 3;
const int kFeet = 11;
const int kFeetAndInches = 13;
const int kKilogram = 1009;
const int kRadian = 2000;
const int kDegree = 2006;
const int kDegreesAndMinutes = 2008;
const int kSquareMetre = 3003;
const double kUntouched = -12345.0;
const double kOneDegree = 0.017453292519943295;

double readIn(int unit, const VorString& text)
{
    double value = kUntouched;
    const int isRead = VorQuantityReader(unit).read(text, value);
    EXPECT_EQ(isRead, value == kUntouched ? 0 : 1) << text;
    EXPECT_TRUE(isRead == 0 || VorQuantityReader(unit).explain(text).isEmpty()) << text;
    return value;
}

struct ReadCase
{
    const wchar_t* text;
    double value; // in the model's unit
};

template <int numCases>
void expectRead(int unit, const ReadCase (&cases)[numCases])
{
    for (const ReadCase& c : cases)
        EXPECT_DOUBLE_EQ(c.value, readIn(unit, c.text)) << VorString(c.text);
}

TEST(VorQuantityReaderTest, FeetAndInchesAreReadByTheirMarks)
{
    const ReadCase kCases[] = {
        { L"7'-6 1/2\"", 2298.7 },
        { L"7' 6 1/2\"", 2298.7 },
        { L"7'6 1/2\"", 2298.7 },
        { L"7'-6-1/2\"", 2298.7 },
        { L"7' - 6 1/2\"", 2298.7 },
        { L"7'-6\"", 2286.0 },
        { L"7' 6\"", 2286.0 },
        { L"7'6\"", 2286.0 },
        { L"7'", 2133.6 },
        { L"7.5'", 2286.0 },
        { L"7 1/2'", 2286.0 },
        { L"7.1'", 2164.08 },
        { L"6\"", 152.4 },
        { L"6.5\"", 165.1 },
        { L"6 1/2\"", 165.1 },
        { L"6-1/2\"", 165.1 },
        { L"1/2\"", 12.7 },
        { L"5/4\"", 31.75 },
        { L"90\"", 2286.0 },
        { L"0'-0 1/2\"", 12.7 },
        { L"0'-0\"", 0.0 },
        { L"0'", 0.0 },
        { L"0\"", 0.0 },
        { L"7'-6.01\"", 2286.254 },
        { L"1'-11 15/16\"", 608.0125 },
        { L"8333333333333'-4\"", 2.54e15 },
        { L"1e+15\"", 2.54e16 },
        { L"-7'-6\"", -2286.0 },
        { L"-1/2\"", -12.7 },
        { L"+6\"", 152.4 },
        { L"-0'-6\"", -152.4 },
        { L"  7'-6\"  ", 2286.0 },
        { L"7\u2019-6 1/2\u201D", 2298.7 },
        { L"7\u2032 6\u2033", 2286.0 },
        { L"07'-06\"", 2286.0 },
        { L"7'-11.999\"", 2438.3746 },
    };
    expectRead(kMillimetre, kCases);
    expectRead(kFeetAndInches, kCases);
    expectRead(kFeet, kCases);
}

TEST(VorQuantityReaderTest, PlainNumbersAreInTheUnitOfTheReader)
{
    EXPECT_EQ(2286.0, readIn(kMillimetre, L"2286"));
    EXPECT_EQ(2286.0, readIn(kFeet, L"7.5"));
    EXPECT_EQ(2286.0, readIn(kFeet, L"7 1/2"));
    EXPECT_EQ(1234.5, readIn(kMillimetre, L"1234.5"));
    EXPECT_EQ(-0.5, readIn(kMillimetre, L"-.5"));
    EXPECT_EQ(5.0, readIn(kMillimetre, L"5."));
    EXPECT_EQ(1.5e20, readIn(kMillimetre, L"1.5e+20"));
    EXPECT_EQ(1.5e20, readIn(kMillimetre, L"1.5E20"));
    EXPECT_EQ(0.0, readIn(kMillimetre, L"1e-999"));
    EXPECT_EQ(1005000.0, readIn(kSquareMetre, L"1.005"));
    EXPECT_EQ(1.0, readIn(kMillimetre, L" \t\u00A01\u00A0"));
}

TEST(VorQuantityReaderTest, AUnitBehindTheNumberComesFirst)
{
    const ReadCase kCases[] = {
        { L"7.5 ft", 2286.0 },         { L"7.5ft", 2286.0 }, { L"7 1/2 ft", 2286.0 }, { L"90 in", 2286.0 },
        { L"6 1/2 inches", 165.1 },    { L"2.5 m", 2500.0 }, { L"2286 mm", 2286.0 },  { L"2.5 yd", 2286.0 },
        { L"7.5\u00A0feet ", 2286.0 }, { L"-1 km", -1e6 },   { L"1e3 mm", 1000.0 },   { L"22.86 dm", 2286.0 },
    };
    expectRead(kMillimetre, kCases);
    expectRead(kFeetAndInches, kCases);
    EXPECT_DOUBLE_EQ(45.359237, readIn(kKilogram, L"100 lb"));
    EXPECT_DOUBLE_EQ(907.18474, readIn(kKilogram, L"1 short ton"));
    EXPECT_DOUBLE_EQ(2.5e6, readIn(kSquareMetre, L"2.5 m\u00B2"));
    EXPECT_DOUBLE_EQ(92903.04, readIn(kSquareMetre, L"1 ft2"));
}

TEST(VorQuantityReaderTest, WhetherAUnitWasNamedIsTold)
{
    struct UnitCase
    {
        const wchar_t* text;
        int namesUnit;
    };
    const UnitCase cases[] = { { L"2286", 0 },     { L" -6 1/2 ", 0 }, { L"2286 mm", 1 },
                               { L"6 1/2 in", 1 }, { L"7'", 1 },       { L"7'-6 1/2\"", 1 } };
    for (const UnitCase& test : cases)
    {
        double value = 0;
        int namesUnit = 7;
        EXPECT_EQ(1, VorQuantityReader(kMillimetre).read(test.text, value, namesUnit));
        EXPECT_EQ(test.namesUnit, namesUnit);
    }
    double value = 7;
    int namesUnit = 7;
    EXPECT_EQ(0, VorQuantityReader(kMillimetre).read(L"7 stone", value, namesUnit));
    EXPECT_EQ(7, namesUnit);
    EXPECT_EQ(7, value);
}

TEST(VorQuantityReaderTest, AnglesAreReadByTheirMarks)
{
    const ReadCase kCases[] = {
        { L"12\u00B030'", 12.5 * kOneDegree },
        { L"12\u00B0 30'", 12.5 * kOneDegree },
        { L"12\u00B0-30'", 12.5 * kOneDegree },
        { L"12\u00B030'0\"", 12.5 * kOneDegree },
        { L"12.5\u00B0", 12.5 * kOneDegree },
        { L"12 1/2\u00B0", 12.5 * kOneDegree },
        { L"-12\u00B030'", -12.5 * kOneDegree },
        { L"30'", 0.5 * kOneDegree },
        { L"36\"", 0.01 * kOneDegree },
        { L"12\u00B036\"", 12.01 * kOneDegree },
        { L"12\u00B0 30.6'", 12.51 * kOneDegree },
        { L"90 deg", 1.5707963267948966 },
        { L"100 gon", 1.5707963267948966 },
        { L"1.5 rad", 1.5 },
        { L"12\u00BA30\u2019", 12.5 * kOneDegree },
    };
    expectRead(kRadian, kCases);
    expectRead(kDegree, kCases);
    expectRead(kDegreesAndMinutes, kCases);
    EXPECT_DOUBLE_EQ(12.5 * kOneDegree, readIn(kDegree, L"12.5"));
}

TEST(VorQuantityReaderTest, WhatIsNoQuantityIsRefusedWithoutAWord)
{
    for (const wchar_t* const text :
         { L"",  L" ",  L"abc", L"-",       L"--1",    L"- 1", L"inf",   L"-inf", L"nan",       L"mm",
           L"'", L"\"", L"7'-", L"7'--6\"", L"7'-x\"", L".",   L"1/0\"", L"0x10", L"7'-6\"abc", L"/2" })
    {
        EXPECT_EQ(kUntouched, readIn(kMillimetre, text)) << VorString(text);
        EXPECT_TRUE(std::wcschr(text, L'x') != nullptr || std::wcschr(text, L'/') != nullptr ||
                    VorQuantityReader(kMillimetre).explain(text).isEmpty())
            << VorString(text) << VorQuantityReader(kMillimetre).explain(text);
    }
    EXPECT_EQ(kUntouched, readIn(kMillimetre, VorString(L"7.5\0 ft", 7)));
}

struct ExplainCase
{
    const wchar_t* text;
    int unit;
    const wchar_t* explanation;
};

TEST(VorQuantityReaderTest, WhatIsNearlyAQuantityIsRefusedWithAHint)
{
    const wchar_t* const kGrouped = L"digits are not grouped, and the decimal sign is a point";
    const wchar_t* const kNoMark = L"every number needs its mark";
    const wchar_t* const kNotWhole = L"only the last number may have decimals or a fraction";
    const wchar_t* const kTooLarge = L"inches after feet stay below 12, minutes and seconds below 60";
    const ExplainCase kCases[] = {
        { L"1,234.5", kMillimetre, kGrouped },
        { L"7,5", kMillimetre, kGrouped },
        { L"7,5 ft", kMillimetre, kGrouped },
        { L"1 234.5", kMillimetre, kGrouped },
        { L"7.5 fot", kMillimetre, L"\"fot\" is no unit" },
        { L"7.5 FT", kMillimetre, L"\"FT\" is no unit" },
        { L"7.5 kg", kMillimetre, L"\"kg\" is a unit of another kind" },
        { L"7'-6\"", kKilogram, L"\"'-6\"\" is no unit" },
        { L"30\u00B0", kMillimetre, L"\"\u00B0\" is a unit of another kind" },
        { L"90", kFeetAndInches, kNoMark },
        { L"0", kFeetAndInches, kNoMark },
        { L"12.5", kDegreesAndMinutes, kNoMark },
        { L"7'-6", kMillimetre, kNoMark },
        { L"7' 6 1/2", kMillimetre, kNoMark },
        { L"7 ft-in", kMillimetre, kNoMark },
        { L"7.5'-6\"", kMillimetre, kNotWhole },
        { L"7 1/2'-6\"", kMillimetre, kNotWhole },
        { L"1e1'-6\"", kMillimetre, kNotWhole },
        { L"12345678901234567'-6\"", kMillimetre, kNotWhole },
        { L"7'-12\"", kMillimetre, kTooLarge },
        { L"7'-123456789012345678901234567890\"", kMillimetre, kTooLarge },
        { L"12\u00B060'", kDegree, kTooLarge },
        { L"12\u00B030'60\"", kDegree, kTooLarge },
        { L"1e999", kMillimetre, L"the number is too large" },
        { L"1e999'", kMillimetre, L"the number is too large" },
        { L"1e308 km", kMillimetre, L"the number is too large" },
    };
    for (const ExplainCase& c : kCases)
    {
        EXPECT_EQ(kUntouched, readIn(c.unit, c.text)) << VorString(c.text);
        EXPECT_EQ(VorString(c.explanation), VorQuantityReader(c.unit).explain(c.text)) << VorString(c.text);
    }
}

TEST(VorQuantityReaderTest, MarksStandFromLargeToSmall)
{
    for (const wchar_t* const text : { L"6\"-7'", L"7'-6'", L"6\"6\"", L"7'6\"1/2\"" })
        EXPECT_EQ(kUntouched, readIn(kMillimetre, text)) << VorString(text);
    EXPECT_EQ(kUntouched, readIn(kDegree, L"30'12\u00B0"));
}

TEST(VorQuantityReaderTest, EverySymbolAndNameOfTheCatalogueIsTaken)
{
    for (const FactorCase& c : kFactors)
    {
        const VorUnitDefinition& unit = *VorUnitsTransformArray::findUnit(c.unit);
        if (unit.layout != VorUnitDefinition::kPlainNumber)
            continue;
        const int model = VorUnitsTransformArray::findUnitOfModel(unit.system)->number;
        for (const wchar_t* const symbol : { unit.symbol, unit.asciiSymbol })
        {
            VorString text(L"2.5 ");
            text += symbol;
            EXPECT_DOUBLE_EQ(static_cast<double>(2.5L * c.factor), readIn(model, text)) << text;
        }
        EXPECT_DOUBLE_EQ(static_cast<double>(2.5L * c.factor), readIn(c.unit, L"2.5")) << c.unit;
    }
}

TEST(VorQuantityReaderTest, AnUnknownUnitIsReportedAndReadsMillimetres)
{
    AssertLog log;

    const VorQuantityReader reader(99999);

    EXPECT_TRUE(log.holdsOnly(L"isUnit( unit )", L"MekUnits/Src/VorQuantityReader"));
    double value = 0;
    EXPECT_EQ(1, reader.read(L"7.5 ft", value));
    EXPECT_EQ(2286.0, value);
}

TEST(VorQuantityReaderTest, NumbersAreTheSameInEveryLocale)
{
    for (const char* name : { "C", "de_DE.UTF-8", "de_DE.utf8", "fr_FR.UTF-8" })
    {
        std::setlocale(LC_ALL, name); // not every machine has them all
        EXPECT_EQ(1234.5, readIn(kMillimetre, L"1234.5"));
        EXPECT_EQ(2298.7, readIn(kMillimetre, L"7'-6.5\""));
        EXPECT_EQ(kUntouched, readIn(kMillimetre, L"1234,5"));
    }
    std::setlocale(LC_ALL, "C");
}

TEST(VorQuantityReaderTest, ReadingLeaksNothing)
{
    LeakCheck leaks;
    for (const wchar_t* const text : { L"7'-6 1/2\"", L"7.5 ft", L"1,234.5" })
    {
        double value = 0;
        VorQuantityReader(kMillimetre).read(text, value);
        VorQuantityReader(kMillimetre).explain(text);
    }
}

TEST(VorQuantityReaderTest, OneReaderReadsOnSeveralThreads)
{
    const VorQuantityReader reader(kMillimetre);
    std::atomic<int> numWrong{ 0 };
    std::vector<std::thread> threads;
    for (int t = 0; t < 4; ++t)
        threads.emplace_back(
            [&]
            {
                for (int i = 0; i < 2000; ++i)
                {
                    double value = 0;
                    if (reader.read(L"7'-6 1/2\"", value) == 0 || value != 2298.7)
                        ++numWrong;
                }
            });
    for (std::thread& thread : threads)
        thread.join();

    EXPECT_EQ(0, numWrong.load());
}
}
