#include "MekRoots/Test/Support/TestSupport.h"

#include <algorithm>
#include <climits>
#include <utility>

namespace
{
VorString text(const wchar_t* characters, int length)
{
    return VorString(characters, length);
}
}

TEST(VorStringTest, ADefaultTextIsEmptyAndItsCharactersAreNeverNull)
{
    const VorString empty;

    EXPECT_EQ(0, empty.length());
    EXPECT_EQ(1, empty.isEmpty());
    ASSERT_NE(nullptr, empty.getStringW());
    EXPECT_EQ(L'\0', empty.getStringW()[0]);
}

TEST(VorStringTest, ANullPointerGivesTheEmptyText)
{
    EXPECT_EQ(VorString(), VorString(static_cast<const wchar_t*>(nullptr)));
    EXPECT_EQ(VorString(), text(nullptr, 5));
    EXPECT_EQ(VorString(), VorString(L""));
}

TEST(VorStringTest, ALengthBelowOneGivesTheEmptyText)
{
    EXPECT_EQ(VorString(), text(L"Beam", 0));
    EXPECT_EQ(VorString(), text(L"Beam", -1));
    EXPECT_EQ(VorString(), text(L"Beam", INT_MIN));
}

TEST(VorStringTest, CharactersAreKeptAndTerminated)
{
    const VorString name(L"HEA 200");

    EXPECT_EQ(7, name.length());
    EXPECT_EQ(0, name.isEmpty());
    EXPECT_EQ(0, std::wcscmp(L"HEA 200", name.getStringW()));
}

TEST(VorStringTest, ATextOfALengthIsWrittenInItsPlace)
{
    const LeakCheck leaks;
    wchar_t* pCharacters = nullptr;

    const VorString name = VorString::ofLength(3, pCharacters);
    std::copy_n(L"HEA", 3, pCharacters);

    EXPECT_EQ(VorString(L"HEA"), name);
    EXPECT_EQ(pCharacters, name.getStringW());
    EXPECT_EQ(L'\0', name.getStringW()[3]);
}

TEST(VorStringTest, ItsMemoryIsTheSameForSharedTextsAndNoneForTheEmptyOne)
{
    const VorString name(L"HEA 200");
    const VorString copy = name;

    EXPECT_EQ(nullptr, VorString().memory());
    ASSERT_NE(nullptr, name.memory());
    EXPECT_EQ(name.memory(), copy.memory());
    EXPECT_NE(name.memory(), VorString(L"HEA 200").memory());
}

TEST(VorStringTest, ALengthCutsTheTextAndKeepsZeroCharacters)
{
    EXPECT_EQ(VorString(L"HEA"), text(L"HEA 200", 3));

    const VorString withZero = text(L"a\0b", 3);
    EXPECT_EQ(3, withZero.length());
    EXPECT_EQ(L'b', withZero.getStringW()[2]);
    EXPECT_EQ(L'\0', withZero.getStringW()[3]);
    EXPECT_FALSE(withZero == VorString(L"a"));
    EXPECT_FALSE(withZero == text(L"a\0c", 3));
}

TEST(VorStringTest, ATextIsAsLargeAsAPointer)
{
    EXPECT_EQ(sizeof(void*), sizeof(VorString));
}

TEST(VorStringTest, CopiesShareTheirCharactersUntilOneChanges)
{
    const LeakCheck leaks;
    const VorString original(L"%Weight");
    VorString copy(original);
    EXPECT_TRUE(copy.sharesTextWith(original));

    copy += L"!";

    EXPECT_EQ(VorString(L"%Weight"), original);
    EXPECT_EQ(VorString(L"%Weight!"), copy);
    EXPECT_FALSE(copy.sharesTextWith(original));
}

TEST(VorStringTest, EveryChangeOfACopyLeavesTheOriginalAlone)
{
    const LeakCheck leaks;
    const VorString original(L"a-b-c");
    void (*const changes[])(VorString&) = {
        [](VorString& t) { t += VorString(L"x"); },
        [](VorString& t) { t += L"x"; },
        [](VorString& t) { t += L'x'; },
        [](VorString& t) { t.append(L"xyz", 2); },
        [](VorString& t) { t.append(L'x', 3); },
        [](VorString& t) { t.removeAll(L'-'); },
        [](VorString& t) { t.empty(); },
        [](VorString& t) { t.format(L"%d", 5); },
        [](VorString& t) { t = VorString(L"y"); },
    };
    for (const auto change : changes)
    {
        VorString copy(original);
        change(copy);
        EXPECT_NE(original, copy);
        EXPECT_EQ(VorString(L"a-b-c"), original);
    }
}

TEST(VorStringTest, AMoveLeavesTheEmptyTextBehind)
{
    const LeakCheck leaks;
    VorString source(L"%Name");
    VorString target(std::move(source));
    EXPECT_EQ(VorString(L"%Name"), target);
    EXPECT_EQ(1, source.isEmpty()); // NOLINT(bugprone-use-after-move): the moved-from state is promised

    VorString assigned(L"old");
    assigned = std::move(target);
    EXPECT_EQ(VorString(L"%Name"), assigned);
    EXPECT_EQ(1, target.isEmpty()); // NOLINT(bugprone-use-after-move)
}

TEST(VorStringTest, AssigningATextToItselfKeepsIt)
{
    const LeakCheck leaks;
    VorString token(L"%Length");
    VorString& same = token;

    token = same;
    EXPECT_EQ(VorString(L"%Length"), token);

    token = std::move(same);
    EXPECT_EQ(VorString(L"%Length"), token);
}

