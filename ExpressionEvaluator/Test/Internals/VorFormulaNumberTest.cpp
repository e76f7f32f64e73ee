// Short numbers are read without a call, and must be to the bit what the general reading makes of the same text.
#include "ExpressionEvaluator/Src/Reading/VorFormulaNumber.h"
#include "ExpressionEvaluator/Src/VorExprEvTreeItemOperand.h"

#include <gtest/gtest.h>

#include <cwchar>
#include <random>
#include <string>

namespace
{
double readInGeneral(const std::wstring& text)
{
    double number = -1.0;
    EXPECT_EQ(1, VorExprEvTreeItemOperand::scanNumber(VorExprEvTextView(text.c_str(), 0, static_cast<int>(text.size())),
                                                      number));
    return number;
}

// "12.5 behind *2" for the number and what is left to read; "not read" otherwise.
std::wstring scanned(const wchar_t* text)
{
    double number = -1.0;
    const wchar_t* pEnd = VorFormulaNumber::scanShort(text, number);
    if (pEnd == nullptr)
        return L"not read";
    EXPECT_EQ(readInGeneral(text), number) << text;
    wchar_t buffer[400];
    std::swprintf(buffer, std::size(buffer), L"%.9g behind ", number);
    return std::wstring(buffer) + pEnd;
}

std::wstring digits(std::mt19937& random, std::size_t mostDigits)
{
    std::wstring text;
    for (std::size_t i = random() % (mostDigits + 1); i > 0; --i)
        text += static_cast<wchar_t>(L'0' + random() % 10);
    return text;
}
}

TEST(VorFormulaNumberTest, DigitsAndAPointAreReadUpToTheEndOfTheOperand)
{
    EXPECT_EQ(L"2 behind ", scanned(L"2"));
    EXPECT_EQ(L"2 behind *a", scanned(L"2*a"));
    EXPECT_EQ(L"1.19000006 behind ;b", scanned(L"1.19;b")); // single precision
    EXPECT_EQ(L"7.84999975e-06 behind )", scanned(L"0.00000785)"));
    EXPECT_EQ(L"5 behind +1", scanned(L"5. \t\n\r+1"));
    EXPECT_EQ(L"7 behind ", scanned(L"007"));
}

TEST(VorFormulaNumberTest, WhatDoesNotEndWithTheNumberIsLeftToTheGeneralReading)
{
    for (const wchar_t* text : { L"2abc", L"1e5", L"1e+5", L"0x10", L"1.2.3", L"1,5", L"2 3", L"2\v", L"2\u00e9" })
        EXPECT_EQ(L"not read", scanned(text)) << text;
}

TEST(VorFormulaNumberTest, WhatOneDivisionCannotGiveIsLeftToTheGeneralReading)
{
    EXPECT_EQ(L"16777216 behind ", scanned(L"16777216")); // 2^24: the next one is no float
    EXPECT_EQ(L"not read", scanned(L"16777217"));
    EXPECT_EQ(L"1.00000001e-10 behind ", scanned(L"0.0000000001")); // 10^10 is the largest power that is a float
    EXPECT_EQ(L"not read", scanned(L"0.00000000001"));
    EXPECT_EQ(L"1 behind ", scanned(L"0000000000000000001")); // 19 characters
    EXPECT_EQ(L"not read", scanned(L"00000000000000000001"));
    EXPECT_EQ(L"not read", scanned(L"18446744073709551617")); // 2^64 + 1, which is 1 in 64 bits
}

TEST(VorFormulaNumberTest, RandomNumbersAreThoseOfTheGeneralReading)
{
    std::mt19937 random(42); // arbitrary
    int numRead = 0;
    for (int i = 0; i < 100000; ++i)
    {
        const std::wstring text = L"1" + digits(random, 8) + (random() % 4 == 0 ? L"" : L".") + digits(random, 11);
        double number = -1.0;
        if (VorFormulaNumber::scanShort(text.c_str(), number) == nullptr)
            continue;
        ++numRead;
        ASSERT_EQ(readInGeneral(text), number) << text;
    }
    EXPECT_GT(numRead, 10000);
}
