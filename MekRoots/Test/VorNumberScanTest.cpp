// Numbers read from texts, held against wcstod and swscanf in the C locale.
#include "MekRoots/Exp/VorNumberText.h"
#include "MekRoots/Test/Support/CLibraryNumbers.h"
#include "MekRoots/Test/Support/TestSupport.h"

#include <limits>
#include <string>
#include <vector>

using namespace VorNumberText;

namespace
{
// Texts that break off, run over or only look like numbers, divided by bars. Signs and points first, then exponents,
// ends of the ranges, hexadecimal forms, words, foreign characters, and numbers close to half-way cases.
const wchar_t kHostileTexts[] =
    L"| | \t\n\v\f\r|0|-0|+0|+|-|+-1|- 1|.|..|.e1|-.|1.|.5|5.e|.5e|1..2|1.2.3|00012|2e|2e+|2e-|2e+x|"
    L"2elements|2E5|2e5.5|2e 5|2ee5|0e|0e5|1e400|1e-400|1e38|3.5e38|1e39|1e-45|1e-46|-1e-46|1e308|1.8e308|"
    L"1e-323|1e-324|4.9e-324|2.4703282292062327e-324|2.4703282292062328e-324|1e99999999999999999999|"
    L"1e-99999999999999999999|0e99999999999999999999|0x|0X|0xg|0x.|0x.p1|0xp1|0x1|0X1P3|0x1p|0x1p+|0x1p-1|"
    L"0x1.8|0x.8|0x1.p|0x1e+1|0x1e+|0x1p1.5|0x1p99999999999|0x1p-99999999999|0x0p|"
    L"0x00000000000000000000001|0x1.fffffffffffff8|0x1.fffffffffffff7ffffffff|0x1.ffffff|0x1.fffffe|"
    L"0x1.fffffeffffffffffffffff|0x1.ffffff000001|0x123456789abcdef0123456789|0x1.00000000000008|"
    L"0x1.00000000000008000000000000001|0x1.00000100000000001|0x1p-1074|0x1p-1075|0x1.8p-1075|"
    L"0x1.00000000001p-1075|0x1p-149|0x1p-150|0x1.8p-150|0x0p99999999999999999999|"
    L"0x0.0p-99999999999999999999|0x.|0x.p1|0x.g|-0x.|0x1p1023|0x1p1024|0x1.fffffffffffff8p1023|0x1p127|"
    L"0x1p128|0x1.ffffffp127|00x1|0 x1|x1|x|i|in|inf|INF|iNf|inf |infi|infin|infinit|infinity|INFINITY|"
    L"infinityx|infix|infx|-inf|+infinity|- inf|n|na|nab|nan|NaN|-nan|nan0|nan(|nan()|nan(1)|nan(0x7)|"
    L"nan(abc_9)|nan(a b)|nan(a|nan(-)|nanny|1,5|,5|1_|1'000|1f|1d5|1p3|\u00A01|\u20031|\u00851|\uFF11|"
    L"\u0661|\u22121|99999999999999999999999999999999999999999999999999|9007199254740993|"
    L"9007199254740992.99|16777217|16777217.0000001|16777219|0.1|0.3|2.2250738585072011e-308|"
    L"2.2250738585072012e-308|7.0064923216240853546186479164495e-46|7.0064923216240853546186479164496e-46|"
    L"3.4028235677973366e38|3.4028235677973365e38|179769313486231580793728971405301e276";

// Calls `check` with each of them.
void forEachHostileText(void (*check)(const std::wstring&))
{
    const std::wstring all = kHostileTexts;
    std::size_t start = 0;
    for (std::size_t bar = all.find(L'|'); bar != std::wstring::npos; bar = all.find(L'|', start))
    {
        check(all.substr(start, bar - start));
        start = bar + 1;
    }
    check(all.substr(start));
}
}

TEST(VorNumberScanTest, HostileTextsAreReadAsByWcstod)
{
    forEachHostileText(expectAsWcstod);
}

TEST(VorNumberScanTest, HostileTextsAreReadAsBySwscanf)
{
    forEachHostileText(expectAsSwscanf);
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
