// Numbers written and scanned, held against the C library over seeded random values. MEK_RANDOM_CASES sets the
// number of values.
#include "MekRoots/Exp/VorNumberText.h"
#include "MekRoots/Test/Support/RandomCount.h"
#include "MekRoots/Test/Support/TestSupport.h"

#include <cfloat>
#include <climits>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <random>
#include <string>
#include <vector>

using namespace VorNumberText;

namespace
{
const wchar_t kUntouched = L'#';

std::string narrow(const wchar_t* text, std::size_t length)
{
    std::string result;
    for (std::size_t i = 0; i < length; ++i)
        result += static_cast<char>(text[i]);
    return result;
}

// What `write` puts into a buffer of exactly `room` characters; complains when it writes past what it returns.
template <class Write>
std::string written(std::size_t room, const Write& write)
{
    std::vector<wchar_t> buffer(room + 4, kUntouched);
    const int length = write(buffer.data());
    EXPECT_LE(static_cast<std::size_t>(length), room);
    for (std::size_t i = room; i < buffer.size(); ++i)
        EXPECT_EQ(kUntouched, buffer[i]) << "written past the room";
    return narrow(buffer.data(), static_cast<std::size_t>(length));
}

std::string general(double value)
{
    return written(kGeneralRoom, [value](wchar_t* out) { return writeGeneral(value, out); });
}

std::string fixed(double value, int decimals)
{
    const auto write = [value, decimals](wchar_t* out) { return writeFixed(value, decimals, out); };
    return written(static_cast<std::size_t>(fixedRoom(decimals)), write);
}

std::string integer(long long value)
{
    return written(kIntegerRoom, [value](wchar_t* out) { return writeInteger(value, out); });
}

std::string printed(const char* pattern, double value, int decimals = 0)
{
    char buffer[1500];
    if (std::strchr(pattern, '*') != nullptr)
        std::snprintf(buffer, sizeof(buffer), pattern, decimals, value);
    else
        std::snprintf(buffer, sizeof(buffer), pattern, value);
    return buffer;
}

double fromBits(std::uint64_t bits)
{
    double value = 0;
    std::memcpy(&value, &bits, sizeof(value));
    return value;
}

// Any bit pattern; measures as a model has them; few digits with a tie in reach; halves; powers and their neighbours.
double randomDouble(std::mt19937_64& random)
{
    const auto below = [&random](int n) { return static_cast<int>(random() % static_cast<unsigned>(n)); };
    const double sign = below(2) == 0 ? 1.0 : -1.0;
    switch (below(7))
    {
        case 0: return fromBits(random());
        case 1: return fromBits(random() & 0x800FFFFFFFFFFFFFULL); // denormal
        case 2: return sign * below(1000000000) / 1000.0;
        case 3: return sign * (below(20000000) + 0.5) * std::pow(10.0, below(30) - 18);
        case 4: return sign * below(1 << 20) / static_cast<double>(1 << below(20));
        case 5: return sign * std::nextafter(std::pow(10.0, below(40) - 20), below(2) * 1e30);
        default: return sign * std::ldexp(static_cast<double>(random() >> 11), below(140) - 110);
    }
}

const double kSpecialDoubles[] = {
    0.0,
    -0.0,
    1.0,
    0.5,
    1.5,
    2.5,
    3.5,
    0.125,
    0.375,
    9.5,
    99.5,
    0.95,
    999999.5,
    999999.4999999999,
    9999995.0,
    100000.0,
    1000000.0,
    0.0001,
    0.00001,
    0.00009999995,
    123456.5,
    123457.5,
    1e15,
    1e16,
    1e17,
    9007199254740993.0,
    1e21,
    1e22,
    1e23,
    DBL_MAX,
    DBL_MIN,
    DBL_EPSILON,
    5e-324,
    2.2250738585072011e-308,
    std::numeric_limits<double>::infinity(),
    -std::numeric_limits<double>::infinity(),
    std::numeric_limits<double>::quiet_NaN(),
    -std::numeric_limits<double>::quiet_NaN(),
};
}

TEST(VorNumberTextTest, IntegersAreWrittenWhole)
{
    for (const long long value : { 0LL, 1LL, -1LL, 9LL, 10LL, -10LL, 99LL, 100LL, 2147483647LL, -2147483648LL,
                                   999999999999999999LL, 1000000000000000000LL, LLONG_MAX, LLONG_MIN })
        EXPECT_EQ(std::to_string(value), integer(value));
}

TEST(VorNumberTextTest, RandomIntegersAreWrittenAsPrinted)
{
    std::mt19937_64 random(1);
    for (int i = 0; i < numRandomCases(100000); ++i)
    {
        const auto value = static_cast<long long>(random()) >> (random() % 64);
        ASSERT_EQ(std::to_string(value), integer(value));
    }
}

TEST(VorNumberTextTest, WrittenNumbersHaveNoTerminator)
{
    wchar_t out[] = L"###########";

    EXPECT_EQ(2, writeInteger(42, out));
    EXPECT_EQ(VorString(L"42#########"), VorString(out));
    EXPECT_EQ(3, writeGeneral(2.5, out));
    EXPECT_EQ(VorString(L"2.5########"), VorString(out));
    EXPECT_EQ(8, writeFixed(2.5, 6, out));
    EXPECT_EQ(VorString(L"2.500000###"), VorString(out));
}

TEST(VorNumberTextTest, SpecialDoublesAreWrittenAsPrinted)
{
    for (const double value : kSpecialDoubles)
    {
        EXPECT_EQ(printed("%g", value), general(value));
        EXPECT_EQ(printed("%g", -value), general(-value));
        for (int decimals = 0; decimals <= kMostDecimals; ++decimals)
            ASSERT_EQ(printed("%.*f", value, decimals), fixed(value, decimals)) << decimals << " decimals";
    }
}

TEST(VorNumberTextTest, RandomDoublesAreWrittenAsGeneralOnesArePrinted)
{
    std::mt19937_64 random(2);
    for (int i = 0; i < numRandomCases(400000); ++i)
    {
        const double value = randomDouble(random);
        ASSERT_EQ(printed("%g", value), general(value)) << printed("%a", value);
    }
}

TEST(VorNumberTextTest, RandomDoublesAreWrittenAsFixedOnesArePrinted)
{
    std::mt19937_64 random(3);
    for (int i = 0; i < numRandomCases(300000); ++i)
    {
        const double value = randomDouble(random);
        const int decimals = static_cast<int>(random() % 8);
        ASSERT_EQ(printed("%.*f", value, decimals), fixed(value, decimals)) << printed("%a", value) << " " << decimals;
    }
}

TEST(VorNumberTextTest, RandomDoublesAreWrittenWithManyDecimalsToo)
{
    std::mt19937_64 random(4);
    for (int i = 0; i < numRandomCases(20000); ++i)
    {
        const double value = randomDouble(random);
        const int decimals = static_cast<int>(random() % (kMostDecimals + 1));
        ASSERT_EQ(printed("%.*f", value, decimals), fixed(value, decimals)) << printed("%a", value) << " " << decimals;
    }
}

TEST(VorNumberTextTest, EveryPowerOfTwoIsWrittenAsPrinted)
{
    for (int exponent = -1074; exponent <= 1023; ++exponent)
    {
        const double value = std::ldexp(1.0, exponent);
        ASSERT_EQ(printed("%g", value), general(value)) << exponent;
        ASSERT_EQ(printed("%.*f", value, 6), fixed(value, 6)) << exponent;
    }
}
