// Numbers read from texts, held against wcstod and swscanf in the C locale. MEK_RANDOM_CASES sets the number of
// random texts.
#include "MekRoots/Exp/VorNumberText.h"
#include "MekRoots/Test/Support/RandomCount.h"
#include "MekRoots/Test/Support/TestSupport.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <cwchar>
#include <limits>
#include <random>
#include <string>

using namespace VorNumberText;

namespace
{

VorString shown(const std::wstring& text)
{
    return VorString(text.data(), static_cast<int>(text.size()));
}

// Equal to the last bit, zeros' signs included; of a NaN the sign alone.
template <class T>
bool isSame(T a, T b)
{
    if (std::isnan(a) || std::isnan(b))
        return std::isnan(a) && std::isnan(b) && std::signbit(a) == std::signbit(b);
    return a == b && std::signbit(a) == std::signbit(b);
}

// The GNU C library (as of 2.36) loses bits when it rounds hexadecimal numbers below the normal ones, and may be one unit
// away; those have a test of their own.
template <class T>
bool isWithinItsFault(const std::wstring& text, T expected, T value)
{
    const bool isHexadecimal = text.find_first_of(L"xX") != std::wstring::npos;
    const bool isTiny = std::fabs(expected) <= std::numeric_limits<T>::min();
    return isHexadecimal && isTiny && std::nextafter(expected, value) == value;
}

void expectAsWcstod(const std::wstring& text)
{
    wchar_t* expectedEnd = nullptr;
    const double expected = std::wcstod(text.c_str(), &expectedEnd);

    const wchar_t* end = nullptr;
    const double value = scanDouble(text.c_str(), end, 0);

    ASSERT_TRUE(isSame(expected, value) || isWithinItsFault(text, expected, value))
        << shown(text) << " gives " << value << ", not " << expected;
    ASSERT_EQ(expectedEnd - text.c_str(), end - text.c_str()) << shown(text);
}

void expectAsSwscanf(const std::wstring& text)
{
    const float untouched = -77.25F;
    float expected = untouched;
    const int expectedResult = std::swscanf(text.c_str(), L"%f", &expected);

    float value = untouched;
    const int result = scanFloat(text.data(), text.data() + text.size(), value);

    ASSERT_EQ(expectedResult, result) << shown(text);
    ASSERT_TRUE(isSame(expected, value) || isWithinItsFault(text, expected, value))
        << shown(text) << " gives " << value << ", not " << expected;
}

const wchar_t* const kHostileTexts[] = {
    L"",
    L" ",
    L" \t\n\v\f\r",
    L"0",
    L"-0",
    L"+0",
    L"+",
    L"-",
    L"+-1",
    L"- 1",
    L".",
    L"..",
    L".e1",
    L"-.",
    L"1.",
    L".5",
    L"5.e",
    L".5e",
    L"1..2",
    L"1.2.3",
    L"00012",
    L"2e",
    L"2e+",
    L"2e-",
    L"2e+x",
    L"2elements",
    L"2E5",
    L"2e5.5",
    L"2e 5",
    L"2ee5",
    L"0e",
    L"0e5",
    L"1e400",
    L"1e-400",
    L"1e38",
    L"3.5e38",
    L"1e39",
    L"1e-45",
    L"1e-46",
    L"-1e-46",
    L"1e308",
    L"1.8e308",
    L"1e-323",
    L"1e-324",
    L"4.9e-324",
    L"2.4703282292062327e-324",
    L"2.4703282292062328e-324",
    L"1e99999999999999999999",
    L"1e-99999999999999999999",
    L"0e99999999999999999999",
    L"0x",
    L"0X",
    L"0xg",
    L"0x.",
    L"0x.p1",
    L"0xp1",
    L"0x1",
    L"0X1P3",
    L"0x1p",
    L"0x1p+",
    L"0x1p-1",
    L"0x1.8",
    L"0x.8",
    L"0x1.p",
    L"0x1e+1",
    L"0x1e+",
    L"0x1p1.5",
    L"0x1p99999999999",
    L"0x1p-99999999999",
    L"0x0p",
    L"0x00000000000000000000001",
    L"0x1.fffffffffffff8",
    L"0x1.fffffffffffff7ffffffff",
    L"0x1.ffffff",
    L"0x1.fffffe",
    L"0x1.fffffeffffffffffffffff",
    L"0x1.ffffff000001",
    L"0x123456789abcdef0123456789",
    L"0x1.00000000000008",
    L"0x1.00000000000008000000000000001",
    L"0x1.00000100000000001",
    L"0x1p-1074",
    L"0x1p-1075",
    L"0x1.8p-1075",
    L"0x1.00000000001p-1075",
    L"0x1p-149",
    L"0x1p-150",
    L"0x1.8p-150",
    L"0x0p99999999999999999999",
    L"0x0.0p-99999999999999999999",
    L"0x.",
    L"0x.p1",
    L"0x.g",
    L"-0x.",
    L"0x1p1023",
    L"0x1p1024",
    L"0x1.fffffffffffff8p1023",
    L"0x1p127",
    L"0x1p128",
    L"0x1.ffffffp127",
    L"00x1",
    L"0 x1",
    L"x1",
    L"x",
    L"i",
    L"in",
    L"inf",
    L"INF",
    L"iNf",
    L"inf ",
    L"infi",
    L"infin",
    L"infinit",
    L"infinity",
    L"INFINITY",
    L"infinityx",
    L"infix",
    L"infx",
    L"-inf",
    L"+infinity",
    L"- inf",
    L"n",
    L"na",
    L"nab",
    L"nan",
    L"NaN",
    L"-nan",
    L"nan0",
    L"nan(",
    L"nan()",
    L"nan(1)",
    L"nan(0x7)",
    L"nan(abc_9)",
    L"nan(a b)",
    L"nan(a",
    L"nan(-)",
    L"nanny",
    L"1,5",
    L",5",
    L"1_",
    L"1'000",
    L"1f",
    L"1d5",
    L"1p3",
    L"\x00A0"
    L"1",
    L"\x2003"
    L"1",
    L"\x0085"
    L"1",
    L"\xFF11",
    L"\x0661",
    L"\x2212"
    L"1",
    L"99999999999999999999999999999999999999999999999999",
    L"9007199254740993",
    L"9007199254740992.99",
    L"16777217",
    L"16777217.0000001",
    L"16777219",
    L"0.1",
    L"0.3",
    L"2.2250738585072011e-308",
    L"2.2250738585072012e-308",
    L"7.0064923216240853546186479164495e-46",
    L"7.0064923216240853546186479164496e-46",
    L"3.4028235677973366e38",
    L"3.4028235677973365e38",
    L"179769313486231580793728971405301e276",
};

// A text that looks like a number for most of its length.
std::wstring randomNumber(std::mt19937_64& random)
{
    const auto below = [&random](int n) { return static_cast<int>(random() % static_cast<unsigned>(n)); };
    const auto oneOf = [&](const wchar_t* const* texts, int n) { return std::wstring(texts[below(n)]); };
    const auto digits = [&](const std::wstring& alphabet, int longest)
    {
        std::wstring text;
        for (int i = below(longest + 1); i > 0; --i)
            text += alphabet[static_cast<std::size_t>(below(static_cast<int>(alphabet.size())))];
        return text;
    };
    const wchar_t* const blanks[] = { L"", L"", L"", L" ", L"\t\n ", L"\x00A0" };
    const wchar_t* const signs[] = { L"", L"", L"", L"-", L"+", L"+-" };
    const wchar_t* const points[] = { L"", L".", L".", L"..", L"," };
    const wchar_t* const tails[] = { L"", L"", L"", L"x", L" 5", L"e", L"\0", L"m", L")" };
    const wchar_t* const words[] = {
        L"inf", L"INFinity", L"infinit", L"nan", L"nan(", L"NaN(5)", L"na", L"0x", L"0x."
    };

    std::wstring text = oneOf(blanks, 6) + oneOf(signs, 6);
    if (below(12) == 0)
        return text + oneOf(words, 9) + digits(L"0aintyNIT()_.", 4);
    const bool isHexadecimal = below(4) == 0;
    const std::wstring alphabet = isHexadecimal ? L"0123456789abcdefABCDEF" : L"0001234567899";
    const int longest = below(20) == 0 ? 400 : 22;
    text += isHexadecimal ? (below(2) == 0 ? L"0x" : L"0X") : L"";
    text += digits(alphabet, longest) + oneOf(points, 5) + digits(alphabet, longest);
    if (below(2) == 0)
    {
        text += isHexadecimal ? (below(2) == 0 ? L'p' : L'P') : (below(2) == 0 ? L'e' : L'E');
        text += oneOf(signs, 6) + digits(L"0123456789", 4);
    }
    return text + oneOf(tails, 9);
}

std::wstring randomNoise(std::mt19937_64& random)
{
    const std::wstring alphabet = L"00112359..eE++--xXpPaAfFinItTyYN()_, \tg";
    std::wstring text(random() % 14, L' ');
    for (wchar_t& c : text)
        c = alphabet[random() % alphabet.size()];
    return text;
}

std::wstring widen(const std::string& text)
{
    return std::wstring(text.begin(), text.end());
}
}