TEST(VorStringTest, AssignmentReplacesTheText)
{
    const LeakCheck leaks;
    VorString target(L"old");

    target = VorString(L"newer");
    EXPECT_EQ(VorString(L"newer"), target);

    target = VorString();
    EXPECT_EQ(1, target.isEmpty());
}

TEST(VorStringTest, EmptyClears)
{
    const LeakCheck leaks;
    VorString token(L"%Length");

    token.empty();

    EXPECT_EQ(VorString(), token);
    token.empty();
    EXPECT_EQ(0, token.length());
}

TEST(VorStringTest, EqualityIsExact)
{
    EXPECT_TRUE(VorString(L"Beam") == VorString(L"Beam"));
    EXPECT_FALSE(VorString(L"Beam") == VorString(L"beam"));
    EXPECT_FALSE(VorString(L"Beam") == VorString(L"Beam "));
    EXPECT_FALSE(VorString(L"Beam") == VorString());
    EXPECT_TRUE(VorString() == VorString());
    EXPECT_TRUE(VorString(L"Beam") != VorString(L"Bean"));
}

TEST(VorStringTest, AppendingJoins)
{
    const LeakCheck leaks;
    VorString joined;

    joined += VorString(L"%SumBy:");
    joined += L"%Weight";
    joined += L'!';
    joined += VorString();
    joined += L"";
    joined += static_cast<const wchar_t*>(nullptr);

    EXPECT_EQ(VorString(L"%SumBy:%Weight!"), joined);
}

TEST(VorStringTest, AppendingToAnEmptyTextGivesTheOther)
{
    const VorString token(L"%Weight");
    VorString joined;

    joined += token;

    EXPECT_EQ(token, joined);
}

TEST(VorStringTest, AppendTakesSoManyCharacters)
{
    VorString joined(L"a");

    joined.append(L"bcd", 2);
    joined.append(L"x\0y", 3);
    joined.append(L'-', 2);
    EXPECT_EQ(text(L"abcx\0y--", 8), joined);

    joined.append(L"bcd", 0);
    joined.append(L"bcd", -1);
    joined.append(nullptr, 4);
    joined.append(L'-', 0);
    joined.append(L'-', -5);
    EXPECT_EQ(text(L"abcx\0y--", 8), joined);
}

TEST(VorStringTest, ATextMayBeAppendedToItself)
{
    const LeakCheck leaks;
    for (int numRounds = 1; numRounds <= 8; ++numRounds)
    {
        VorString doubled(L"ab");
        for (int i = 0; i < numRounds; ++i)
            doubled += doubled;
        ASSERT_EQ(2 << numRounds, doubled.length());
        for (int i = 0; i < doubled.length(); ++i)
            ASSERT_EQ(i % 2 == 0 ? L'a' : L'b', doubled.getStringW()[i]);
    }
}

TEST(VorStringTest, APartOfATextMayBeAppendedToIt)
{
    const LeakCheck leaks;
    VorString digits(L"0123456789");
    for (int i = 0; i < 200; ++i) // crosses many growths of the block
        digits.append(digits.getStringW() + 3, 4);

    VorString expected(L"0123456789");
    for (int i = 0; i < 200; ++i)
        expected += L"3456";
    EXPECT_EQ(expected, digits);

    VorString tail(L"HEA");
    tail += tail.getStringW() + 1;
    EXPECT_EQ(VorString(L"HEAEA"), tail);
}

TEST(VorStringTest, AppendingCharacterByCharacterGivesEveryCharacter)
{
    const LeakCheck leaks;
    VorString joined;
    for (int i = 0; i < 100000; ++i)
        joined += static_cast<wchar_t>(L'a' + i % 26);

    ASSERT_EQ(100000, joined.length());
    for (int i = 0; i < joined.length(); ++i)
        ASSERT_EQ(static_cast<wchar_t>(L'a' + i % 26), joined.getStringW()[i]);
    EXPECT_EQ(L'\0', joined.getStringW()[100000]);
}

TEST(VorStringTest, RemoveAllTakesEveryOccurrenceOut)
{
    const LeakCheck leaks;
    VorString list(L" %PosNum , %Material ");
    list.removeAll(L' ');
    EXPECT_EQ(VorString(L"%PosNum,%Material"), list);

    list.removeAll(L'x');
    EXPECT_EQ(VorString(L"%PosNum,%Material"), list);

    VorString blanks(L"   ");
    blanks.removeAll(L' ');
    EXPECT_EQ(1, blanks.isEmpty());
    EXPECT_EQ(VorString(), blanks);

    VorString zeros = text(L"a\0b\0", 4);
    zeros.removeAll(L'\0');
    EXPECT_EQ(VorString(L"ab"), zeros);

    VorString nothing;
    nothing.removeAll(L' ');
    EXPECT_EQ(VorString(), nothing);
}

TEST(VorStringTest, ALongTextKeepsItsBlocksCounted)
{
    const LeakCheck leaks;
    VorString large(L"x");
    for (int i = 0; i < 20; ++i) // 4 MB: past what the pool holds
        large += large;
    VorString copy(large);
    copy.removeAll(L'y');
    copy.removeAll(L'x');
    EXPECT_EQ(1 << 20, large.length());
    EXPECT_EQ(1, copy.isEmpty());
}
