// Texts read as numbers.
#include "MekRoots/Test/Support/TestSupport.h"

#include <climits>
#include <clocale>
#include <cmath>
#include <cwchar>
#include <limits>
#include <string>

namespace
{
// A locale with a decimal comma while it lives; the C locale again afterwards.
class CommaLocale
{
public:
    CommaLocale()
    {
        for (const char* name : { "de_DE.UTF-8", "de_DE.utf8", "de_DE", "fr_FR.UTF-8", "pl_PL.UTF-8", "German" })
            if (!m_isSet && std::setlocale(LC_ALL, name) != nullptr)
                m_isSet = true;
    }
    ~CommaLocale() { std::setlocale(LC_ALL, "C"); }
    CommaLocale(const CommaLocale&) = delete;
    CommaLocale& operator=(const CommaLocale&) = delete;

    bool isSet() const { return m_isSet; }

private:
    bool m_isSet = false;
};

struct IntegerCase
{
    const wchar_t* text;
    int expected;
};

const IntegerCase kIntegerCases[] = {
    { L"", 0 },
    { L"0", 0 },
    { L"12", 12 },
    { L"+12", 12 },
    { L"-12", -12 },
    { L" \t\n\v\f\r12", 12 },
    { L"12abc", 12 },
    { L"12 13", 12 },
    { L"1.9", 1 },
    { L"1e3", 1 },
    { L"0x10", 0 }, // decimal only
    { L"007", 7 },  // and never octal
    { L"abc", 0 },
    { L"x12", 0 },
    { L"+", 0 },
    { L"-", 0 },
    { L"- 5", 0 },
    { L"+-5", 0 },
    { L"--5", 0 },
    { L"1,234", 1 },
    { L"\xA0"
      L"5",
      0 },            // a no-break space is no white space in the C locale
    { L"\xFF15", 0 }, // nor is a full-width five a digit
    { L"2147483646", 2147483646 },
    { L"2147483647", 2147483647 },
    { L"2147483648", 2147483647 }, // from here on clamped
    { L"-2147483647", -2147483647 },
    { L"-2147483648", INT_MIN },
    { L"-2147483649", INT_MIN },
    { L"4294967296", 2147483647 },
    { L"4294967301", 2147483647 },
    { L"-4294967301", INT_MIN },
    { L"18446744073709551617", 2147483647 },
    { L"99999999999999999999999999999999999999999", 2147483647 },
    { L"-99999999999999999999999999999999999999999", INT_MIN },
    { L"0000000000000000000000000000000000000000012", 12 },
    { L"True", 0 },
    { L"False", 0 },
    { L"UnkValue", 0 },
};

const double kInfinity = std::numeric_limits<double>::infinity();

struct DoubleCase
{
    const wchar_t* text;
    double plain;
    double withComma;
};

const DoubleCase kDoubleCases[] = {
    { L"", 0, 0 },
    { L"2.5", 2.5, 2.5 },
    { L"2,5", 2, 2.5 },
    { L"-2,5", -2, -2.5 },
    { L",5", 0, 0.5 },
    { L"5,", 5, 5 },
    { L",", 0, 0 },
    { L"1.234,5", 1.234, 1.234 }, // one decimal sign, whichever comes first
    { L"1,234.5", 1, 1.234 },
    { L"1,5e2", 1, 150 },
    { L"1e2,5", 100, 100 },
    { L" \t\n\v\f\r2.5", 2.5, 2.5 },
    { L"\xA0"
      L"2.5",
      0, 0 },
    { L"2.5m", 2.5, 2.5 },
    { L"+.5", 0.5, 0.5 },
    { L"5.", 5, 5 },
    { L".", 0, 0 },
    { L"1e5", 1e5, 1e5 },
    { L"1E-5", 1e-5, 1e-5 },
    { L"1e", 1, 1 },
    { L"1e+", 1, 1 },
    { L"1e+x", 1, 1 },
    { L"2elements", 2, 2 },
    { L"0x10", 16, 16 },
    { L"0x1.8p1", 3, 3 },
    { L"0x", 0, 0 },
    { L"1e400", kInfinity, kInfinity },
    { L"-1e400", -kInfinity, -kInfinity },
    { L"1e-400", 0, 0 },
    { L"1e99999999999999999999", kInfinity, kInfinity },
    { L"1e-99999999999999999999", 0, 0 },
    { L"0e99999999999999999999", 0, 0 },
    { L"inf", kInfinity, kInfinity },
    { L"-INF", -kInfinity, -kInfinity },
    { L"infinity", kInfinity, kInfinity },
    { L"infinite", kInfinity, kInfinity }, // the longest number there is "inf"
    { L"in", 0, 0 },
    { L"True", 0, 0 },
    { L"False", 0, 0 },
    { L"UnkValue", 0, 0 },
    { L"HEA 200", 0, 0 },
};

void expectTheTables()
{
    for (const IntegerCase& c : kIntegerCases)
        EXPECT_EQ(c.expected, VorString(c.text).toInteger()) << VorString(c.text);
    for (const DoubleCase& c : kDoubleCases)
    {
        EXPECT_EQ(c.plain, VorString(c.text).toDouble()) << VorString(c.text);
        EXPECT_EQ(c.withComma, VorString(c.text).toDouble(1)) << VorString(c.text);
    }
}
}

