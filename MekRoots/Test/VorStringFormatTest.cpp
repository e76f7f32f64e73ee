// VorString::format held against the C library's swprintf. There "%s" takes narrow text, here wide; "%ls" is the same in
// both, so the comparisons use it.
#include "MekRoots/Test/Support/TestSupport.h"

#include <cfloat>
#include <climits>
#include <clocale>
#include <cstddef>
#include <cstdint>
#include <cwchar>
#include <limits>
#include <string>
#include <vector>

namespace
{
template <class... Args>
VorString formatted(const wchar_t* pattern, Args... args)
{
    VorString text;
    text.format(pattern, args...);
    return text;
}

template <class... Args>
VorString printed(const wchar_t* pattern, Args... args)
{
    static wchar_t buffer[4096];
    const int length = std::swprintf(buffer, sizeof(buffer) / sizeof(buffer[0]), pattern, args...);
    return length < 0 ? VorString(L"<swprintf failed>") : VorString(buffer, length);
}

#define EXPECT_AS_PRINTED(...) EXPECT_EQ(printed(__VA_ARGS__), formatted(__VA_ARGS__))

// Every subset of the flags, with some widths and precisions, in front of `conversion` (with its length mark).
std::vector<std::wstring> patternsFor(const std::wstring& conversion)
{
    const wchar_t flags[] = L"-+ #0";
    std::vector<std::wstring> patterns;
    for (unsigned subset = 0; subset < 32; ++subset)
        for (const wchar_t* width : { L"", L"1", L"4", L"25" })
            for (const wchar_t* precision : { L"", L".", L".0", L".1", L".3", L".20" })
            {
                std::wstring pattern = L"<%";
                for (unsigned i = 0; i < 5; ++i)
                    if ((subset >> i) & 1U)
                        pattern += flags[i];
                pattern += width;
                pattern += precision;
                patterns.push_back(pattern + conversion + L'>');
            }
    return patterns;
}

template <class T>
void expectAllAsPrinted(const std::wstring& conversion, const std::vector<T>& values)
{
    for (const std::wstring& pattern : patternsFor(conversion))
        for (const T value : values)
            ASSERT_EQ(printed(pattern.c_str(), value), formatted(pattern.c_str(), value))
                << VorString(pattern.c_str()) << " of " << value;
}

const double kInfinity = std::numeric_limits<double>::infinity();
const double kNan = std::numeric_limits<double>::quiet_NaN();

const std::vector<double> kDoubles = {
    0.0,       -0.0,       1.0,    -1.0,    0.5,       1.5,     2.5,     0.05,
    0.15,      -0.25,      0.125,  9.5,     9.95,      99.9999, 1e5,     1e6,
    123456,    1234567,    1e-4,   1e-5,    12345e-10, 1.0 / 3, 2e15,    1e22,
    1e23,      1e100,      -1e-99, DBL_MAX, DBL_MIN,   5e-324,  -5e-324, 4503599627370497.5,
    kInfinity, -kInfinity, kNan,   -kNan,   7.8125e-3, 1e-300,
};
}

TEST(VorStringFormatTest, PlainTextIsCopied)
{
    EXPECT_EQ(VorString(L"Beam"), formatted(L"Beam"));
    EXPECT_EQ(VorString(), formatted(L""));
    EXPECT_EQ(VorString(), formatted(static_cast<const wchar_t*>(nullptr)));
    EXPECT_EQ(VorString(L"100%"), formatted(L"100%%"));
}

TEST(VorStringFormatTest, TheOldTextIsReplaced)
{
    const LeakCheck leaks;
    VorString text(L"a text that is longer than the new one");

    text.format(L"%d", 7);
    EXPECT_EQ(VorString(L"7"), text);

    text.format(L"");
    EXPECT_EQ(1, text.isEmpty());
}

TEST(VorStringFormatTest, TextsOfThisSystemAreWide)
{
    EXPECT_EQ(VorString(L"[HEA 200]"), formatted(L"[%s]", L"HEA 200"));
    EXPECT_EQ(VorString(L"[ HEA]"), formatted(L"[%4s]", L"HEA"));
    EXPECT_EQ(VorString(L"[HEA ]"), formatted(L"[%-4s]", L"HEA"));
    EXPECT_EQ(VorString(L"[HE]"), formatted(L"[%.2s]", L"HEA"));
    EXPECT_EQ(VorString(L"[]"), formatted(L"[%.0s]", L"HEA"));
    EXPECT_EQ(VorString(L"[(null)]"), formatted(L"[%s]", static_cast<const wchar_t*>(nullptr)));
    EXPECT_EQ(VorString(L"\x00D6\x20AC"), formatted(L"%s%c", L"\x00D6", L'\x20AC'));
}

