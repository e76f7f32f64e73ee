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

TEST(VorExprEvTextViewTest, ATextNotMeasuredGoesOnToItsTerminatingZero)
{
    const VorExprEvTextView part(L"a*12+b", 2, 3);

    EXPECT_EQ(L"1", part.existingPart());
    EXPECT_EQ(L"12+b", part.restOfText());
    EXPECT_EQ(L'2', part.at(3));
    EXPECT_EQ(6, part.textLength());
    EXPECT_EQ(6, part.measured().textLength());
    EXPECT_EQ(L'\0', part.at(6));
    EXPECT_EQ(L'\0', part.at(7));
    EXPECT_EQ(0, VorExprEvTextView(nullptr, 0, 0).textLength());
}

TEST(VorExprEvTextViewTest, ZerosWithinAViewEndNoText)
{
    const VorExprEvTextView view(L"a\0b+c", 0, 3);

    EXPECT_EQ(std::wstring_view(L"a\0b", 3), view.existingPart());
    EXPECT_EQ(5, view.textLength());
    EXPECT_EQ(L"a", view.restOfText());
}

TEST(VorExprEvTextViewTest, ANameNeedsNoTerminatingZero)
{
    const wchar_t letters[] = { L'a', L'b', L'c' };

    EXPECT_EQ(L"bc", VorExprEvTextView(letters, 1, 3).existingPart());
    EXPECT_EQ(1, VorExprEvTextView(letters, 1, 3).isEqual(VorExprEvTextView(L"bc", 0, 2)));
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
