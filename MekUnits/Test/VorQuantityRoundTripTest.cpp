// What is shown is read again: random values in every unit and precision. MEK_RANDOM_CASES sets the number of values.
#include "MekUnits/Src/VorQuantityReader.h"

#include "IndependentFactors.h"

#include "MekRoots/Exp/MEKUnit.h"
#include "MekRoots/Test/Support/RandomCount.h"
#include "MekRoots/Test/Support/TestSupport.h"

#include <cmath>
#include <cstddef>
#include <iterator>
#include <limits>
#include <random>
#include <vector>

namespace
{
const long double kExponentLimit = 1e15L; // numbers from here on are shown with 15 digits and an exponent

std::vector<int> allFormats()
{
    std::vector<int> formats;
    for (int format = 0; format <= 1256; format == 9 ? format = 1001 : ++format)
        formats.push_back(format);
    return formats;
}

// The last place that is shown of `size`, both in the unit that shows them.
long double lastPlaceOf(long double size, int format)
{
    if (size >= kExponentLimit * (1 - 1e-12L))
        return std::pow(10.0L, std::floor(std::log10(size)) - 14);
    return format > 1000 ? 1.0L / (format - 1000) : std::pow(10.0L, -format);
}

// Shows and reads `value`; the distance between both, as a multiple of what half of the last place allows.
long double errorOf(double value, const FactorCase& unit, int format, unsigned int flags)
{
    const VorString text = MEKUnit(unit.unit, unit.unit, format)
                               .getVorUnitTransform()
                               .formatValue(value, flags & 1, (flags >> 1) & 1, (flags >> 2) & 1, (flags >> 3) & 1,
                                            (flags & 16) != 0 ? L'-' : L' ');
    double read = 0;
    if (VorQuantityReader(unit.unit).read(text, read) == 0)
    {
        ADD_FAILURE() << text << " is shown for " << value << " and not read";
        return 0;
    }
    const long double size = std::fabs(static_cast<long double>(value)) / unit.factor;
    const long double rounding =
        4 * std::numeric_limits<double>::epsilon() * std::fabs(value); // of doubles, on the way
    const long double allowed = lastPlaceOf(size, format) / 2 * unit.factor + rounding;
    return std::fabs(static_cast<long double>(read) - value) / allowed;
}

// Mostly as long and heavy as steel is, now and then of any size.
double randomValue(std::mt19937_64& random, long double factor)
{
    std::uniform_real_distribution<double> exponents(-4.0, 8.0);
    std::uniform_real_distribution<double> farExponents(-20.0, 40.0);
    const double exponent = random() % 16 == 0 ? farExponents(random) : exponents(random);
    const double size = std::pow(10.0, exponent) * static_cast<double>(factor);
    return random() % 2 == 0 ? size : -size;
}

TEST(VorQuantityRoundTripTest, WhatIsShownReadsWithinHalfOfItsLastPlace)
{
    const std::vector<int> formats = allFormats();
    const int numCases = numRandomCases(1000000);
    std::mt19937_64 random(5);
    for (int i = 0; i < numCases; ++i)
    {
        const std::size_t combination = static_cast<std::size_t>(i);
        const FactorCase& unit = kFactors[combination % std::size(kFactors)];
        const int format = formats[combination / std::size(kFactors) % formats.size()];
        const double value = randomValue(random, unit.factor);
        const unsigned int flags = static_cast<unsigned int>(random() % 32);
        ASSERT_LE(errorOf(value, unit, format, flags), 1.0L)
            << value << " in unit " << unit.unit << ", format " << format << ", flags " << flags;
    }
}

TEST(VorQuantityRoundTripTest, ShortNumbersReadAsTheVeryValue)
{
    std::mt19937_64 random(6);
    for (const FactorCase& unit : kFactors)
        for (int i = 0; i < 2000; ++i)
        {
            const MEKUnit shown(unit.unit, unit.unit, 3);
            const double number = static_cast<double>(random() % 100000000) / 1000.0;
            const double value = shown.getVorUnitTransform().toInternalUnits(number);
            double read = 0;
            ASSERT_EQ(1, VorQuantityReader(unit.unit).read(
                             shown.getVorUnitTransform().formatValue(value, 1, 1, 0, 0, L'-'), read));
            ASSERT_EQ(value, read) << number << " in unit " << unit.unit;
        }
}
}