TEST(VorStringFormatTest, APrecisionReadsNoFurtherThanItSays)
{
    const wchar_t unterminated[] = { L'H', L'E', L'A' };

    EXPECT_EQ(VorString(L"HEA"), formatted(L"%.3s", static_cast<const wchar_t*>(unterminated)));
}

TEST(VorStringFormatTest, SeveralArgumentsAreTakenInTurn)
{
    EXPECT_EQ(VorString(L"B12: 3 x HEA 200, 12.50 m, 7%"),
              formatted(L"%c%d: %i x %s, %.2f m, %d%%", L'B', 12, 3, L"HEA 200", 12.5, 7));
}

TEST(VorStringFormatTest, TheArgumentsMayReferToTheTextItself)
{
    const LeakCheck leaks;
    VorString text(L"ab");
    for (int i = 0; i < 6; ++i)
        text.format(L"%s-%s", text.getStringW(), text.getStringW());
    ASSERT_EQ(64 * 2 + 63, text.length());
    EXPECT_EQ(0, text.find(L"ab-ab-ab", 0));

    VorString pattern(L"<%d>");
    pattern.format(pattern.getStringW(), 5);
    EXPECT_EQ(VorString(L"<5>"), pattern);
}

TEST(VorStringFormatTest, AWholeTextFromItsCopyLeavesTheCopyAlone)
{
    const VorString copy(L"kept");
    VorString text(copy);

    text.format(L"%s!", text.getStringW());

    EXPECT_EQ(VorString(L"kept!"), text);
    EXPECT_EQ(VorString(L"kept"), copy);
}

TEST(VorStringFormatTest, IntegersComeOutAsPrinted)
{
    const std::vector<int> ints = { 0, 1, -1, 7, 10, -42, 1234567, INT_MAX, INT_MIN };
    expectAllAsPrinted<int>(L"d", ints);
    expectAllAsPrinted<int>(L"i", ints);
    for (const wchar_t* conversion : { L"u", L"x", L"X", L"o" })
        expectAllAsPrinted<unsigned>(conversion, { 0, 1, 8, 255, 0xBEEF, UINT_MAX });
}

TEST(VorStringFormatTest, LengthMarksSayHowLargeTheIntegerIs)
{
    expectAllAsPrinted<long>(L"ld", { 0, -1, LONG_MAX, LONG_MIN });
    expectAllAsPrinted<unsigned long>(L"lx", { 0, 1, ULONG_MAX });
    expectAllAsPrinted<long long>(L"lld", { 0, -1, LLONG_MAX, LLONG_MIN });
    expectAllAsPrinted<unsigned long long>(L"llu", { 0, 1, ULLONG_MAX });
    expectAllAsPrinted<unsigned long long>(L"llo", { 0, 1, ULLONG_MAX });
    expectAllAsPrinted<std::size_t>(L"zu", { 0, 1, SIZE_MAX });
    expectAllAsPrinted<std::intmax_t>(L"jd", { 0, INTMAX_MAX, INTMAX_MIN });
    expectAllAsPrinted<std::ptrdiff_t>(L"td", { 0, PTRDIFF_MAX, PTRDIFF_MIN });
    expectAllAsPrinted<int>(L"hd", { 0, 32767, 32768, 65535, 65536, -1, -32769 }); // cut to 16 bits
    expectAllAsPrinted<int>(L"hu", { 0, 65535, 65536, -1 });
    EXPECT_AS_PRINTED(L"%lf|%lg|%le", 1.5, 2.5, 3.5); // no meaning before these
}

TEST(VorStringFormatTest, DoublesComeOutAsPrinted)
{
    for (const wchar_t* conversion : { L"f", L"F", L"e", L"E", L"g", L"G" })
        expectAllAsPrinted<double>(conversion, kDoubles);
}

TEST(VorStringFormatTest, RoundingUpToTheNextPowerKeepsTheZerosAskedFor)
{
    for (const wchar_t* pattern : { L"%g", L"%e", L"%f", L"%.5g", L"%#.5g" })
        EXPECT_AS_PRINTED(pattern, 999999.5);
    EXPECT_EQ(VorString(L"1.00000e+06"), formatted(L"%#g", 999999.5)); // the GNU C library forgets the zeros here
}