TEST(VorNumberScanTest, HostileTextsAreReadAsByWcstod)
{
    for (const wchar_t* text : kHostileTexts)
        expectAsWcstod(text);
}

TEST(VorNumberScanTest, HostileTextsAreReadAsBySwscanf)
{
    for (const wchar_t* text : kHostileTexts)
        expectAsSwscanf(text);
}

TEST(VorNumberScanTest, RandomTextsAreReadAsByTheCLibrary)
{
    std::mt19937_64 random(5);
    for (int i = 0; i < numRandomCases(150000) && !HasFatalFailure(); ++i)
    {
        const std::wstring text = i % 2 == 0 ? randomNumber(random) : randomNoise(random);
        const std::wstring upToZero = text.c_str();
        expectAsWcstod(upToZero);
        expectAsSwscanf(upToZero);
    }
}

TEST(VorNumberScanTest, RandomHexadecimalNumbersAreReadAsByTheCLibrary)
{
    std::mt19937_64 random(9);
    const int exponents[] = { -1080, -1074, -1050, -1022, -160, -149, -140, -126, 0, 100, 127, 128, 1000, 1023, 1024 };
    for (int i = 0; i < numRandomCases(50000) && !HasFatalFailure(); ++i)
    {
        char digits[80];
        const auto fraction = random() >> (random() % 40) << (random() % 40); // bits on both sides of the last one kept
        const int exponent = exponents[random() % 15] + static_cast<int>(random() % 30) - 15;
        std::snprintf(digits, sizeof(digits), "0x%llx.%016llx%sp%d", static_cast<unsigned long long>(random() % 17),
                      static_cast<unsigned long long>(fraction), random() % 2 == 0 ? "" : "00000000000001", exponent);
        expectAsWcstod(widen(digits));
        expectAsSwscanf(widen(digits));
    }
}

