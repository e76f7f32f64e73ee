#include "ExpressionEvaluator/Src/VorExprEvTreeItemOperand.h"
#include "Support/FormulaSupport.h"

namespace
{
class VorExprEvTreeItemOperandTest : public testing::Test
{
protected:
    VorExprEvTreeItemOperandTest() { emptyThreadLists(); }
    ~VorExprEvTreeItemOperandTest() override { emptyThreadLists(); }
};

// What an operand evaluates to, from a value that held something else.
VorString valueOf(const VorExprEvTextView& text)
{
    VorExprEvValue value = integerValue(99);
    return textOf(VorExprEvTreeItemOperand(text).evaluate(value));
}

double numberOf(const wchar_t* text)
{
    VorExprEvValue value;
    const VorExprEvTreeItemOperand operand(view(text));
    EXPECT_EQ(VorExprEvValue::kDouble, operand.evaluate(value).type()) << toUtf8(text);
    return value.toNumber();
}

struct NumberCase
{
    const wchar_t* text;
    const wchar_t* value;
};

const NumberCase kNumbers[] = {
    { L"7", L"7.000000" },
    { L"2abc", L"2.000000" }, // the scan stops at the first letter
    { L"2 abc", L"2.000000" },
    { L".5", L"0.500000" },
    { L"5.", L"5.000000" },
    { L"1.5.5", L"1.500000" },
    { L"2,5", L"2.000000" },
    { L"1e2", L"100.000000" },
    { L"2e", L"2.000000" }, // an incomplete exponent is dropped
    { L"2elements", L"2.000000" },
    { L"1e-", L"1.000000" },
    { L"0x1F", L"31.000000" },
    { L"0x.8", L"0.500000" },
    { L"0x1p4", L"16.000000" },
    { L"0X1fg", L"31.000000" },
    { L"0x.", L"0.000000" }, // unlike "0x" and "0xg"
    { L"inf", L"inf" },
    { L"INFinity", L"inf" },
    { L"info", L"inf" },
    { L"1e39", L"inf" }, // past single precision
    { L"1e-60", L"0.000000" },
    { L"\v5", L"5.000000" }, // white space to a number, though not to the parser
    { L"\f\v 5", L"5.000000" },
    { L"\v", L"0.000000" }, // the text ends before any number
    { L"\v \n", L"0.000000" },
};

// Taken for names, though they start like numbers.
const wchar_t* const kNames[] = { L"abc", L"in",  L"i",  L"infix", L"infi", L"nab", L"na", L"n",    L"0x",    L"0xg",
                                  L".",   L"..5", L"e5", L"$5",    L"x1",   L"_",   L"%a", L"\v%a", L"\u0661" };
}

TEST_F(VorExprEvTreeItemOperandTest, NumbersAreReadFromTheStart)
{
    for (const NumberCase& c : kNumbers)
        EXPECT_EQ(VorString(c.value), valueOf(view(c.text))) << toUtf8(c.text);
    EXPECT_EQ("", errorCodes());
}

TEST_F(VorExprEvTreeItemOperandTest, NanIsANumber)
{
    EXPECT_NE(numberOf(L"nan"), numberOf(L"nan"));
    EXPECT_NE(numberOf(L"NaNcy"), numberOf(L"NaNcy"));
}

TEST_F(VorExprEvTreeItemOperandTest, NumbersAreReadInSinglePrecision)
{
    EXPECT_EQ(0.10000000149011612, numberOf(L"0.1"));
    EXPECT_EQ(16777216.0, numberOf(L"16777217"));
    EXPECT_EQ(1.401298464324817e-45, numberOf(L"1e-45"));
}

TEST_F(VorExprEvTreeItemOperandTest, TheNumberRunsPastTheView)
{
    EXPECT_EQ(VorString(L"100000.000000"), valueOf(view(L"1e+5").part(0, 2)));
    EXPECT_EQ(VorString(L"5.000000"), valueOf(view(L"1e+5").part(3, 4)));
    EXPECT_EQ(VorString(L"1.000000"), valueOf(VorExprEvTextView(L"1e+5", 0, 2, 2))); // here the text ends with the view
}

TEST_F(VorExprEvTreeItemOperandTest, TheNumberEndsWithTheTextAndNotWithAViewOfUnknownText)
{
    EXPECT_EQ(VorString(L"12.000000"), valueOf(VorExprEvTextView(L"12", 0, 1)));
    EXPECT_EQ(VorString(L"100000.000000"), valueOf(VorExprEvTextView(L"1e+5", 0, 2)));
    EXPECT_EQ(VorString(L"1.000000"), valueOf(VorExprEvTextView(L"1\0002", 0, 1)));
}