TEST(VorStringFormatTest, PrecisionHasNoLimitOfItsOwn)
{
    for (const double value : { 0.1, 1e-5, 5e-324, DBL_MAX, 1.0 / 3 })
        for (const wchar_t* pattern : { L"%.60f", L"%.100f", L"%.101f", L"%.150f", L"%.1100f", L"%.100e", L"%.800e",
                                        L"%.100g", L"%.800g", L"%#.800g", L"%.2000f", L"%500.120f" })
            EXPECT_AS_PRINTED(pattern, value);
    EXPECT_AS_PRINTED(L"%.1000d", 5);
    EXPECT_AS_PRINTED(L"%3000d", 5);
    EXPECT_AS_PRINTED(L"%-3000d|", 5);
    EXPECT_AS_PRINTED(L"%03000d", -5);
    EXPECT_AS_PRINTED(L"%2000.1500x", 5U);
}

TEST(VorStringFormatTest, CharactersAndTextsComeOutAsPrinted)
{
    for (const wchar_t* pattern : { L"<%ls>", L"<%10ls>", L"<%-10ls>", L"<%.2ls>", L"<%10.2ls>", L"<%-10.0ls>" })
        EXPECT_AS_PRINTED(pattern, L"HEA 200");
    for (const wchar_t* pattern : { L"<%lc>", L"<%3lc>", L"<%-3lc>" })
        EXPECT_AS_PRINTED(pattern, static_cast<std::wint_t>(L'x'));
    EXPECT_EQ(VorString(L"  x"), formatted(L"%3c", L'x'));
    EXPECT_EQ(VorString(L"a\0b", 3), formatted(L"a%cb", L'\0'));
}

TEST(VorStringFormatTest, WidthAndPrecisionMayBeArguments)
{
    for (const int width : { 0, 3, 8, -3, -8 })                  // a negative width stands for the minus flag
        for (const int precision : { 0, 1, 4, -1, -4, INT_MIN }) // a negative precision for none
        {
            EXPECT_AS_PRINTED(L"<%*d>", width, 42);
            EXPECT_AS_PRINTED(L"<%.*d>", precision, 42);
            EXPECT_AS_PRINTED(L"<%*.*d>", width, precision, 42);
            EXPECT_AS_PRINTED(L"<%*.*f>", width, precision, 2.345);
            EXPECT_AS_PRINTED(L"<%*.*g>", width, precision, 2.345);
            EXPECT_AS_PRINTED(L"<%0*.*e>", width, precision, 2.345);
            EXPECT_AS_PRINTED(L"<%*.*ls>", width, precision, L"HEA");
        }
}

TEST(VorStringFormatTest, WhatIsNoConversionIsCopied)
{
    const struct
    {
        const wchar_t* pattern;
        const wchar_t* expected;
    } cases[] = {
        { L"%y", L"%y" },         { L"%", L"%" },
        { L"50%", L"50%" },       { L"%5", L"%5" },
        { L"%-08.3", L"%-08.3" }, { L"%ll", L"%ll" },
        { L"%n", L"%n" }, // nothing is ever written to an argument
        { L"%p", L"%p" },         { L"%PosNum", L"%PosNum" },
        { L"a%-5yb", L"a%-5yb" },
    };
    for (const auto& c : cases)
        EXPECT_EQ(VorString(c.expected), formatted(c.pattern)) << VorString(c.pattern);
}

TEST(VorStringFormatTest, WhatIsNoConversionTakesNoArgument)
{
    EXPECT_EQ(VorString(L"%y 7"), formatted(L"%y %d", 7));
    EXPECT_EQ(VorString(L"%5Q 7"), formatted(L"%5Q %d", 7));
}

TEST(VorStringFormatTest, ALongTextIsFormattedWhole)
{
    const LeakCheck leaks;
    VorString large;
    large.append(L'x', 100000);

    VorString text;
    text.format(L"%s%d%s", large.getStringW(), 5, large.getStringW());

    ASSERT_EQ(200001, text.length());
    EXPECT_EQ(L'5', text.getStringW()[100000]);
    EXPECT_EQ(large, text.right(100000));

    text.format(L"%100000d", 7);
    ASSERT_EQ(100000, text.length());
    EXPECT_EQ(L'7', text.getStringW()[99999]);
}
