// Finding, cutting and splitting of texts.
#include "MekRoots/Test/Support/TestSupport.h"

#include <climits>
#include <random>
#include <string>
#include <vector>

namespace
{
struct FindCase
{
    const wchar_t* text;
    const wchar_t* wanted;
    int start;
    int position;
};

const FindCase kFindCases[] = {
    { L"%SumBy:%Weight", L"%SumBy:", 0, 0 },
    { L"%SumBy:%Weight", L"%", 0, 0 },
    { L"%SumBy:%Weight", L"%", 1, 7 }, // at or after the start
    { L"%SumBy:%Weight", L"%", 7, 7 },
    { L"%SumBy:%Weight", L"%", 8, -1 },
    { L"%SumBy:%Weight", L"t", 13, 13 },
    { L"%SumBy:%Weight", L"t", 14, -1 }, // start at the end
    { L"%SumBy:%Weight", L"t", 15, -1 }, // and past it
    { L"%SumBy:%Weight", L"t", INT_MAX, -1 },
    { L"%SumBy:%Weight", L"%sumby:", 0, -1 }, // case counts
    { L"%SumBy:%Weight", L"%Weights", 0, -1 },
    { L"%SumBy:%Weight", L"%Weight", -1, 7 }, // a negative start counts as 0
    { L"%SumBy:%Weight", L"%SumBy:", INT_MIN, 0 },
    { L"aaaab", L"aab", 0, 2 }, // a start that fails late
    { L"ababac", L"abac", 0, 2 },
    { L"ab", L"abc", 0, -1 },
    { L"", L"a", 0, -1 },
    { L"", L"", 0, 0 },
    { L"", L"", 1, -1 },
    { L"ab", L"", 0, 0 },
    { L"ab", L"", 2, 2 },
    { L"ab", L"", 3, -1 },
};

VorStringArray split(const VorString& text, const VorString& delimiters)
{
    VorStringArray pieces;
    VorString::getTokens(text, pieces, delimiters);
    return pieces;
}

VorString joinWithBars(const VorStringArray& pieces)
{
    VorString joined;
    for (const VorString& piece : pieces)
    {
        joined += L'|';
        joined += piece;
    }
    return joined;
}
}

TEST(VorStringSearchTest, FindGivesTheFirstPositionAtOrAfterTheStart)
{
    for (const FindCase& c : kFindCases)
    {
        EXPECT_EQ(c.position, VorString(c.text).find(VorString(c.wanted), c.start))
            << VorString(c.wanted) << " in " << VorString(c.text) << " from " << c.start;
        EXPECT_EQ(c.position, VorString(c.text).find(c.wanted, c.start))
            << VorString(c.wanted) << " in " << VorString(c.text) << " from " << c.start;
    }
}

TEST(VorStringSearchTest, ANullPointerIsFoundAsTheEmptyTextIs)
{
    EXPECT_EQ(1, VorString(L"ab").find(static_cast<const wchar_t*>(nullptr), 1));
    EXPECT_EQ(-1, VorString(L"ab").find(static_cast<const wchar_t*>(nullptr), 3));
}

TEST(VorStringSearchTest, FindLooksPastZeroCharacters)
{
    const VorString text(L"a\0bc\0d", 6);

    EXPECT_EQ(2, text.find(L"bc", 0));
    EXPECT_EQ(1, text.find(VorString(L"\0b", 2), 0));
    EXPECT_EQ(4, text.find(VorString(L"\0", 1), 2));
}

TEST(VorStringSearchTest, ATextIsFoundInItself)
{
    const VorString text(L"%Name");

    EXPECT_EQ(0, text.find(text, 0));
    EXPECT_EQ(-1, text.find(text, 1));
}

TEST(VorStringSearchTest, FindAgreesWithTheStandardLibrary)
{
    std::mt19937 random(4711);
    const auto randomText = [&random](unsigned longest)
    {
        std::wstring text(random() % (longest + 1), L'a');
        for (wchar_t& c : text)
            c = static_cast<wchar_t>(L'a' + random() % 2);
        return text;
    };
    for (int i = 0; i < 50000; ++i)
    {
        const std::wstring text = randomText(12);
        const std::wstring wanted = randomText(4);
        const int start = static_cast<int>(random() % 15);
        const std::size_t position = text.find(wanted, static_cast<std::size_t>(start));

        const int expected = position == std::wstring::npos ? -1 : static_cast<int>(position);
        ASSERT_EQ(expected, VorString(text.c_str()).find(wanted.c_str(), start))
            << VorString(wanted.c_str()) << " in " << VorString(text.c_str()) << " from " << start;
    }
}