TEST(VorStringNumberTest, TheLongestNumberAtTheStartIsRead)
{
    expectTheTables();
}

TEST(VorStringNumberTest, AnyFlagButZeroTakesTheComma)
{
    const VorString text(L"2,5");

    EXPECT_EQ(2.0, text.toDouble());
    EXPECT_EQ(2.0, text.toDouble(0));
    for (const int flag : { 1, 2, -1, INT_MIN, INT_MAX })
        EXPECT_EQ(2.5, text.toDouble(flag)) << flag;
}

TEST(VorStringNumberTest, TheStaticFormReadsPlainCharacters)
{
    EXPECT_EQ(2.0, VorString::toDouble(L"2,5", 0));
    EXPECT_EQ(2.5, VorString::toDouble(L"2,5", 1));
    EXPECT_EQ(0.0, VorString::toDouble(nullptr, 0));
    EXPECT_EQ(0.0, VorString::toDouble(nullptr, 1));
}

TEST(VorStringNumberTest, NanIsReadInAnyCaseAndWithItsSign)
{
    for (const wchar_t* text : { L"nan", L"NaN", L"nan(123)", L"nan(", L"nanny" })
    {
        EXPECT_TRUE(std::isnan(VorString(text).toDouble())) << VorString(text);
        EXPECT_FALSE(std::signbit(VorString(text).toDouble())) << VorString(text);
    }
    EXPECT_TRUE(std::signbit(VorString(L"-nan").toDouble()));
}

TEST(VorStringNumberTest, ZeroKeepsItsSign)
{
    EXPECT_TRUE(std::signbit(VorString(L"-0").toDouble()));
    EXPECT_TRUE(std::signbit(VorString(L"-1e-999").toDouble()));
    EXPECT_FALSE(std::signbit(VorString(L"-").toDouble())); // no number, plain zero
}

TEST(VorStringNumberTest, AZeroCharacterEndsTheNumber)
{
    EXPECT_EQ(1, VorString(L"1\0"
                           L"2",
                           3)
                     .toInteger());
    EXPECT_EQ(1.0, VorString(L"1\0"
                             L"2",
                             3)
                       .toDouble());
}

TEST(VorStringNumberTest, AHundredThousandDigitsAreReadExactly)
{
    std::wstring digits = L"1." + std::wstring(100000, L'0') + L"1";
    EXPECT_EQ(1.0, VorString(digits.c_str()).toDouble());

    // Half-way between 1 and its successor, then the last digit tips it.
    digits = L"1.00000000000000011102230246251565404236316680908203125" + std::wstring(100000, L'0');
    EXPECT_EQ(1.0, VorString(digits.c_str()).toDouble());
    digits += L"1";
    EXPECT_EQ(1.0 + std::numeric_limits<double>::epsilon(), VorString(digits.c_str()).toDouble());

    EXPECT_EQ(kInfinity, VorString(std::wstring(100000, L'9').c_str()).toDouble());
    EXPECT_EQ(INT_MAX, VorString(std::wstring(100000, L'9').c_str()).toInteger());
    EXPECT_EQ(1.0, VorString((L"0." + std::wstring(99999, L'0') + L"1e100000").c_str()).toDouble());
    EXPECT_EQ(1.0, VorString((L"1" + std::wstring(100000, L'0') + L"e-100000").c_str()).toDouble());
}

TEST(VorStringNumberTest, TheHostsLocaleChangesNothing)
{
    const CommaLocale comma;
    if (!comma.isSet())
        GTEST_SKIP() << "no locale with a decimal comma is installed";
    ASSERT_EQ(2.5, std::wcstod(L"2,5", nullptr)) << "the C library does not follow this locale";

    expectTheTables();
    VorString text;
    text.format(L"%g %.2f %e %d", 1.5, 2.25, 1e10, 1234567);
    EXPECT_EQ(VorString(L"1.5 2.25 1.000000e+10 1234567"), text);
}