namespace
{
// What stands behind a whole multiple of the smallest number there is, and how it rounds.
struct Fraction
{
    const wchar_t* digits;
    std::uint64_t (*round)(std::uint64_t numUnits);
};

const Fraction kFractions[] = {
    { L".", [](std::uint64_t n) { return n; } },
    { L".4", [](std::uint64_t n) { return n; } },
    { L".7fffffffffffffffffff", [](std::uint64_t n) { return n; } },
    { L".8", [](std::uint64_t n) { return n + n % 2; } },
    { L".80000000000000000001", [](std::uint64_t n) { return n + 1; } },
    { L".c", [](std::uint64_t n) { return n + 1; } },
};

std::wstring hexadecimal(std::uint64_t number)
{
    char digits[40];
    std::snprintf(digits, sizeof(digits), "0x%llx", static_cast<unsigned long long>(number));
    return widen(digits);
}
}

TEST(VorNumberScanTest, HexadecimalDoublesBelowTheNormalOnesAreRoundedToTheNearest)
{
    std::mt19937_64 random(10);
    for (int i = 0; i < 5000; ++i)
        for (const Fraction& fraction : kFractions)
        {
            const std::uint64_t numUnits = random() >> (12 + random() % 50);
            const std::wstring text = hexadecimal(numUnits) + fraction.digits + L"p-1074";
            const wchar_t* end = nullptr;

            ASSERT_EQ(std::ldexp(static_cast<double>(fraction.round(numUnits)), -1074),
                      scanDouble(text.c_str(), end, 0))
                << shown(text);
        }
}

