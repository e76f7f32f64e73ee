#include "VorQuantityNumber.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>

namespace
{
struct NumberCase
{
    const wchar_t* text;
    double value;
    const wchar_t* rest; // what stands behind the number
};
const NumberCase kNumbers[] = {
    { L"2286", 2286, L"" },
    { L"7.5 ft", 7.5, L" ft" },
    { L"-1", NAN, L"-1" }, // signs are not read here
    { L".5", 0.5, L"" },
    { L".", NAN, L"." },
    { L"7.", 7, L"" },
    { L"1.5e+20", 1.5e20, L"" },
    { L"1.5e", 1.5, L"e" },
    { L"1.5e+", 1.5, L"e+" },
    { L"3E2m", 300, L"m" },
    { L"6 1/2\"", 6.5, L"\"" },
    { L"6-1/2", 6.5, L"" },
    { L"6   1/2", 6.5, L"" },
    { L"1/2", 0.5, L"" },
    { L"3/2", 1.5, L"" },
    { L"6 3/2", 6, L" 3/2" }, // behind a whole number a fraction is smaller than one
    { L"6.5 1/2", 6.5, L" 1/2" },
    { L"6--1/2", 6, L"--1/2" },
    { L"1/0", 1, L"/0" },
    { L"/2", NAN, L"/2" },
    { L"1/1234567890123456", 1, L"/1234567890123456" }, // more digits than a fraction may have
    { L"", NAN, L"" },
    { L" 1", NAN, L" 1" },
    { L"ft", NAN, L"ft" },
};
}

TEST(VorQuantityNumberTest, NumbersAreReadAsFarAsTheyGo)
{
    for (const NumberCase& c : kNumbers)
    {
        VorQuantityNumber number;
        const wchar_t* p = c.text;
        const bool isNumber = number.scan(p);

        EXPECT_EQ(!std::isnan(c.value), isNumber) << std::string(c.text, p);
        EXPECT_EQ(std::wstring(c.rest), p);
        EXPECT_EQ(isNumber ? c.value : 0.0, isNumber ? number.toDouble(0) : 0.0);
    }
}

TEST(VorQuantityNumberTest, OnlyDigitsAloneAreWhole)
{
    const auto isWhole = [](const wchar_t* text)
    {
        VorQuantityNumber number;
        number.scan(text);
        return number.isWhole();
    };

    EXPECT_TRUE(isWhole(L"7"));
    EXPECT_TRUE(isWhole(L"123456789012345"));
    EXPECT_FALSE(isWhole(L"1234567890123456"));
    EXPECT_FALSE(isWhole(L"7."));
    EXPECT_FALSE(isWhole(L"7e1"));
    EXPECT_FALSE(isWhole(L"7 1/2"));
}

TEST(VorQuantityNumberTest, WhatIsCarriedIsAddedBeforeTheNumberIsRounded)
{
    const auto sum = [](const wchar_t* text, std::uint64_t carried)
    {
        VorQuantityNumber number;
        number.scan(text);
        return number.toDouble(carried);
    };

    EXPECT_EQ(90.5, sum(L"6 1/2", 84));
    EXPECT_EQ(12.274, sum(L"0.274", 12));
    EXPECT_NE(12.274, 12 + 0.274) << "which is why";
    EXPECT_EQ(INFINITY, sum(L"1e999", 0));
}
