#include "ArithmeticReading.h"

#include <gtest/gtest.h>

namespace mekbom
{
namespace
{
struct ReadingCase
{
    const wchar_t* formula;
    const char* text;
};

struct FaultCase
{
    const wchar_t* formula;
    ArithmeticReading::eFault fault;
    const char* what;
};
}

TEST(ArithmeticReadingTest, FormulasAreReadAsTheyAreUsuallyWritten)
{
    const ReadingCase cases[] = {
        { L"a*2+b", "((a*2)+b)" },
        { L"8-3-2", "((8-3)-2)" },
        { L"8/4/2", "((8/4)/2)" },
        { L"2*3+(4+5)*6", "((2*3)+((4+5)*6))" },
        { L"%W-(%Q-1)*2", "(%W-((%Q-1)*2))" },
        { L"8/-2/2", "((8/(-2))/2)" },
        { L"-a*b", "((-a)*b)" },
        { L"--a", "(-(-a))" },
        { L"+a*+b", "(a*b)" },
        { L"((a))", "a" },
        { L" my length * 2 ", "(my length*2)" },
        { L"1e-3*a", "(1e-3*a)" },
        { L"1.5E+2", "1.5E+2" },
        { L"a=4;2*a", "a=4;(2*a)" },
        { L"a=b=3", "(a=b)=3" },
        { L"a=4;", "a=4;" },
        { L";", ";" },
        { L"", "" },
    };
    for (const ReadingCase& c : cases)
    {
        const ArithmeticReading reading = ArithmeticReading::read(c.formula);
        EXPECT_EQ(ArithmeticReading::kNone, reading.fault) << c.text;
        EXPECT_EQ(c.text, reading.tree.text());
    }
}

TEST(ArithmeticReadingTest, WhatArithmeticDoesNotKnowIsAFault)
{
    const FaultCase cases[] = {
        { L"a*", ArithmeticReading::kOperandMissing, "" },
        { L"*a", ArithmeticReading::kOperandMissing, "" },
        { L"a*/b", ArithmeticReading::kOperandMissing, "" },
        { L"()", ArithmeticReading::kOperandMissing, "" },
        { L"a=;b", ArithmeticReading::kOperandMissing, "" },
        { L"-", ArithmeticReading::kOperandMissing, "" },
        { L"=5", ArithmeticReading::kOperandMissing, "" },
        { L"round(a*2.2)", ArithmeticReading::kFactorLost, "round" },
        { L"2(3+4)", ArithmeticReading::kFactorLost, "2" },
        { L"(a)(b)", ArithmeticReading::kFactorLost, "a" },
        { L"(a+2) b", ArithmeticReading::kFactorLost, "(a+2)" },
        { L"2,5*a", ArithmeticReading::kNoNumber, "2,5" },
        { L"10%*a", ArithmeticReading::kNoNumber, "10%" },
        { L"2^3+0", ArithmeticReading::kNoNumber, "2^3" },
        { L"2nd", ArithmeticReading::kNoNumber, "2nd" },
        { L"2 a", ArithmeticReading::kNoNumber, "2 a" },
        { L"..", ArithmeticReading::kNoNumber, ".." },
        { L")2+3(", ArithmeticReading::kCrossed, "" },
        { L"a+b)*2", ArithmeticReading::kCrossed, "" },
        { L"(a+b", ArithmeticReading::kNotClosed, "" },
        { L"(a;b)", ArithmeticReading::kNotClosed, "" },
    };
    for (const FaultCase& c : cases)
    {
        const ArithmeticReading reading = ArithmeticReading::read(c.formula);
        EXPECT_EQ(c.fault, reading.fault) << c.formula;
        EXPECT_EQ(c.what, reading.what) << c.formula;
    }
}

TEST(ArithmeticReadingTest, NumbersAreOfSinglePrecisionAsTheEngines)
{
    EXPECT_EQ(0.1F, ArithmeticReading::read(L"0.1").tree.nodes()[0].number);
}

TEST(ArithmeticReadingTest, DepthAndLengthTakeNoRecursion)
{
    VorString nested;
    nested.append(L'(', 100000);
    nested += L"1+2";
    nested.append(L')', 100000);
    VorString negated;
    negated.append(L'-', 100000);
    negated += L"1";

    EXPECT_EQ("(1+2)", ArithmeticReading::read(nested).tree.text());
    EXPECT_EQ(300001U, ArithmeticReading::read(negated).tree.text().size());
}
}
