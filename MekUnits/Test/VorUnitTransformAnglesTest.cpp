// Angles as they stand on shop drawings: in decimal degrees, in gons, in degrees, minutes and seconds.
#include "FormatCase.h"

namespace
{
const int kDegree = 2006;
const int kGon = 2007;
const int kDegreesAndMinutes = 2008;
const double kOneDegree = 0.017453292519943295;

TEST(VorUnitTransformAnglesTest, DegreesMinutesAndSecondsCarryTheirMarks)
{
    const FormatCase kCases[] = {
        { 12.5 * kOneDegree, kDegreesAndMinutes, 0, L"", L' ', L"12\u00B030'0\"" },
        { 12.5 * kOneDegree, kDegreesAndMinutes, 0, L"z", L' ', L"12\u00B030'" },
        { 12.0 * kOneDegree, kDegreesAndMinutes, 0, L"", L' ', L"12\u00B00'0\"" },
        { 12.0 * kOneDegree, kDegreesAndMinutes, 0, L"z", L' ', L"12\u00B0" },
        { 1.5707963267948966, kDegreesAndMinutes, 0, L"zfis", L'-', L"90\u00B0" },
        { 0.78539816339744828, kDegreesAndMinutes, 2, L"", L' ', L"45\u00B00'0.00\"" },
        { kOneDegree / 3600, kDegreesAndMinutes, 0, L"z", L' ', L"0\u00B00'1\"" },
        { kOneDegree / 60, kDegreesAndMinutes, 0, L"z", L' ', L"0\u00B01'" },
        { 0.38050637711236490, kDegreesAndMinutes, 1, L"", L' ', L"21\u00B048'5.1\"" }, // a slope of 1 in 2.5
        { 0.0, kDegreesAndMinutes, 0, L"", L' ', L"0\u00B00'0\"" },
        { 0.0, kDegreesAndMinutes, 0, L"z", L' ', L"0\u00B0" },
        { 0.5 * kOneDegree / 3600, kDegreesAndMinutes, 1002, L"", L' ', L"0\u00B00'0 1/2\"" },
    };
    expectFormatted(kCases);
}

TEST(VorUnitTransformAnglesTest, RoundingCarriesIntoMinutesAndDegrees)
{
    const FormatCase kCases[] = {
        { 11.99999 * kOneDegree, kDegreesAndMinutes, 0, L"z", L' ', L"12\u00B0" },
        { 11.99999 * kOneDegree, kDegreesAndMinutes, 2, L"z", L' ', L"11\u00B059'59.96\"" },
        { 30.499999 * kOneDegree, kDegreesAndMinutes, 0, L"z", L' ', L"30\u00B030'" },
        { -22.5 * kOneDegree, kDegreesAndMinutes, 0, L"z", L' ', L"-22\u00B030'" },
        { -1e-9, kDegreesAndMinutes, 0, L"z", L' ', L"0\u00B0" },
        { 1e12, kDegreesAndMinutes, 0, L"z", L' ', L"2.06264806247096e+17\"" },
    };
    expectFormatted(kCases);
}

TEST(VorUnitTransformAnglesTest, DegreesAndGonsAreDecimal)
{
    const FormatCase kCases[] = {
        { 1.5707963267948966, kDegree, 1, L"", L' ', L"90.0" },
        { 1.5707963267948966, kDegree, 1, L"zs", L' ', L"90\u00B0" },
        { 1.5707963267948966, kGon, 2, L"", L' ', L"100.00" },
        { 1.5707963267948966, kGon, 2, L"zs", L' ', L"100 gon" },
        { 0.38050637711236490, kDegree, 4, L"", L' ', L"21.8014" },
        { 0.38050637711236490, kGon, 4, L"", L' ', L"24.2238" },
        { -0.78539816339744828, kGon, 0, L"", L' ', L"-50" },
    };
    expectFormatted(kCases);
}
}
