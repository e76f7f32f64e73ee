#include "Support/FormulaSupport.h"

TEST(VorExprEvTextViewTest, ADefaultViewHasNoText)
{
    const VorExprEvTextView none;

    EXPECT_EQ(0, none.hasText());
    EXPECT_EQ(-1, none.start());
    EXPECT_EQ(-1, none.end());
    EXPECT_EQ(0, none.length());
    EXPECT_EQ(L'\0', none.at(-1));
    EXPECT_TRUE(none.existingPart().empty());
}

TEST(VorExprEvTextViewTest, AViewShowsPartOfItsText)
{
    const VorExprEvTextView whole = view(L"a*12+b");

    const VorExprEvTextView part = whole.part(2, 4);

    EXPECT_EQ(L"12", part.existingPart());
    EXPECT_EQ(2, part.length());
    EXPECT_EQ(6, part.textLength());
    EXPECT_EQ(L'+', part.at(4)); // the text goes on behind the view
}

TEST(VorExprEvTextViewTest, ThereAreZerosBeyondTheText)
{
    const wchar_t text[] = { L'a', L'b' }; // no terminating zero to be found in memory
    const VorExprEvTextView longer(text, 1, 4, 2);

    EXPECT_EQ(L"b", longer.existingPart());
    EXPECT_EQ(3, longer.length());
    EXPECT_EQ(L'b', longer.at(1));
    EXPECT_EQ(L'\0', longer.at(2));
    EXPECT_EQ(L'\0', longer.at(3));
}

TEST(VorExprEvTextViewTest, EqualViewsHaveTheSameCharacters)
{
    EXPECT_EQ(1, view(L"abc").isEqual(view(L"xabcx").part(1, 4)));
    EXPECT_EQ(0, view(L"abc").isEqual(view(L"abd")));
    EXPECT_EQ(0, view(L"abc").isEqual(view(L"aBc")));
    EXPECT_EQ(0, view(L"abc").isEqual(view(L"ab")));
    EXPECT_EQ(0, view(L"ab").isEqual(view(L"abc")));
    EXPECT_EQ(1, VorExprEvTextView().isEqual(view(L"")));
}

TEST(VorExprEvTextViewTest, ZeroCharactersCountInComparisons)
{
    const VorExprEvTextView overlong(L"a", 0, 2, 1);
    const VorExprEvTextView withZero(L"a\0b", 0, 2, 3);
    const VorExprEvTextView withLetter(L"ab", 0, 2, 2);

    EXPECT_EQ(0, overlong.isEqual(view(L"a")));
    EXPECT_EQ(1, overlong.isEqual(withZero));
    EXPECT_EQ(1, withZero.isEqual(overlong));
    EXPECT_EQ(0, overlong.isEqual(withLetter));
    EXPECT_EQ(0, withLetter.isEqual(overlong));
}
