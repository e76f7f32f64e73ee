// The four comparisons of texts, and the orders made from them.
#include "MekRoots/Exp/VorStringOrder.h"

#include "MekRoots/Test/Support/RandomCount.h"
#include "MekRoots/Test/Support/TestSupport.h"

#include <algorithm>
#include <climits>
#include <random>
#include <string>
#include <vector>

namespace
{
// Slow natural order, by the letter: a text is cut into runs of digits (without leading zeros) and single characters.
struct Piece
{
    std::wstring digits; // of a run, without leading zeros
    wchar_t first = 0;   // the character, or the run's first digit
    bool isRun = false;
};

bool isDigit(wchar_t c)
{
    return c >= L'0' && c <= L'9';
}

std::vector<Piece> piecesOf(const std::wstring& text)
{
    std::vector<Piece> pieces;
    std::size_t i = 0;
    while (i < text.size())
    {
        Piece piece;
        piece.first = text[i];
        piece.isRun = isDigit(text[i]);
        for (; piece.isRun && i < text.size() && isDigit(text[i]); ++i)
            if (!piece.digits.empty() || text[i] != L'0')
                piece.digits += text[i];
        if (!piece.isRun)
            ++i;
        pieces.push_back(piece);
    }
    return pieces;
}

template <class T>
int order(const T& a, const T& b)
{
    return a < b ? -1 : (b < a ? 1 : 0);
}

int order(const Piece& a, const Piece& b)
{
    if (!a.isRun || !b.isRun)
        return order<wchar_t>(a.first, b.first);
    if (a.digits.size() != b.digits.size())
        return order(a.digits.size(), b.digits.size());
    return order(a.digits, b.digits);
}

int naturalOrder(const std::wstring& a, const std::wstring& b)
{
    const std::vector<Piece> piecesOfA = piecesOf(a);
    const std::vector<Piece> piecesOfB = piecesOf(b);
    for (std::size_t i = 0; i < piecesOfA.size() && i < piecesOfB.size(); ++i)
        if (const int byPiece = order(piecesOfA[i], piecesOfB[i]))
            return byPiece;
    const int byLength = order(piecesOfA.size(), piecesOfB.size());
    return byLength != 0 ? byLength : order(a, b);
}

std::wstring randomText(std::mt19937& random)
{
    const std::wstring alphabet = L"000129AaB-. \x00C4";
    std::wstring text(random() % 7, L' ');
    for (wchar_t& c : text)
        c = alphabet[random() % alphabet.size()];
    return text;
}

VorString naturalOf(const std::wstring& text)
{
    return VorString(text.data(), static_cast<int>(text.size()));
}

// Every text comes before all that follow it.
void expectAscending(const std::vector<VorString>& texts, int (*compare)(const VorString&, const VorString&))
{
    for (std::size_t i = 0; i < texts.size(); ++i)
        for (std::size_t k = 0; k < texts.size(); ++k)
            EXPECT_EQ(order(i, k), compare(texts[i], texts[k])) << texts[i] << " and " << texts[k];
}

int compareWhole(const VorString& a, const VorString& b)
{
    return VorString::compare(a, b);
}
}

TEST(VorStringOrderTest, CompareGoesByTheCharactersValues)
{
    expectAscending(
        {
            VorString(),
            VorString(L"\0", 1), // a zero character is one like any other
            VorString(L" "),
            VorString(L"B10"),
            VorString(L"B2"), // digits are characters here
            VorString(L"B20"),
            VorString(L"Beam"),
            VorString(L"Beam "), // a prefix comes first
            VorString(L"Beams"),
            VorString(L"Z"),
            VorString(L"_"), // capitals, then this, then small letters
            VorString(L"a"),
            VorString(L"a\0", 2),
            VorString(L"a\0b", 3),
            VorString(L"ab"),
            VorString(L"z"),
            VorString(L"\x00C4"), // no locale puts this near A
            VorString(L"\xFFEE"),
        },
        compareWhole);
}