TEST_F(VorExprEvTreeItemOperandTest, NothingIsReadBeyondTheText)
{
    const wchar_t text[] = { L'1', L'2', L'3' };

    EXPECT_EQ(VorString(L"12.000000"), valueOf(VorExprEvTextView(text, 0, 3, 2)));
}

TEST_F(VorExprEvTreeItemOperandTest, AnOperandWithoutTextIsZero)
{
    EXPECT_EQ(VorString(L"0.000000"), valueOf(VorExprEvTextView()));
    EXPECT_EQ("", errorCodes());
}

TEST_F(VorExprEvTreeItemOperandTest, WhatIsNoNumberAndNoNameIsASyntaxError)
{
    for (const wchar_t* name : kNames)
    {
        emptyThreadLists();
        EXPECT_EQ(VorString(L"UnkValue"), valueOf(view(name))) << toUtf8(name);
        EXPECT_EQ("0", errorCodes()) << toUtf8(name);
    }
}

TEST_F(VorExprEvTreeItemOperandTest, WhatIsNoNumberIsLookedUp)
{
    for (const wchar_t* name : kNames)
    {
        emptyThreadLists();
        define(name, doubleValue(8.5));
        EXPECT_EQ(VorString(L"8.500000"), valueOf(view(name))) << toUtf8(name);
    }
    EXPECT_EQ("", errorCodes());
}

TEST_F(VorExprEvTreeItemOperandTest, WhatStartsAsANumberIsNeverLookedUp)
{
    define(L"2abc", doubleValue(8.5));
    define(L"info", doubleValue(8.5));

    EXPECT_EQ(VorString(L"2.000000"), valueOf(view(L"2abc")));
    EXPECT_EQ(VorString(L"inf"), valueOf(view(L"info")));
}

TEST_F(VorExprEvTreeItemOperandTest, AVariableGivesItsValueWithItsType)
{
    define(L"i", integerValue(3));
    define(L"b", booleanValue(1));
    define(L"u", VorExprEvValue());

    EXPECT_EQ(VorString(L"3"), valueOf(view(L"i")));
    EXPECT_EQ(VorString(L"True"), valueOf(view(L"b")));
    EXPECT_EQ(VorString(L"UnkValue"), valueOf(view(L"u")));
    EXPECT_EQ("", errorCodes());
}

TEST_F(VorExprEvTreeItemOperandTest, NamesAreComparedExactly)
{
    define(L"Length", doubleValue(1.0));

    EXPECT_EQ(VorString(L"UnkValue"), valueOf(view(L"length")));
    EXPECT_EQ(VorString(L"UnkValue"), valueOf(view(L"Lengt")));
    EXPECT_EQ(VorString(L"UnkValue"), valueOf(view(L"Lengths")));
    EXPECT_EQ(VorString(L"UnkValue"), valueOf(VorExprEvTextView(L"Length", 0, 7, 6)));
    EXPECT_EQ(VorString(L"1.000000"), valueOf(view(L"My Length*2").part(3, 9)));
}

TEST_F(VorExprEvTreeItemOperandTest, ItsNumberIsKnownWithoutEvaluating)
{
    double number = 99.0;

    EXPECT_EQ(1, VorExprEvTreeItemOperand(view(L"2abc")).getNumber(number));
    EXPECT_EQ(2.0, number);
    EXPECT_EQ(0, VorExprEvTreeItemOperand(view(L"abc")).getNumber(number));
    EXPECT_EQ(2.0, number); // untouched
    EXPECT_EQ(1, VorExprEvTreeItemOperand(view(L"\v")).getNumber(number));
    EXPECT_EQ(0.0, number);
    number = 99.0;
    EXPECT_EQ(1, VorExprEvTreeItemOperand(VorExprEvTextView()).getNumber(number));
    EXPECT_EQ(0.0, number);
    EXPECT_EQ("", errorCodes());
}

TEST_F(VorExprEvTreeItemOperandTest, ItIsCompleteAndNoOperator)
{
    const VorExprEvTreeItemOperand operand(view(L"abc").part(1, 2));

    EXPECT_EQ(1, operand.isComplete());
    EXPECT_EQ(0, operand.isOperator());
    EXPECT_EQ(L"b", operand.getText().existingPart());
}