TEST(VorNumberScanTest, HexadecimalFloatsBelowTheNormalOnesAreRoundedToTheNearest)
{
    std::mt19937_64 random(11);
    for (int i = 0; i < 5000; ++i)
        for (const Fraction& fraction : kFractions)
        {
            const std::uint64_t numUnits = random() >> (41 + random() % 22);
            const std::wstring text = hexadecimal(numUnits) + fraction.digits + L"p-149";
            float value = -1;

            ASSERT_EQ(kNumber, scanFloat(text.data(), text.data() + text.size(), value));
            ASSERT_EQ(std::ldexp(static_cast<float>(fraction.round(numUnits)), -149), value) << shown(text);
        }
}

TEST(VorNumberScanTest, RandomDoublesComeBackFromTheirDigits)
{
    std::mt19937_64 random(6);
    for (int i = 0; i < numRandomCases(100000) && !HasFatalFailure(); ++i)
    {
        const std::uint64_t bits =
            i % 5 == 0 ? random() & 0x801FFFFFFFFFFFFFULL : random(); // some below the normal ones
        double value = 0;
        std::memcpy(&value, &bits, sizeof(value));
        char digits[64];
        std::snprintf(digits, sizeof(digits), "%.*g", static_cast<int>(12 + random() % 9), value);
        expectAsWcstod(widen(digits));
        expectAsSwscanf(widen(digits));
    }
}

// Half-way cases of single precision are doubles, so their exact digits can be printed; a digit more or less tips them.
TEST(VorNumberScanTest, HalfWayBetweenTwoFloatsGoesToTheEvenOne)
{
    std::mt19937_64 random(7);
    for (int i = 0; i < numRandomCases(5000) && !HasFatalFailure(); ++i)
    {
        const auto bits = static_cast<std::uint32_t>(random() % 0x7F7FFFFF);
        float low = 0;
        std::memcpy(&low, &bits, sizeof(low));
        const double high = std::nextafter(low, std::numeric_limits<float>::infinity());
        char digits[400];
        std::snprintf(digits, sizeof(digits), "%.200e", (low + high) / 2);
        const std::string exact(digits);
        const std::size_t exponent = exact.find('e');
        std::string below = exact;
        --below[exact.find_last_not_of("0.", exponent - 1)];

        expectAsSwscanf(widen(exact));
        expectAsSwscanf(widen(exact.substr(0, exponent) + "1" + exact.substr(exponent)));
        expectAsSwscanf(widen(below.substr(0, exponent) + "9999" + exact.substr(exponent)));
    }
}

