// Seeded random numbers read from texts, held against wcstod and swscanf. MEK_RANDOM_CASES sets the number of texts.
#include "MekRoots/Exp/VorNumberText.h"
#include "MekRoots/Test/Support/CLibraryNumbers.h"
#include "MekRoots/Test/Support/RandomCount.h"
#include "MekRoots/Test/Support/TestSupport.h"

#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <limits>
#include <random>
#include <string>

using namespace VorNumberText;

namespace
{
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
    const wchar_t* const blanks[] = { L"", L"", L"", L" ", L"\t\n ", L"\u00A0" };
    const wchar_t* const signs[] = { L"", L"", L"", L"-", L"+", L"+-" };
    const wchar_t* const points[] = { L"", L".", L".", L"..", L"," };
    const wchar_t* const tails[] = { L"", L"", L"", L"x", L" 5", L"e", L"m", L")" };
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
    return text + oneOf(tails, 8);
}

std::wstring randomNoise(std::mt19937_64& random)
{
    const std::wstring alphabet = L"00112359..eE++--xXpPaAfFinItTyYN()_, \tg";
    std::wstring text(random() % 14, L' ');
    for (wchar_t& c : text)
        c = alphabet[random() % alphabet.size()];
    return text;
}
}

TEST(VorNumberScanRandomTest, RandomTextsAreReadAsByTheCLibrary)
{
    std::mt19937_64 random(5);
    for (int i = 0; i < numRandomCases(150000) && !HasFatalFailure(); ++i)
    {
        const std::wstring text = i % 2 == 0 ? randomNumber(random) : randomNoise(random);
        expectAsWcstod(text);
        expectAsSwscanf(text);
    }
}

TEST(VorNumberScanRandomTest, RandomHexadecimalNumbersAreReadAsByTheCLibrary)
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

TEST(VorNumberScanRandomTest, HexadecimalDoublesBelowTheNormalOnesAreRoundedToTheNearest)
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

TEST(VorNumberScanRandomTest, HexadecimalFloatsBelowTheNormalOnesAreRoundedToTheNearest)
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

TEST(VorNumberScanRandomTest, RandomDoublesComeBackFromTheirDigits)
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
TEST(VorNumberScanRandomTest, HalfWayBetweenTwoFloatsGoesToTheEvenOne)
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

TEST(VorNumberScanRandomTest, HalfWayBetweenTwoDoublesGoesToTheEvenOne)
{
    std::mt19937_64 random(8);
    for (int i = 0; i < numRandomCases(20000) && !HasFatalFailure(); ++i)
    {
        // 54 bits, the last one set: an integer exactly between two doubles.
        const std::uint64_t halfWay = (random() & 0x1FFFFFFFFFFFFFULL) | 0x20000000000001ULL;
        const std::string digits = std::to_string(halfWay);
        const std::string zeros(random() % 30, '0');
        const std::string below = std::to_string(halfWay - 1);
        for (const std::string& text :
             { digits, digits + '.' + zeros, digits + '.' + zeros + '1', below + ".99999999999999999999" + zeros,
               "0." + digits + "e" + std::to_string(digits.size()) })
            expectAsWcstod(widen(text));
    }
}
