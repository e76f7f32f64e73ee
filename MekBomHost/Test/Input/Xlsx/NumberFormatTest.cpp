#include "NumberFormat.h"

#include <gtest/gtest.h>

#include <string>

namespace mekbom
{
namespace
{
// "plain", "date" and so on; that of a unit is the unit.
std::string kindOf(const NumberFormat& format)
{
    switch (format.kind)
    {
        case NumberFormat::kPlain: return "plain";
        case NumberFormat::kDate: return "date";
        case NumberFormat::kPercent: return "percent";
        case NumberFormat::kScaled: return "scaled";
        case NumberFormat::kWithUnit: return format.unit;
    }
    return "";
}
}

TEST(NumberFormatTest, FormatsAreToldByWhatTheyShow)
{
    struct
    {
        const char* code;
        const char* kind;
    } const cases[] = {
        { "", "plain" },
        { "General", "plain" },
        { "GENERAL", "plain" },
        { "0", "plain" },
        { "0.00", "plain" },
        { "#,##0.00", "plain" },
        { "#,##0.00;[Red]-#,##0.00", "plain" },
        { "0.00E+00", "plain" },
        { "##0.0E+0", "plain" },
        { "0.00e-0", "plain" },
        { "# ?/?", "plain" },
        { "@", "plain" },
        { "_-* #,##0.00\\ \"\xE2\x82\xAC\"_-;-* #,##0.00\\ \"\xE2\x82\xAC\"_-", "plain" },
        { "[$\xE2\x82\xAC-407]#,##0.00", "plain" },
        { "_(\"$\"* #,##0_)", "plain" },
        { "[Magenta]0", "plain" },
        { "[<100]0.0;0", "plain" },
        { "0\" pieces per day\"", "plain" },
        { "0\"%\"", "plain" },
        { "0\\%", "plain" },
        { "0_%", "plain" },
        { "General\" Stk\"", "plain" },
        { "0\"", "plain" },
        { "0\\", "plain" },
        { "[", "plain" },
        { "yyyy-mm-dd", "date" },
        { "d/m/yy h:mm", "date" },
        { "DD.MM.YYYY", "date" },
        { "[$-407]d. mmmm yyyy;@", "date" },
        { "mmm\\-yy", "date" },
        { "[h]:mm", "date" },
        { "[SS]", "date" },
        { "mm:ss.0", "date" },
        { "ge", "date" },
        { "\"on \"d", "date" },
        { "0%", "percent" },
        { "0.00%;[Red]-0.00%", "percent" },
        { "0;-0%", "percent" },
        { "0,", "scaled" },
        { "#,##0,", "scaled" },
        { "0.0,,\"M\"", "scaled" },
        { "0.00\" kg\"", "kg" },
        { "#,##0\\ \"mm\"", "mm" },
        { "0\\m", "m" },
        { "#,##0.0\" ft\";[Red]-#,##0.0\" ft\"", "ft" },
        { "0\" furlongs\"", "plain" },
    };
    for (const auto& testCase : cases)
        EXPECT_EQ(testCase.kind, kindOf(NumberFormat::parse(testCase.code))) << testCase.code;
}

TEST(NumberFormatTest, FormatsWithoutACodeAreKnownByTheirNumbers)
{
    for (const int plain : { -1, 0, 1, 2, 3, 4, 5, 8, 11, 12, 13, 23, 26, 37, 44, 48, 49, 59, 163, 164 })
        EXPECT_EQ("plain", kindOf(NumberFormat::builtIn(plain))) << plain;
    for (const int percent : { 9, 10 })
        EXPECT_EQ("percent", kindOf(NumberFormat::builtIn(percent))) << percent;
    for (const int date : { 14, 17, 22, 27, 36, 45, 46, 47, 50, 58 })
        EXPECT_EQ("date", kindOf(NumberFormat::builtIn(date))) << date;
}
}