TEST(VorStringOrderTest, CompareOfTheFirstCharactersCutsBoth)
{
    const struct
    {
        const wchar_t* a;
        const wchar_t* b;
        int n;
        int expected;
    } cases[] = {
        { L"%SumBy:%Weight", L"%SumBy:%Length", 7, 0 },
        { L"%SumBy:%Weight", L"%SumBy:%Length", 8, 0 },
        { L"%SumBy:%Weight", L"%SumBy:%Length", 9, 1 },
        { L"%SumBy:%Length", L"%SumBy:%Weight", 9, -1 },
        { L"ab", L"abc", 2, 0 },
        { L"ab", L"abc", 3, -1 }, // what is left after the cut compares as whole texts do
        { L"abc", L"ab", 3, 1 },
        { L"abc", L"ab", INT_MAX, 1 },
        { L"ab", L"ab", 99, 0 },
        { L"a", L"b", 0, 0 },
        { L"a", L"b", -1, 0 },
        { L"a", L"b", INT_MIN, 0 },
        { L"", L"b", 1, -1 },
        { L"", L"", 1, 0 },
    };
    for (const auto& c : cases)
        EXPECT_EQ(c.expected, VorString::compare(c.a, c.b, c.n))
            << VorString(c.a) << " and " << VorString(c.b) << " over " << c.n;
}

TEST(VorStringOrderTest, NaturalOrderReadsDigitRunsAsNumbers)
{
    expectAscending(
        {
            VorString(),        VorString(L" 1"),   VorString(L"0"),     VorString(L"00"),  VorString(L"1"),
            VorString(L"1a"),
            VorString(L"002"), // ties with 2, and then stands by its characters
            VorString(L"02"),   VorString(L"2"),    VorString(L"2.9"),
            VorString(L"2.10"), // no decimal point here: 9 before 10
            VorString(L"10"),   VorString(L"B"),
            VorString(L"B 2"), // blank, minus, digit: by the character codes
            VorString(L"B-2"),  VorString(L"B-10"), VorString(L"B02"),   VorString(L"B2"),  VorString(L"B02x"),
            VorString(L"B2x"), // the zeros decide only when nothing else does
            VorString(L"B3"),   VorString(L"B10"),  VorString(L"B010C"), VorString(L"BA1"), VorString(L"a"),
        },
        VorString::compareWithNumbers);
}

TEST(VorStringOrderTest, AnEarlierNumberOutweighsZerosBeforeIt)
{
    EXPECT_EQ(-1, VorString::compareWithNumbers(L"B2-1", L"B02-2"));
    EXPECT_EQ(1, VorString::compareWithNumbers(L"B2-2", L"B02-1"));
    EXPECT_EQ(1, VorString::compareWithNumbers(L"B2-1", L"B02-1"));
    EXPECT_EQ(-1, VorString::compareWithNumbers(L"B2-01", L"B2-1"));
    EXPECT_EQ(1, VorString::compareWithNumbers(L"a2b01", L"a02b1")); // the first difference decides the tie
}

TEST(VorStringOrderTest, DigitRunsOfAnyLengthCompareByValue)
{
    VorString nines(L"N");
    nines.append(L'9', 5000);
    VorString power(L"N1");
    power.append(L'0', 5000);
    VorString nextPower(L"N1");
    nextPower.append(L'0', 4999);
    nextPower += L'1';
    VorString padded(L"N");
    padded.append(L'0', 10000);
    padded += L"8";

    expectAscending({ padded, nines, power, nextPower }, VorString::compareWithNumbers);
    EXPECT_EQ(-1, VorString::compareWithNumbers(L"4294967296", L"4294967297"));
    EXPECT_EQ(-1, VorString::compareWithNumbers(L"18446744073709551616", L"18446744073709551617"));
    EXPECT_EQ(1, VorString::compareWithNumbers(L"18446744073709551616", L"1"));
}

TEST(VorStringOrderTest, OnlyTheDigitsOfAsciiMakeNumbers)
{
    // Arabic-Indic ten and nine: by the first character's value, not by the number's.
    EXPECT_EQ(-1, VorString::compareWithNumbers(L"\x0661\x0660", L"\x0669"));
}

TEST(VorStringOrderTest, ZeroCharactersTakePartInNaturalOrder)
{
    EXPECT_EQ(-1, VorString::compareWithNumbers(VorString(L"a\0"
                                                          L"2",
                                                          3),
                                                VorString(L"a\0"
                                                          L"10",
                                                          4)));
    EXPECT_EQ(-1, VorString::compareWithNumbers(VorString(L"a"), VorString(L"a\0", 2)));
}

