// Conversions, and properties that hold for every value. The texts themselves are in the tables of
// VorUnitTransformNumbersTest and VorUnitTransformFeetAndInchesTest.
#include "MekRoots/Exp/VorUnitTransform.h"

#include "AllocationCount.h"
#include "FormatCase.h"
#include "IndependentFactors.h"
#include "SlowRounding.h"

#include <algorithm>
#include <atomic>
#include <clocale>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <limits>
#include <locale>
#include <new>
#include <random>
#include <thread>
#include <vector>

namespace
{
const int kMillimetre = 3;
const int kInches = 10;
const int kFeetAndInches = 13;
const int kPounds = 1021;
const int kDegree = 2006;
const int kDegreesAndMinutes = 2008;
const int kSquareMetre = 3003;
const int kSquareFoot = 3011;
const int kPoundPerFoot = 4011;
const int kPoundPerCubicFoot = 7011;

double toDisplay(int unit, double value)
{
    return VorUnitTransform(unit, 2).toDisplayUnits(value);
}

double toInternal(int unit, double value)
{
    return VorUnitTransform(unit, 2).toInternalUnits(value);
}

// Values of every size, many of them at a half of a decimal or of a fraction, or one double beside it.
class ValueSource
{
public:
    explicit ValueSource(unsigned int seed) : m_random(seed) {}

    double next()
    {
        const double value = pickSize();
        switch (m_random() % 4)
        {
            case 0: return std::nextafter(value, 1e300);
            case 1: return std::nextafter(value, -1e300);
            default: return value;
        }
    }

private:
    double pickSize()
    {
        const double sign = m_random() % 2 == 0 ? 1.0 : -1.0;
        const double number = static_cast<double>(m_random() % 10000000);
        switch (m_random() % 5)
        {
            case 0: return sign * (number + 0.5) / std::pow(10.0, m_random() % 10);
            case 1: return sign * (number + 0.5) * 25.4 / 16;
            case 2: return sign * (number + 0.5) * 1000.0;
            case 3: return sign * number / 1000.0;
            default: return sign * std::exp(static_cast<double>(m_random() % 800) / 10.0 - 40.0);
        }
    }