TEST(VorStringSearchTest, LeftAndRightClampTheirCount)
{
    const VorString text(L"HEA 200");
    const struct
    {
        int n;
        const wchar_t* left;
        const wchar_t* right;
    } cases[] = {
        { INT_MIN, L"", L"" },
        { -1, L"", L"" },
        { 0, L"", L"" },
        { 1, L"H", L"0" },
        { 3, L"HEA", L"200" },
        { 6, L"HEA 20", L"EA 200" },
        { 7, L"HEA 200", L"HEA 200" },
        { 8, L"HEA 200", L"HEA 200" },
        { INT_MAX, L"HEA 200", L"HEA 200" },
    };
    for (const auto& c : cases)
    {
        EXPECT_EQ(VorString(c.left), text.left(c.n)) << c.n;
        EXPECT_EQ(VorString(c.right), text.right(c.n)) << c.n;
    }
    EXPECT_EQ(VorString(), VorString().left(3));
    EXPECT_EQ(VorString(), VorString().right(3));
    EXPECT_EQ(VorString(L"\0b", 2), VorString(L"a\0b", 3).right(2));
}

TEST(VorStringSearchTest, ATextMayBeReplacedByAPartOfItself)
{
    const LeakCheck leaks;
    VorString text(L"%SumBy:%Weight");

    text = text.right(7);
    EXPECT_EQ(VorString(L"%Weight"), text);

    text = text.left(2);
    EXPECT_EQ(VorString(L"%W"), text);
}

TEST(VorStringSearchTest, GetTokensSplitsAtRunsOfDelimiters)
{
    const struct
    {
        const wchar_t* text;
        const wchar_t* delimiters;
        const wchar_t* pieces; // each behind a bar
    } cases[] = {
        { L"a  b+c", L" +", L"|a|b|c" },
        { L"%PosNum,%Material", L",", L"|%PosNum|%Material" },
        { L",,%A,,%B,,", L",", L"|%A|%B" }, // none at either end
        { L"%A", L",", L"|%A" },
        { L"a + b", L"+ ", L"|a|b" }, // a run of unlike delimiters is one
        { L"", L",", L"" },
        { L",,,", L",", L"" },
        { L"a b", L"", L"|a b" }, // nothing divides
        { L"", L"", L"" },
        { L"abc", L"abc", L"" },
    };
    for (const auto& c : cases)
    {
        const VorStringArray pieces = split(c.text, c.delimiters);
        EXPECT_EQ(VorString(c.pieces), joinWithBars(pieces)) << VorString(c.text) << " at " << VorString(c.delimiters);
    }
}

TEST(VorStringSearchTest, GetTokensEmptiesThePiecesFirst)
{
    const LeakCheck leaks;
    VorStringArray pieces;
    pieces.append(VorString(L"old"));
    pieces.append(VorString(L"older"));

    VorString::getTokens(L"a b c", pieces, L" ");
    EXPECT_EQ(VorString(L"|a|b|c"), joinWithBars(pieces));

    VorString::getTokens(L"", pieces, L" ");
    EXPECT_EQ(0, pieces.length());
}

TEST(VorStringSearchTest, GetTokensSplitsAnElementOfThePieces)
{
    const LeakCheck leaks;
    VorStringArray pieces;
    pieces.append(VorString(L"a,b;c"));
    pieces.append(VorString(L",;"));

    VorString::getTokens(pieces[0], pieces, pieces[1]);

    EXPECT_EQ(VorString(L"|a|b|c"), joinWithBars(pieces));
}

TEST(VorStringSearchTest, AZeroCharacterIsAnOrdinaryOneInGetTokens)
{
    const VorStringArray atBlank = split(VorString(L"a\0b c", 5), VorString(L" "));
    ASSERT_EQ(2, atBlank.length());
    EXPECT_EQ(VorString(L"a\0b", 3), atBlank[0]);

    const VorStringArray atZero = split(VorString(L"a\0b c", 5), VorString(L"\0", 1));
    ASSERT_EQ(2, atZero.length());
    EXPECT_EQ(VorString(L"b c"), atZero[1]);
}

TEST(VorStringSearchTest, AHundredThousandPiecesAreAllThere)
{
    const LeakCheck leaks;
    VorString list;
    for (int i = 0; i < 100000; ++i)
        list += L"%A,";

    const VorStringArray pieces = split(list, L",");

    ASSERT_EQ(100000, pieces.length());
    for (const VorString& piece : pieces)
        ASSERT_EQ(VorString(L"%A"), piece);
}
