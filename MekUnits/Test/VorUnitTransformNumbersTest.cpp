// Plain numbers: decimals, rounding, signs, very large and very small values, symbols.
#include "FormatCase.h"

#include <limits>

namespace
{
const double kInfinity = std::numeric_limits<double>::infinity();
const double kNotANumber = std::numeric_limits<double>::quiet_NaN();

TEST(VorUnitTransformNumbersTest, DecimalsAreThoseOfTheFormatsLastDigit)
{
    const FormatCase kCases[] = {
        { 2286.0, 3, 0, L"", L' ', L"2286" },
        { 2286.0, 3, 1, L"", L' ', L"2286.0" },
        { 2286.0, 3, 2, L"", L' ', L"2286.00" },
        { 1234.56, 3, 112, L"", L' ', L"1234.56" },
        { 1234.56, 3, 81, L"", L' ', L"1234.6" },
        { 1234.5678, 3, 552, L"", L' ', L"1234.57" },
        { 1234.5678, 3, 550, L"", L' ', L"1235" },
        { 1.5, 3, 9, L"", L' ', L"1.500000000" },
        { 0.123456789, 3, 9, L"", L' ', L"0.123456789" },
        { 2.5, 3, -2, L"", L' ', L"3" }, // a negative format is 0
        { 0.05, 3, 2, L"", L' ', L"0.05" },
        { 10.01, 3, 2, L"", L' ', L"10.01" },
    };
    expectFormatted(kCases);
}

TEST(VorUnitTransformNumbersTest, SuppressedLastZerosFallAwayWithTheirPoint)
{
    const FormatCase kCases[] = {
        { 2286.0, 3, 2, L"z", L' ', L"2286" },       { 7.5, 3, 2, L"z", L' ', L"7.5" },
        { 7.05, 3, 2, L"z", L' ', L"7.05" },         { 7.0, 3, 2, L"z", L' ', L"7" },
        { 100.0, 3, 2, L"z", L' ', L"100" },         { 100.0, 3, 0, L"z", L' ', L"100" },
        { 1000000.0, 3, 1, L"z", L' ', L"1000000" }, { 1.5, 3, 9, L"z", L' ', L"1.5" },
        { 0.1, 3, 2, L"z", L' ', L"0.1" },           { 0.0, 3, 2, L"z", L' ', L"0" },
    };
    expectFormatted(kCases);
}

TEST(VorUnitTransformNumbersTest, HalvesRoundAwayFromZeroOnTheDecimalText)
{
    const FormatCase kCases[] = {
        { 2.675, 3, 2, L"", L' ', L"2.68" }, // the double is below the half
        { -2.675, 3, 2, L"", L' ', L"-2.68" },
        { 1.005, 3, 2, L"", L' ', L"1.01" },
        { 0.125, 3, 2, L"", L' ', L"0.13" }, // the double is the half
        { -0.125, 3, 2, L"", L' ', L"-0.13" },
        { 0.375, 3, 2, L"", L' ', L"0.38" },
        { 0.5, 3, 0, L"", L' ', L"1" },
        { 1.5, 3, 0, L"", L' ', L"2" },
        { 2.5, 3, 0, L"", L' ', L"3" },
        { -0.5, 3, 0, L"", L' ', L"-1" },
        { -2.5, 3, 0, L"", L' ', L"-3" },
        { 0.49999999999999994, 3, 0, L"", L' ', L"0" },
        { 2.6749999999999994, 3, 2, L"", L' ', L"2.67" }, // the double before 2.675
        { 1.0049999999999997, 3, 2, L"", L' ', L"1.00" },
        { 0.285, 3, 2, L"", L' ', L"0.29" },
        { 4.35, 3, 1, L"", L' ', L"4.4" },
        { 1.45, 3, 1, L"", L' ', L"1.5" },
        { 8.345, 3, 2, L"", L' ', L"8.35" },
        { 0.0000000005, 3, 9, L"", L' ', L"0.000000001" },
        { 2251799813685248.5 / 1000, 3, 2, L"", L' ', L"2251799813685.25" }, // ...685.2485
    };
    expectFormatted(kCases);
}

TEST(VorUnitTransformNumbersTest, RoundingCarries)
{
    const FormatCase kCases[] = {
        { 0.995, 3, 2, L"", L' ', L"1.00" },
        { 9.995, 3, 2, L"", L' ', L"10.00" },
        { 99.995, 3, 2, L"z", L' ', L"100" },
        { 999.999, 3, 2, L"z", L' ', L"1000" },
        { 9.5, 3, 0, L"", L' ', L"10" },
        { -999.96, 3, 1, L"", L' ', L"-1000.0" },
        { 169.999999999999, 3, 1, L"z", L' ', L"170" },
        { 169.999999999999, 3, 2, L"", L' ', L"170.00" },
    };
    expectFormatted(kCases);
}

TEST(VorUnitTransformNumbersTest, WhatRoundsToZeroHasNoMinus)
{
    const FormatCase kCases[] = {
        { 0.0, 3, 2, L"", L' ', L"0.00" },
        { -0.0, 3, 2, L"", L' ', L"0.00" },
        { -0.0, 3, 2, L"z", L' ', L"0" },
        { 0.004, 3, 2, L"", L' ', L"0.00" },
        { -0.004, 3, 2, L"", L' ', L"0.00" },
        { -0.004, 3, 2, L"z", L' ', L"0" },
        { -0.49, 3, 0, L"", L' ', L"0" },
        { 0.005, 3, 2, L"", L' ', L"0.01" },
        { -0.005, 3, 2, L"", L' ', L"-0.01" },
        { 0.0049999, 3, 2, L"", L' ', L"0.00" },
        { -1e-300, 1009, 2, L"z", L' ', L"0" },
        { 4.9406564584124654e-324, 3, 9, L"z", L' ', L"0" },
        { -4.9406564584124654e-324, 7001, 2, L"z", L' ', L"0" },
    };
    expectFormatted(kCases);
}

TEST(VorUnitTransformNumbersTest, MoreThanFifteenDigitsBeforeThePointAreWrittenWithAnExponent)
{
    const FormatCase kCases[] = {
        { 123456789.98765432, 3, 2, L"", L' ', L"123456789.99" },
        { 123456789012345.67, 3, 2, L"", L' ', L"123456789012345.67" },
        { 99999999999999.995, 3, 1, L"", L' ', L"100000000000000.0" },
        { 999999999999999.0, 3, 0, L"", L' ', L"999999999999999" },
        { 999999999999999.375, 3, 0, L"", L' ', L"999999999999999" },
        { 999999999999999.5, 3, 0, L"", L' ', L"1e+15" },
        { 999999999999999.5, 3, 1, L"", L' ', L"999999999999999.5" },
        { 1e15, 3, 2, L"", L' ', L"1e+15" },
        { -1e15, 3, 2, L"", L' ', L"-1e+15" },
        { 1.5e20, 3, 2, L"", L' ', L"1.5e+20" },
        { 1234567890123456.0, 3, 0, L"", L' ', L"1.23456789012346e+15" },
        { 1234567890123445.0, 3, 0, L"", L' ', L"1.23456789012345e+15" }, // the half rounds away from zero: ...345
        { 9.999999999999999e22, 3, 0, L"", L' ', L"1e+23" },
        { 1e100, 1009, 2, L"s", L' ', L"1e+100 kg" },
        { 1.7976931348623157e308, 3, 2, L"", L' ', L"1.79769313486232e+308" },
        { -1.7976931348623157e308, 3, 2, L"z", L' ', L"-1.79769313486232e+308" },
    };
    expectFormatted(kCases);
}

TEST(VorUnitTransformNumbersTest, InfiniteAndUndefinedValuesAreWords)
{
    const FormatCase kCases[] = {
        { kInfinity, 3, 2, L"", L' ', L"inf" },       { -kInfinity, 3, 2, L"", L' ', L"-inf" },
        { kNotANumber, 3, 2, L"", L' ', L"nan" },     { -kNotANumber, 3, 2, L"", L' ', L"nan" },
        { kInfinity, 3003, 2, L"zs", L' ', L"inf" },  { -kInfinity, 13, 1016, L"zfi", L'-', L"-inf" },
        { kNotANumber, 13, 1016, L"", L'-', L"nan" }, { 1e305, 7001, 2, L"", L' ', L"inf" }, // past the largest double
    };
    expectFormatted(kCases);
}

TEST(VorUnitTransformNumbersTest, ShownSymbolsFollowABlankUnlessTheyAreSigns)
{
    const FormatCase kCases[] = {
        { 2286.0, 3, 2, L"zs", L' ', L"2286 mm" },
        { 2500.0, 6, 1, L"s", L' ', L"2.5 m" },
        { 2286.0, 10, 2, L"zs", L' ', L"90 in" },
        { 2286.0, 11, 2, L"zs", L' ', L"7.5 ft" },
        { 12.5, 1009, 112, L"s", L' ', L"12.50 kg" },
        { 0.45359237, 1021, 1, L"s", L' ', L"1.0 lb" },
        { 1.5707963267948966, 2006, 81, L"zs", L' ', L"90\u00B0" },
        { 1.5, 2000, 2, L"zs", L' ', L"1.5 rad" },
        { 250.0, 3000, 0, L"s", L' ', L"250 mm\u00B2" },
        { 2500000.0, 3003, 2, L"zs", L' ', L"2.5 m\u00B2" },
        { 92903.04, 3011, 2, L"zs", L' ', L"1 ft\u00B2" },
        { 0.0154, 4000, 2, L"zs", L' ', L"15.4 kg/m" },
        { 1136.0, 4100, 3, L"s", L' ', L"1.136 m\u00B2/m" },
        { 304.8, 4111, 2, L"zs", L' ', L"1 ft\u00B2/ft" },
        { 7.85e-06, 7001, 552, L"zs", L' ', L"7850 kg/m\u00B3" },
        { 7.85e-06, 7011, 1, L"s", L' ', L"490.1 lb/ft\u00B3" },
        { 2286.0, 13, 1016, L"zfis", L'-', L"7'-6\"" }, // marks are the symbols
    };
    expectFormatted(kCases);
}

TEST(VorUnitTransformNumbersTest, ConvertedNumbersRoundAsTheyRead)
{
    const FormatCase kCases[] = {
        { 167.876533e6, 3003, 2, L"", L' ', L"167.88" },
        { 2675000.0, 3003, 2, L"", L' ', L"2.68" },
        { 1005000.0, 3003, 2, L"", L' ', L"1.01" },
        { 2674999.9999999995, 3003, 2, L"", L' ', L"2.67" },
        { 5000.0, 3003, 2, L"", L' ', L"0.01" },
        { 4999.0, 3003, 2, L"", L' ', L"0.00" },
        { -4999.0, 3003, 2, L"z", L' ', L"0" },
        { 2325.0, 6, 2, L"", L' ', L"2.33" },
        { 2327.405, 6, 2, L"", L' ', L"2.33" },
        { 25.527, 10, 2, L"", L' ', L"1.01" }, // 1.005 in
        { 0.127, 10, 2, L"", L' ', L"0.01" },  // 0.005 in
        { 12.7, 10, 3, L"", L' ', L"0.500" },
        { 457.2, 11, 0, L"", L' ', L"2" },         // 1.5 ft
        { 76.2, 11, 1, L"", L' ', L"0.3" },        // 0.25 ft
        { 1.133980925, 1021, 0, L"", L' ', L"3" }, // 2.5 lb
        { 0.680388555, 1021, 0, L"", L' ', L"2" }, // 1.5 lb
        { 45.359237, 1021, 1, L"", L' ', L"100.0" },
        { 100.0, 1021, 1, L"", L' ', L"220.5" },
        { 1.5707963267948966, 2006, 2, L"z", L' ', L"90" },
        { -0.78539816339744828, 2006, 81, L"", L' ', L"-45.0" },
        { 3.1415926535897931, 2006, 0, L"", L' ', L"180" },
        { 0.39269908169872414, 2006, 0, L"", L' ', L"23" }, // 22.5 degrees
        { 232257.6, 3011, 0, L"", L' ', L"3" },             // 2.5 ft²
        { 0.012345, 4000, 2, L"", L' ', L"12.35" },
        { 0.1, 4011, 2, L"", L' ', L"67.20" }, // 100 kg/m
        { 1125.0, 4100, 2, L"", L' ', L"1.13" },
        { 762.0, 4111, 0, L"", L' ', L"3" }, // 2.5 ft²/ft
        { 7.8505e-06, 7001, 0, L"", L' ', L"7851" },
        { 1e-09, 7011, 3, L"", L' ', L"0.062" },
    };
    expectFormatted(kCases);
}

TEST(VorUnitTransformNumbersTest, FractionsAreReducedAndStandAfterTheWholeNumber)
{
    const FormatCase kCases[] = {
        { 12.5, 3, 1002, L"", L' ', L"12 1/2" },     { 12.5, 3, 1016, L"", L' ', L"12 1/2" },
        { 31.75, 10, 1004, L"", L' ', L"1 1/4" },    { 6.35, 10, 1004, L"", L' ', L"1/4" },
        { -6.35, 10, 1016, L"s", L' ', L"-1/4 in" }, { 2286.0, 10, 1016, L"", L' ', L"90" },
        { 0.0, 10, 1016, L"", L' ', L"0" },          { -0.1, 10, 1016, L"", L' ', L"0" },
    };
    expectFormatted(kCases);
}
}