    std::mt19937 m_random;
};

VorString wide(const std::string& text)
{
    return VorString(std::wstring(text.begin(), text.end()).c_str());
}

// The text of `value` by hand, from the number that the transform says it shows.
VorString slowlyFormatted(double value, int numDecimals, bool suppressLastZeros)
{
    using namespace SlowRounding;
    std::string text = rounded(shortestText(value), numDecimals);
    if (suppressLastZeros)
        text = withoutLastZeros(text);
    return wide(withSign(value, text));
}

// The factors of angles are larger.
const std::uint64_t kLargestSlowFactor = 200000000;

// By hand what `value`, not negative, of a unit is in the model's unit.
double slowlyScaled(double value, const VorUnitDefinition& unit)
{
    using namespace SlowRounding;
    const std::string product = times(shortestText(value), static_cast<int>(unit.numerator));
    return std::strtod(over(product, unit.denominator).c_str(), nullptr);
}

// As slowlyFormatted in feet and inches to 1/16, with nothing suppressed.
VorString slowlyFormattedInSixteenths(double inches)
{
    const long long numSixteenths =
        std::stoll(SlowRounding::rounded(SlowRounding::times(SlowRounding::shortestText(inches), 16), 0));
    std::string text = std::to_string(numSixteenths / 16 / 12) + "'-" + std::to_string(numSixteenths / 16 % 12);
    const char* const kFractions[] = { "",     " 1/16", " 1/8", " 3/16",  " 1/4", " 5/16",  " 3/8", " 7/16",
                                       " 1/2", " 9/16", " 5/8", " 11/16", " 3/4", " 13/16", " 7/8", " 15/16" };
    text += kFractions[numSixteenths % 16];
    return wide((inches < 0 && numSixteenths > 0 ? "-" : "") + text + "\"");
}

TEST(VorUnitTransformTest, EveryFactorIsThatOfAnIndependentTable)
{
    for (const FactorCase& c : kFactors)
    {
        const double factor = static_cast<double>(c.factor);
        EXPECT_DOUBLE_EQ(factor, toInternal(c.unit, 1.0)) << "unit " << c.unit;
        EXPECT_DOUBLE_EQ(-1000 * factor, toInternal(c.unit, -1000.0)) << "unit " << c.unit;
        EXPECT_DOUBLE_EQ(static_cast<double>(1 / c.factor), toDisplay(c.unit, 1.0)) << "unit " << c.unit;
        EXPECT_EQ(1.0, toDisplay(c.unit, toInternal(c.unit, 1.0))) << "unit " << c.unit;
    }
}

TEST(VorUnitTransformTest, TheIndependentTableHasEveryUnit)
{
    const auto isInTable = [](int unit)
    {
        return std::any_of(std::begin(kFactors), std::end(kFactors),
                           [unit](const FactorCase& c) { return c.unit == unit; });
    };
    for (const int unit : allUnits())
        EXPECT_TRUE(isInTable(unit)) << unit;
    EXPECT_EQ(allUnits().size(), std::size(kFactors));
}

TEST(VorUnitTransformTest, ConvertsTheDecimalNumberThatIsSeen)
{
    EXPECT_EQ(90.0, toDisplay(kInches, 2286.0));
    EXPECT_EQ(90.0, toDisplay(kFeetAndInches, 2286.0));
    EXPECT_EQ(11.96875, toDisplay(kInches, 304.00625)); // a division of doubles is one place above
    EXPECT_EQ(1.5, toDisplay(kPounds, 0.680388555));    // one place below
    EXPECT_EQ(1.005, toDisplay(kInches, 25.527));
    EXPECT_EQ(167.876533, toDisplay(kSquareMetre, 167876533.0));
    EXPECT_EQ(1005000.0, toInternal(kSquareMetre, 1.005)); // a product of doubles is one place below
    EXPECT_EQ(25.4, toInternal(kInches, 1.0));
    EXPECT_EQ(92903.04, toInternal(kSquareFoot, 1.0));
    EXPECT_EQ(0.45359237, toInternal(kPounds, 1.0));
    EXPECT_EQ(90.0, toDisplay(kDegree, 1.5707963267948966));
    EXPECT_EQ(1.5707963267948966, toInternal(kDegree, 90.0));
}

// Few decimals are converted in another way than many: both must give the double next to the exact product.
TEST(VorUnitTransformTest, NumbersOfAnyDecimalsBecomeTheDoubleNextToTheExactProduct)
{
    std::mt19937 random(3);
    for (const int unit : allUnits())
    {
        const VorUnitDefinition& definition = *VorUnitsTransformArray::findUnit(unit);
        if (definition.numerator > kLargestSlowFactor || definition.denominator > kLargestSlowFactor)
            continue;
        for (int i = 0; i < 5000; ++i)
        {
            const double read = static_cast<double>(random() >> random() % 32) / std::pow(10.0, random() % 6);
            ASSERT_EQ(slowlyScaled(read, definition), toInternal(unit, read)) << read << " in unit " << unit;
            ASSERT_EQ(-slowlyScaled(read, definition), toInternal(unit, -read)) << read << " in unit " << unit;
        }
    }
}

TEST(VorUnitTransformTest, WhatWasReadInAUnitIsShownAgain)
{
    std::mt19937 random(1);
    for (const int unit : allUnits())
        for (int i = 0; i < 2000; ++i)
        {
            const double read = static_cast<double>(random() % 1000000000) / std::pow(10.0, random() % 9);
            ASSERT_EQ(read, toDisplay(unit, toInternal(unit, read))) << "unit " << unit;
            ASSERT_EQ(-read, toDisplay(unit, toInternal(unit, -read))) << "unit " << unit;
        }
}

TEST(VorUnitTransformTest, ConversionsStayWithinTheLastPlaceOfTheQuotient)
{
    ValueSource values(2);
    for (int i = 0; i < 20000; ++i)
    {
        const double value = values.next();
        for (const FactorCase& c : kFactors)
        {
            const double quotient = static_cast<double>(static_cast<long double>(value) / c.factor);
            const double product = static_cast<double>(static_cast<long double>(value) * c.factor);
            ASSERT_NEAR(quotient, toDisplay(c.unit, value), std::fabs(quotient) * 5e-16) << value << " " << c.unit;
            ASSERT_NEAR(product, toInternal(c.unit, value), std::fabs(product) * 5e-16) << value << " " << c.unit;
        }
    }
}

TEST(VorUnitTransformTest, ConversionsKeepZeroInfiniteAndUndefinedValues)
{
    const double infinity = std::numeric_limits<double>::infinity();
    for (const int unit : allUnits())
    {
        EXPECT_EQ(0.0, toDisplay(unit, 0.0));
        EXPECT_EQ(0.0, toInternal(unit, 0.0));
        EXPECT_EQ(infinity, toDisplay(unit, infinity));
        EXPECT_EQ(-infinity, toInternal(unit, -infinity));
        EXPECT_TRUE(std::isnan(toDisplay(unit, std::nan(""))));
        EXPECT_TRUE(std::isnan(toInternal(unit, std::nan(""))));
    }
}

TEST(VorUnitTransformTest, ConversionsPastTheRangeOfDoublesAreInfiniteOrZero)
{
    EXPECT_EQ(std::numeric_limits<double>::infinity(), toInternal(kSquareMetre, 1e305));
    EXPECT_EQ(-std::numeric_limits<double>::infinity(), toDisplay(kPoundPerCubicFoot, -1e305));
    EXPECT_EQ(0.0, toDisplay(kSquareMetre, 4.9406564584124654e-324));
    EXPECT_EQ(0.0, toInternal(kPoundPerCubicFoot, 1e-320));
    EXPECT_EQ(1e-310, toDisplay(kSquareMetre, 1e-304));
}

TEST(VorUnitTransformTest, RandomNumbersReadAsTheirTextRoundedByHand)
{
    ValueSource values(3);
    for (int i = 0; i < 100000; ++i)
    {
        const double value = values.next();
        const int unit = kFactors[static_cast<std::size_t>(i) % std::size(kFactors)].unit;
        const int numDecimals = i % 10;
        const double shown = toDisplay(unit, value);
        if (unit == kFeetAndInches || unit == kDegreesAndMinutes || std::fabs(shown) >= 999999999999999.0)
            continue;

        const FormatCase exact = { value, unit, numDecimals, L"", L' ', L"" };
        const FormatCase suppressed = { value, unit, numDecimals, L"z", L' ', L"" };

        ASSERT_EQ(slowlyFormatted(shown, numDecimals, false), formatted(exact)) << value << " in " << unit;
        ASSERT_EQ(slowlyFormatted(shown, numDecimals, true), formatted(suppressed)) << value << " in " << unit;
    }
}

TEST(VorUnitTransformTest, HalvesOfTheModelsNumbersAndTheirNeighboursReadAsRoundedByHand)
{
    std::mt19937_64 random(7);
    for (int i = 0; i < 20000; ++i)
    {
        const int numDecimals = i % 10;
        const double whole = static_cast<double>(random() >> (14 + random() % 50));
        const double half = (whole + 0.5) / std::pow(10.0, numDecimals);
        for (const double value : { half, std::nextafter(half, 0.0), std::nextafter(half, 1e300), -half })
        {
            if (value < -999999999999998.0 || value > 999999999999998.0)
                continue;
            const FormatCase c = { value, kMillimetre, numDecimals, L"", L' ', L"" };
            ASSERT_EQ(slowlyFormatted(value, numDecimals, false), formatted(c)) << numDecimals << " decimals";
        }
    }
}

TEST(VorUnitTransformTest, RandomLengthsReadAsTheirSixteenthsRoundedByHand)
{
    ValueSource values(4);
    for (int i = 0; i < 100000; ++i)
    {
        const double value = values.next();
        const double inches = toDisplay(kFeetAndInches, value);
        if (std::fabs(inches) >= 999999999999999.0)
            continue;

        const FormatCase c = { value, kFeetAndInches, 1016, L"", L'-', L"" };

        ASSERT_EQ(slowlyFormattedInSixteenths(inches), formatted(c)) << value;
    }
}

TEST(VorUnitTransformTest, TheSlowRoundingItselfIsRight)
{
    using namespace SlowRounding;

    EXPECT_EQ("2.68", rounded(shortestText(2.675), 2));
    EXPECT_EQ("10.00", rounded("9.995", 2));
    EXPECT_EQ("1", rounded("0.5", 0));
    EXPECT_EQ("0", rounded("0.49", 0));
    EXPECT_EQ("0.00001", shortestText(0.00001));
    EXPECT_EQ("8.0", times("0.5", 16));
    EXPECT_EQ("7", withoutLastZeros("7.00"));
    EXPECT_EQ("0.00", withSign(-0.001, "0.00"));
}

TEST(VorUnitTransformTest, AnUnknownUnitIsReportedAndShowsTheModelsNumbers)
{
    AssertLog log;

    const VorUnitTransform unknown(99999, 2);

    EXPECT_EQ(1, log.count(L"isUnit( unit )", L"MekUnits/Src/VorUnitTransform"));
    EXPECT_TRUE(log.holdsOnly(L"isUnit( unit )", L"MekUnits/Src/VorUnitTransform"));
    EXPECT_EQ(VorString(L"12.50"), unknown.formatValue(12.5, 0, 1, 0, 0, L' '));
    EXPECT_EQ(12.5, unknown.toDisplayUnits(12.5));
    EXPECT_EQ(VorUnitsTransformArray::kDistance, unknown.system());
}

TEST(VorUnitTransformTest, OperationsAreVirtual)
{
    struct Doubled : VorUnitTransform
    {
        Doubled() : VorUnitTransform(kMillimetre, 0) {}
        double toDisplayUnits(double value) const override { return 2 * value; }
        double toInternalUnits(double value) const override { return value / 2; }
        VorString formatValue(double, int, int, int, int, wchar_t) const override { return VorString(L"twice"); }
    };
    const Doubled doubled;
    const VorUnitTransform& transform = doubled;

    EXPECT_EQ(8.0, transform.toDisplayUnits(4.0));
    EXPECT_EQ(2.0, transform.toInternalUnits(4.0));
    EXPECT_EQ(VorString(L"twice"), transform.formatValue(4.0, 1, 0, 1, 1, L' '));
}

TEST(VorUnitTransformTest, FormattingAllocatesNothingButTheText)
{
    if (MEK_ALLOCATIONS_ARE_COUNTED == 0)
        GTEST_SKIP() << "operator new belongs to a sanitizer in this build";
    const long long numBefore = countOfAllocations();
    ::operator delete(::operator new(1));
    ASSERT_EQ(numBefore + 1, countOfAllocations());

    const double kValues[] = { 2286.125, 304.00625, 1e300, 2.675, -0.0 };
    const int kUnits[] = { kMillimetre, kFeetAndInches, kPoundPerFoot };
    for (const int unit : kUnits)
        for (const double value : kValues)
        {
            const VorUnitTransform transform(unit, 2);
            const VorString first = transform.formatValue(value, 1, 1, 1, 1, L'-'); // may fill pools
            const long long numBlocks = VorMemoryControllerController::liveBlocks();
            const long long numAllocations = countOfAllocations();

            const VorString text = transform.formatValue(value, 1, 1, 1, 1, L'-');

            EXPECT_EQ(numAllocations, countOfAllocations()) << value << " in " << unit;
            EXPECT_EQ(numBlocks + 1, VorMemoryControllerController::liveBlocks()) << value << " in " << unit;
            EXPECT_EQ(first, text);
        }
}

TEST(VorUnitTransformTest, FormattingLeaksNothing)
{
    LeakCheck leaks;
    for (const int unit : allUnits())
        for (const double value : { 0.0, 1.5, -1e300, std::nan("") })
            EXPECT_FALSE(VorUnitTransform(unit, 1016).formatValue(value, 1, 1, 0, 0, L'-').isEmpty());
}

// A decimal comma and grouped thousands, as a host may have made them the global locale.
class CommaPunctuation : public std::numpunct<char>
{
protected:
    char do_decimal_point() const override { return ','; }
    char do_thousands_sep() const override { return '.'; }
    std::string do_grouping() const override { return "\3"; }
};

TEST(VorUnitTransformTest, TextsAreTheSameInEveryLocale)
{
    const std::locale before = std::locale::global(std::locale(std::locale::classic(), new CommaPunctuation));
    const FormatCase kCases[] = {
        { 1234567.5, kMillimetre, 2, L"", L' ', L"1234567.50" },
        { 2.675, kMillimetre, 2, L"", L' ', L"2.68" },
        { 25.527, kInches, 2, L"", L' ', L"1.01" },
        { 1.5e20, kMillimetre, 2, L"", L' ', L"1.5e+20" },
        { 2286.127, kFeetAndInches, 2, L"", L'-', L"7'-6.01\"" },
    };
    for (const char* name : { "C", "de_DE.UTF-8", "de_DE.utf8", "fr_FR.UTF-8" })
    {
        std::setlocale(LC_ALL, name); // not every machine has them all
        expectFormatted(kCases);
    }
    std::setlocale(LC_ALL, "C");
    std::locale::global(before);
}

TEST(VorUnitTransformThreadTest, OneTransformFormatsOnSeveralThreads)
{
    const VorUnitTransform transform(kFeetAndInches, 1016);
    std::atomic<int> numWrong{ 0 };
    std::vector<std::thread> threads;
    for (int t = 0; t < 4; ++t)
        threads.emplace_back(
            [&]
            {
                for (int i = 0; i < 2000; ++i)
                    if (transform.formatValue(304.00625, 1, 0, 1, 1, L'-') != VorString(L"1'"))
                        ++numWrong;
            });
    for (std::thread& thread : threads)
        thread.join();

    EXPECT_EQ(0, numWrong.load());
}
}