TEST(VorStringOrderTest, NaturalOrderAgreesWithItsSlowForm)
{
    std::mt19937 random(20240501);
    for (int i = 0; i < numRandomCases(200000); ++i)
    {
        const std::wstring a = randomText(random);
        const std::wstring b = randomText(random);

        ASSERT_EQ(naturalOrder(a, b), VorString::compareWithNumbers(naturalOf(a), naturalOf(b)))
            << naturalOf(a) << " and " << naturalOf(b);
    }
}

TEST(VorStringOrderTest, NaturalOrderIsATotalOrder)
{
    std::mt19937 random(99);
    std::vector<VorString> texts;
    texts.reserve(120);
    for (int i = 0; i < 120; ++i)
        texts.push_back(naturalOf(randomText(random)));

    const auto compare = VorString::compareWithNumbers;
    for (const VorString& a : texts)
        for (const VorString& b : texts)
        {
            const int ab = compare(a, b);
            ASSERT_EQ(-ab, compare(b, a)) << a << " and " << b;
            ASSERT_EQ(a == b, ab == 0) << a << " and " << b;
            for (const VorString& c : texts)
                if (ab <= 0 && compare(b, c) <= 0)
                {
                    ASSERT_LE(compare(a, c), 0) << a << ", " << b << ", " << c;
                }
        }
}

TEST(VorStringOrderTest, SortingNaturallyKeepsEqualTextsTogether)
{
    std::vector<VorString> texts = { L"B2", L"B02", L"B10", L"B2", L"B02", L"B1" };

    std::sort(texts.begin(), texts.end(),
              [](const VorString& a, const VorString& b) { return VorString::compareWithNumbers(a, b) < 0; });

    EXPECT_EQ((std::vector<VorString>{ L"B1", L"B02", L"B02", L"B2", L"B2", L"B10" }), texts);
}

TEST(VorStringOrderTest, CaseFoldingIsThatOfAsciiAlone)
{
    const struct
    {
        const wchar_t* a;
        const wchar_t* b;
        int expected;
    } cases[] = {
        { L"Beam", L"bEAM", 0 },
        { L"abc", L"ABD", -1 },
        { L"ABD", L"abc", 1 },
        { L"Z", L"z", 0 },
        { L"A", L"a", 0 },
        { L"@", L"`", -1 },           // the neighbours of A and a differ
        { L"[", L"{", -1 },           // those of Z and z too
        { L"_", L"A", -1 },           // capitals become small ones, so this stands before them all
        { L"\x00C4", L"\x00E4", -1 }, // no other alphabet is folded
        { L"", L"a", -1 },
        { L"Beam", L"BEAMS", -1 },
        { L"", L"", 0 },
        { L"B2", L"b10", 1 }, // digits are characters
    };
    for (const auto& c : cases)
    {
        const VorString a(c.a);
        const VorString b(c.b);
        EXPECT_EQ(c.expected, VorString::strCompareNoCase(&a, &b)) << a << " and " << b;
        EXPECT_EQ(-c.expected, VorString::strCompareNoCase(&b, &a)) << b << " and " << a;
    }
}

TEST(VorStringOrderTest, CaseFoldingComparesPastZeroCharacters)
{
    const VorString a(L"a\0B", 3);
    const VorString b(L"A\0c", 3);

    EXPECT_EQ(-1, VorString::strCompareNoCase(&a, &b));
}

TEST(VorStringOrderTest, OrdersForContainersAreThoseOfTheComparisons)
{
    const VorString upper(L"B");
    const VorString lower(L"a");

    EXPECT_TRUE(VorStringLess()(upper, lower));
    EXPECT_FALSE(VorStringLess()(lower, upper));
    EXPECT_FALSE(VorStringLess()(upper, upper));
    EXPECT_TRUE(VorStringLessNoCase()(lower, upper));
    EXPECT_FALSE(VorStringLessNoCase()(upper, lower));
    EXPECT_FALSE(VorStringLessNoCase()(VorString(L"A"), lower));
}
