// Numbers halfway between two texts and the doubles beside them, in every unit and format, against rounding by hand.
#include "FormatCase.h"
#include "SlowRounding.h"

#include "MekRoots/Exp/VorUnitTransform.h"

#include <cmath>
#include <cstdint>
#include <iterator>
#include <numeric>
#include <random>
#include <string>
#include <vector>

namespace
{
const int kFeetAndInches = 13;
const int kAllUnits[] = {
    3, 6, 10, 11, 13, 1009, 1021, 2000, 2006, 3000, 3003, 3011, 4000, 4011, 4100, 4111, 7001, 7011
};
const int kFractions[] = { 1,  2,  3,  4,  5,  6,   7,   8,   9,   10,  11,  12,  15,  16,  20,
                           24, 25, 32, 48, 64, 100, 125, 127, 128, 160, 192, 200, 250, 255, 256 };

std::vector<int> allFormats()
{
    std::vector<int> formats(10); // decimals
    std::iota(formats.begin(), formats.end(), 0);
    for (const int fraction : kFractions)
        formats.push_back(1000 + fraction);
    return formats;
}

int partsOf(int format)
{
    return format > 1000 ? format - 1000 : static_cast<int>(std::lround(std::pow(10.0, format)));
}

// "12 1/2", "12", "1/2", or with `showZeroWhole` "0 1/2".
std::string withFraction(long long numParts, int parts, bool showZeroWhole)
{
    const long long whole = numParts / parts;
    const long long part = numParts % parts;
    std::string text = whole > 0 || part == 0 || showZeroWhole ? std::to_string(whole) : "";
    if (part == 0)
        return text;
    const long long divisor = std::gcd(part, static_cast<long long>(parts));
    return text + (text.empty() ? "" : " ") + std::to_string(part / divisor) + "/" + std::to_string(parts / divisor);
}

// `inches`, a number with decimals or fractions, with the whole feet taken out.
std::string inFeet(long long wholeInches, const std::string& restAfterWhole)
{
    return std::to_string(wholeInches / 12) + "'-" + std::to_string(wholeInches % 12) + restAfterWhole + "\"";
}

// The text of `shown`, a number of the unit, by hand; nothing is suppressed.
std::string byHand(double shown, int unit, int format)
{
    using namespace SlowRounding;
    const std::string text = shortestText(shown);
    if (format < 1000)
    {
        const std::string decimals = rounded(text, format);
        const std::size_t point = decimals.find('.');
        const std::string rest = point == std::string::npos ? "" : decimals.substr(point);
        return withSign(shown, unit == kFeetAndInches ? inFeet(std::stoll(decimals), rest) : decimals);
    }
    const int parts = partsOf(format);
    const long long numParts = std::stoll(rounded(times(text, parts), 0));
    if (unit != kFeetAndInches)
        return withSign(shown, withFraction(numParts, parts, false));
    return withSign(shown, inFeet(numParts / parts, withFraction(numParts % parts, parts, true).substr(1)));
}

void expectAsByHand(const VorUnitTransform& transform, double value, int unit, int format)
{
    const std::string expected = byHand(transform.toDisplayUnits(value), unit, format);
    ASSERT_EQ(VorString(std::wstring(expected.begin(), expected.end()).c_str()),
              transform.formatValue(value, 0, 0, 0, 0, L'-'))
        << value << " in unit " << unit << ", format " << format;
}

// `numHalves` half parts, an odd number, in the model's unit, and the doubles on both sides.
void expectHalfAndItsNeighboursAsByHand(const VorUnitTransform& transform, std::uint64_t numHalves, int unit,
                                        int format)
{
    const double shown = static_cast<double>(numHalves) / (2.0 * partsOf(format));
    const double half = transform.toInternalUnits(shown);
    for (const double sign : { 1.0, -1.0 })
    {
        expectAsByHand(transform, sign * half, unit, format);
        expectAsByHand(transform, sign * std::nextafter(half, 0), unit, format);
        expectAsByHand(transform, sign * std::nextafter(half, 1e300), unit, format);
        expectAsByHand(transform, sign * std::nextafter(std::nextafter(half, 1e300), 1e300), unit, format);
    }
}
}

TEST(VorUnitTransformHalvesTest, HalvesAndTheirNeighboursReadAsByHandInEveryUnitAndFormat)
{
    std::mt19937_64 random(1);
    for (const int unit : kAllUnits)
        for (const int format : allFormats())
        {
            const VorUnitTransform transform(unit, format);
            for (std::uint64_t below : { 0U, 1U, 2U, 3U, 7U, 9U, 62U, 99U, 12499999U, 24999999U, 25000000U, 25000001U })
                expectHalfAndItsNeighboursAsByHand(transform, 2 * below + 1, unit, format);
            for (int i = 0; i < 25; ++i)
                expectHalfAndItsNeighboursAsByHand(transform, 2 * (random() % 100000000000 >> random() % 36) + 1, unit,
                                                   format);
        }
}

TEST(VorUnitTransformHalvesTest, HalvesOfDecimalsRoundAwayFromZeroInEveryUnit)
{
    for (const int unit : kAllUnits)
        for (int format = 0; format <= 6; ++format)
        {
            if (unit == kFeetAndInches)
                continue;
            const VorUnitTransform transform(unit, format);
            for (int below = 0; below < 300; ++below)
            {
                const double half = transform.toInternalUnits((below + 0.5) / partsOf(format));
                const double above = transform.toInternalUnits(static_cast<double>(below + 1) / partsOf(format));

                ASSERT_EQ(transform.formatValue(above, 0, 0, 0, 0, L' '), transform.formatValue(half, 0, 0, 0, 0, L' '))
                    << below << " and a half in unit " << unit << ", format " << format;
            }
        }
}

TEST(VorUnitTransformHalvesTest, HalvesThatHaveNoDecimalTextAreNone)
{
    const FormatCase kCases[] = {
        { 1.0 / 6, 3, 1003, L"", L' ', L"0" }, // 0.16666666666666666, three of which are less than a half
        { 5.0 / 6, 3, 1003, L"", L' ', L"1" }, // 0.8333333333333334, three of which are more than 2.5
        { 0.8333333333333333, 3, 1003, L"", L' ', L"2/3" },
        { 25.4 / 6, 10, 1003, L"", L' ', L"0" },
    };
    expectFormatted(kCases);
}
