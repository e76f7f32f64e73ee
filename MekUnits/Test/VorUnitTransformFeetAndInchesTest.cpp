// Feet and inches as they stand on shop drawings.
#include "FormatCase.h"

namespace
{
// A sixteenth is 1.5875 mm, an inch 25.4 mm, a foot 304.8 mm.
const int kFeetAndInches = 13;
const int kSixteenths = 1016;

TEST(VorUnitTransformFeetAndInchesTest, SeparatorStandsBetweenFeetAndInchesOnly)
{
    const FormatCase kCases[] = {
        { 2286.0, kFeetAndInches, kSixteenths, L"zfi", L'-', L"7'-6\"" },
        { 2286.0, kFeetAndInches, kSixteenths, L"zfi", L' ', L"7' 6\"" },
        { 2298.7, kFeetAndInches, kSixteenths, L"zfi", L'-', L"7'-6 1/2\"" },
        { 2298.7, kFeetAndInches, kSixteenths, L"zfi", L' ', L"7' 6 1/2\"" },
        { 2286.0, kFeetAndInches, kSixteenths, L"zfi", L'\0', L"7'6\"" },
        { 152.4, kFeetAndInches, kSixteenths, L"zfi", L'-', L"6\"" },
        { 2133.6, kFeetAndInches, kSixteenths, L"zfi", L'-', L"7'" },
    };
    expectFormatted(kCases);
}

TEST(VorUnitTransformFeetAndInchesTest, EveryCombinationOfSuppressionsWithAMinus)
{
    const FormatCase kCases[] = {
        { 0.0, kFeetAndInches, kSixteenths, L"", L'-', L"0'-0\"" },
        { 0.0, kFeetAndInches, kSixteenths, L"f", L'-', L"0\"" },
        { 0.0, kFeetAndInches, kSixteenths, L"i", L'-', L"0'" },
        { 0.0, kFeetAndInches, kSixteenths, L"fi", L'-', L"0\"" },
        { 12.7, kFeetAndInches, kSixteenths, L"", L'-', L"0'-0 1/2\"" },
        { 12.7, kFeetAndInches, kSixteenths, L"f", L'-', L"1/2\"" },
        { 12.7, kFeetAndInches, kSixteenths, L"i", L'-', L"0'-0 1/2\"" },
        { 12.7, kFeetAndInches, kSixteenths, L"fi", L'-', L"1/2\"" },
        { 152.4, kFeetAndInches, kSixteenths, L"", L'-', L"0'-6\"" },
        { 152.4, kFeetAndInches, kSixteenths, L"f", L'-', L"6\"" },
        { 152.4, kFeetAndInches, kSixteenths, L"i", L'-', L"0'-6\"" },
        { 152.4, kFeetAndInches, kSixteenths, L"fi", L'-', L"6\"" },
        { 2133.6, kFeetAndInches, kSixteenths, L"", L'-', L"7'-0\"" },
        { 2133.6, kFeetAndInches, kSixteenths, L"f", L'-', L"7'-0\"" },
        { 2133.6, kFeetAndInches, kSixteenths, L"i", L'-', L"7'" },
        { 2133.6, kFeetAndInches, kSixteenths, L"fi", L'-', L"7'" },
        { 2146.3, kFeetAndInches, kSixteenths, L"", L'-', L"7'-0 1/2\"" },
        { 2146.3, kFeetAndInches, kSixteenths, L"f", L'-', L"7'-0 1/2\"" },
        { 2146.3, kFeetAndInches, kSixteenths, L"i", L'-', L"7'-0 1/2\"" },
        { 2146.3, kFeetAndInches, kSixteenths, L"fi", L'-', L"7'-0 1/2\"" },
        { 2286.0, kFeetAndInches, kSixteenths, L"", L'-', L"7'-6\"" },
        { 2286.0, kFeetAndInches, kSixteenths, L"f", L'-', L"7'-6\"" },
        { 2286.0, kFeetAndInches, kSixteenths, L"i", L'-', L"7'-6\"" },
        { 2286.0, kFeetAndInches, kSixteenths, L"fi", L'-', L"7'-6\"" },
    };
    expectFormatted(kCases);
}

TEST(VorUnitTransformFeetAndInchesTest, EveryCombinationOfSuppressionsWithABlank)
{
    const FormatCase kCases[] = {
        { 0.0, kFeetAndInches, kSixteenths, L"", L' ', L"0' 0\"" },
        { 0.0, kFeetAndInches, kSixteenths, L"f", L' ', L"0\"" },
        { 0.0, kFeetAndInches, kSixteenths, L"i", L' ', L"0'" },
        { 0.0, kFeetAndInches, kSixteenths, L"fi", L' ', L"0\"" },
        { 12.7, kFeetAndInches, kSixteenths, L"", L' ', L"0' 0 1/2\"" },
        { 12.7, kFeetAndInches, kSixteenths, L"f", L' ', L"1/2\"" },
        { 12.7, kFeetAndInches, kSixteenths, L"i", L' ', L"0' 0 1/2\"" },
        { 12.7, kFeetAndInches, kSixteenths, L"fi", L' ', L"1/2\"" },
        { 2133.6, kFeetAndInches, kSixteenths, L"", L' ', L"7' 0\"" },
        { 2133.6, kFeetAndInches, kSixteenths, L"f", L' ', L"7' 0\"" },
        { 2133.6, kFeetAndInches, kSixteenths, L"i", L' ', L"7'" },
        { 2133.6, kFeetAndInches, kSixteenths, L"fi", L' ', L"7'" },
        { 2298.7, kFeetAndInches, kSixteenths, L"", L' ', L"7' 6 1/2\"" },
        { 2298.7, kFeetAndInches, kSixteenths, L"f", L' ', L"7' 6 1/2\"" },
        { 2298.7, kFeetAndInches, kSixteenths, L"i", L' ', L"7' 6 1/2\"" },
        { 2298.7, kFeetAndInches, kSixteenths, L"fi", L' ', L"7' 6 1/2\"" },
    };
    expectFormatted(kCases);
}

TEST(VorUnitTransformFeetAndInchesTest, DecimalsArePartsOfAnInch)
{
    const FormatCase kCases[] = {
        { 0.0, kFeetAndInches, 2, L"", L'-', L"0'-0.00\"" },
        { 0.0, kFeetAndInches, 2, L"z", L'-', L"0'-0\"" },
        { 0.0, kFeetAndInches, 2, L"f", L'-', L"0.00\"" },
        { 0.0, kFeetAndInches, 2, L"zf", L'-', L"0\"" },
        { 0.0, kFeetAndInches, 2, L"i", L'-', L"0'" },
        { 0.0, kFeetAndInches, 2, L"zi", L'-', L"0'" },
        { 0.0, kFeetAndInches, 2, L"fi", L'-', L"0.00\"" },
        { 0.0, kFeetAndInches, 2, L"zfi", L'-', L"0\"" },
        { 165.1, kFeetAndInches, 2, L"", L'-', L"0'-6.50\"" },
        { 165.1, kFeetAndInches, 2, L"z", L'-', L"0'-6.5\"" },
        { 165.1, kFeetAndInches, 2, L"f", L'-', L"6.50\"" },
        { 165.1, kFeetAndInches, 2, L"zf", L'-', L"6.5\"" },
        { 12.7, kFeetAndInches, 2, L"zfi", L'-', L"0.5\"" },
        { 2133.6, kFeetAndInches, 2, L"", L'-', L"7'-0.00\"" },
        { 2133.6, kFeetAndInches, 2, L"z", L'-', L"7'-0\"" },
        { 2133.6, kFeetAndInches, 2, L"i", L'-', L"7'" },
        { 2133.6, kFeetAndInches, 2, L"zi", L'-', L"7'" },
        { 2133.6, kFeetAndInches, 2, L"fi", L' ', L"7'" },
        { 2146.3, kFeetAndInches, 2, L"", L' ', L"7' 0.50\"" },
        { 2146.3, kFeetAndInches, 2, L"zfi", L' ', L"7' 0.5\"" },
        { 2286.127, kFeetAndInches, 2, L"zfi", L'-', L"7'-6.01\"" }, // 6.005"
        { 304.7746, kFeetAndInches, 2, L"", L'-', L"1'-0.00\"" },    // 11.999"
        { 304.7746, kFeetAndInches, 2, L"zfi", L'-', L"1'" },
        { 304.7746, kFeetAndInches, 3, L"zfi", L'-', L"11.999\"" },
        { 2286.0, kFeetAndInches, 0, L"", L'-', L"7'-6\"" },
    };
    expectFormatted(kCases);
}

TEST(VorUnitTransformFeetAndInchesTest, FractionsAreReduced)
{
    const FormatCase kCases[] = {
        { 1.5875, kFeetAndInches, kSixteenths, L"f", L'-', L"1/16\"" },
        { 3.175, kFeetAndInches, kSixteenths, L"f", L'-', L"1/8\"" },
        { 6.35, kFeetAndInches, kSixteenths, L"f", L'-', L"1/4\"" },
        { 9.525, kFeetAndInches, kSixteenths, L"f", L'-', L"3/8\"" },
        { 12.7, kFeetAndInches, kSixteenths, L"f", L'-', L"1/2\"" },
        { 19.05, kFeetAndInches, kSixteenths, L"f", L'-', L"3/4\"" },
        { 23.8125, kFeetAndInches, kSixteenths, L"f", L'-', L"15/16\"" },
        { 165.1, kFeetAndInches, kSixteenths, L"f", L'-', L"6 1/2\"" },
        { 0.09921875, kFeetAndInches, 1256, L"f", L'-', L"1/256\"" },
        { 0.09921875, kFeetAndInches, 1999, L"f", L'-', L"1/256\"" }, // nothing finer
        { 7.62, kFeetAndInches, 1010, L"f", L'-', L"3/10\"" },
        { 8.4666666666666668, kFeetAndInches, 1003, L"f", L'-', L"1/3\"" },
        { 2286.0, kFeetAndInches, 1001, L"f", L'-', L"7'-6\"" },
        { 2298.7, kFeetAndInches, 1001, L"f", L'-', L"7'-7\"" },
        { 2298.7, kFeetAndInches, 1000, L"f", L'-', L"7'-7\"" }, // no parts are whole inches too
    };
    expectFormatted(kCases);
}

TEST(VorUnitTransformFeetAndInchesTest, RoundingCarriesIntoInchesAndFeet)
{
    const FormatCase kCases[] = {
        { 303.2125, kFeetAndInches, kSixteenths, L"fi", L'-', L"11 15/16\"" },
        { 304.00625, kFeetAndInches, kSixteenths, L"fi", L'-', L"1'" }, // 11 31/32"
        { 304.00625, kFeetAndInches, kSixteenths, L"f", L'-', L"1'-0\"" },
        { 304.00625, kFeetAndInches, kSixteenths, L"", L'-', L"1'-0\"" },
        { 304.00625, kFeetAndInches, 1032, L"fi", L'-', L"11 31/32\"" },
        { 304.006, kFeetAndInches, kSixteenths, L"fi", L'-', L"11 15/16\"" },
        { 608.80625, kFeetAndInches, kSixteenths, L"fi", L' ', L"2'" },
        { 23.8125, kFeetAndInches, 1008, L"fi", L'-', L"1\"" }, // 15/16"
        { 23.8, kFeetAndInches, 1008, L"fi", L'-', L"7/8\"" },
        { 12.7, kFeetAndInches, 1001, L"fi", L'-', L"1\"" },
        { 12.6, kFeetAndInches, 1001, L"fi", L'-', L"0\"" },
        { 292.1, kFeetAndInches, 1001, L"fi", L'-', L"1'" },              // 11 1/2"
        { 0.79375, kFeetAndInches, kSixteenths, L"fi", L'-', L"1/16\"" }, // 1/32"
        { 0.7937, kFeetAndInches, kSixteenths, L"fi", L'-', L"0\"" },
        { 2.38125, kFeetAndInches, kSixteenths, L"fi", L'-', L"1/8\"" }, // 3/32"
    };
    expectFormatted(kCases);
}

TEST(VorUnitTransformFeetAndInchesTest, NegativeLengthsHaveOneLeadingMinus)
{
    const FormatCase kCases[] = {
        { -2286.0, kFeetAndInches, kSixteenths, L"zfi", L'-', L"-7'-6\"" },
        { -2286.0, kFeetAndInches, kSixteenths, L"zfi", L' ', L"-7' 6\"" },
        { -2133.6, kFeetAndInches, kSixteenths, L"fi", L'-', L"-7'" },
        { -152.4, kFeetAndInches, kSixteenths, L"fi", L'-', L"-6\"" },
        { -152.4, kFeetAndInches, kSixteenths, L"", L'-', L"-0'-6\"" },
        { -12.7, kFeetAndInches, kSixteenths, L"fi", L'-', L"-1/2\"" },
        { -304.00625, kFeetAndInches, kSixteenths, L"fi", L'-', L"-1'" },
        { -0.79375, kFeetAndInches, kSixteenths, L"fi", L'-', L"-1/16\"" },
        { -0.7, kFeetAndInches, kSixteenths, L"fi", L'-', L"0\"" },
        { -0.7, kFeetAndInches, kSixteenths, L"", L'-', L"0'-0\"" },
        { -0.0, kFeetAndInches, kSixteenths, L"i", L'-', L"0'" },
    };
    expectFormatted(kCases);
}

TEST(VorUnitTransformFeetAndInchesTest, HugeLengthsAreInchesWithAnExponent)
{
    const FormatCase kCases[] = {
        { 304800000.0, kFeetAndInches, kSixteenths, L"fi", L'-', L"1000000'" },
        { 2.54e16, kFeetAndInches, kSixteenths, L"fi", L'-', L"1e+15\"" },
        { 2.54e15, kFeetAndInches, kSixteenths, L"", L'-', L"8333333333333'-4\"" },
        { -5.08e20, kFeetAndInches, 2, L"zfi", L'-', L"-2e+19\"" },
    };
    expectFormatted(kCases);
}

TEST(VorUnitTransformFeetAndInchesTest, EveryHalfOfASixteenthRoundsUp)
{
    for (int numThirtySeconds = 1; numThirtySeconds < 100000; numThirtySeconds += 2)
    {
        // A thirty-second is 0.79375 mm: the quotient of two whole numbers is the double next to the decimal number.
        const double length = numThirtySeconds * 79375.0 / 100000.0;
        const FormatCase asRead = { length, kFeetAndInches, kSixteenths, L"fi", L'-', L"" };
        const FormatCase up = { (numThirtySeconds + 1) * 0.79375, kFeetAndInches, kSixteenths, L"fi", L'-', L"" };

        ASSERT_EQ(formatted(up), formatted(asRead)) << numThirtySeconds << "/32 in";
    }
}
}