TEST(VorNumberScanTest, HalfWayBetweenTwoDoublesGoesToTheEvenOne)
{
    std::mt19937_64 random(8);
    for (int i = 0; i < numRandomCases(20000) && !HasFatalFailure(); ++i)
    {
        // 54 bits, the last one set: an integer exactly between two doubles.
        const std::uint64_t halfWay = (random() & 0x1FFFFFFFFFFFFFULL) | 0x20000000000001ULL;
        const std::string digits = std::to_string(halfWay);
        const std::string zeros(random() % 30, '0');
        expectAsWcstod(widen(digits));
        expectAsWcstod(widen(digits + "." + zeros));
        expectAsWcstod(widen(digits + "." + zeros + "1"));
        expectAsWcstod(widen(std::to_string(halfWay - 1) + ".999999999999999999999999" + zeros));
        expectAsWcstod(widen("0." + digits + "e" + std::to_string(digits.size())));
    }
}

TEST(VorNumberScanTest, TheCommaStandsForThePointWhenAsked)
{
    const struct
    {
        const wchar_t* text;
        double value;
        int length;
    } cases[] = {
        { L"2,5", 2.5, 3 },
        { L"2.5", 2.5, 3 },
        { L"2,5,5", 2.5, 3 },
        { L"2,5.5", 2.5, 3 },
        { L"2.5,5", 2.5, 3 },
        { L",5", 0.5, 2 },
        { L"5,", 5, 2 },
        { L",", 0, 0 },
        { L"1e2,5", 100, 3 },
        { L"-1,5e2x", -150, 6 },
        { L"inf,", std::numeric_limits<double>::infinity(), 3 },
    };
    for (const auto& c : cases)
    {
        const wchar_t* end = nullptr;
        EXPECT_EQ(c.value, scanDouble(c.text, end, 1)) << VorString(c.text);
        EXPECT_EQ(c.length, end - c.text) << VorString(c.text);
    }
}

TEST(VorNumberScanTest, NothingPastTheEndOfTheRangeIsRead)
{
    const std::wstring text = L"12.5e3";
    const float values[] = { 0, 1, 12, 12, 12.5F, 12.5F, 12500 };
    for (std::size_t length = 1; length <= text.size(); ++length)
    {
        const std::wstring copy(text, 0, length);
        std::vector<wchar_t> exact(copy.begin(), copy.end()); // no terminator: reading on is seen by the sanitizers
        float value = 0;
        EXPECT_EQ(kNumber, scanFloat(exact.data(), exact.data() + length, value)) << length;
        EXPECT_EQ(values[length], value) << length;
    }
}

TEST(VorNumberScanTest, AnEmptyRangeIsTheEndOfTheText)
{
    float value = 5;

    EXPECT_EQ(kEndOfText, scanFloat(nullptr, nullptr, value));
    const wchar_t text[] = L"5";
    EXPECT_EQ(kEndOfText, scanFloat(text, text, value));
    EXPECT_EQ(kEndOfText, scanFloat(text + 1, text + 2, value)); // a zero character ends the text
    EXPECT_EQ(5, value);
}

TEST(VorNumberScanTest, AZeroCharacterEndsTheTextWithinTheRange)
{
    const wchar_t text[] = L"12\0"
                           L"34";
    float value = 0;

    EXPECT_EQ(kNumber, scanFloat(text, text + 5, value));
    EXPECT_EQ(12, value);
}

TEST(VorNumberScanTest, HugeTextsAreReadInOneGo)
{
    const std::wstring zeros(200000, L'0');
    expectAsWcstod(L"0." + zeros + L"1e200001");
    expectAsWcstod(L"1" + zeros + L"e-200000");
    expectAsWcstod(std::wstring(200000, L'7'));
    expectAsWcstod(L"0x" + zeros + L"1." + zeros + L"1");
    expectAsWcstod(L"0x." + zeros + L"1p800004");
    expectAsWcstod(L"1e" + zeros + L"5");
    expectAsWcstod(std::wstring(200000, L' ') + L"5");
    expectAsWcstod(L"nan(" + std::wstring(200000, L'x') + L")");
    expectAsSwscanf(L"0." + zeros + L"1e200001");
    expectAsSwscanf(L"16777217." + zeros);
    expectAsSwscanf(L"16777217." + zeros + L"1");
    expectAsSwscanf(L"0x1.000001" + zeros + L"1");
}
