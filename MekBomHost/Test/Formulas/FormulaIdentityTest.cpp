#include "FormulaIdentity.h"

#include "ArithmeticReading.h"
#include "EngineReading.h"

#include <gtest/gtest.h>

namespace mekbom
{
namespace
{
bool areSame(const wchar_t* a, const wchar_t* b)
{
    return FormulaIdentity::haveSameValue(ArithmeticReading::read(a).tree, ArithmeticReading::read(b).tree);
}

bool isReadAsWritten(const wchar_t* formula)
{
    return FormulaIdentity::haveSameValue(EngineReading::read(formula).tree, ArithmeticReading::read(formula).tree);
}
}

TEST(FormulaIdentityTest, TreesThatAreAlwaysEqualAreTheSame)
{
    EXPECT_TRUE(areSame(L"(a+b)+c", L"a+(b+c)"));
    EXPECT_TRUE(areSame(L"(a-b)*(a+b)", L"a*a-b*b"));
    EXPECT_TRUE(areSame(L"a/3+a/3+a/3", L"a"));
    EXPECT_TRUE(areSame(L"a*0.1", L"0.1*a"));
    EXPECT_TRUE(areSame(L"a/b/c", L"a/(b*c)"));
    EXPECT_TRUE(areSame(L"x=a*2;x+b", L"a+b+a"));
    EXPECT_TRUE(areSame(L"1e10*a/1e10", L"a"));
    EXPECT_TRUE(areSame(L"1e-30*a*1e30/1e-30", L"a*1e30"));
    EXPECT_TRUE(areSame(L"", L"0"));
}

TEST(FormulaIdentityTest, OthersDiffer)
{
    EXPECT_FALSE(areSame(L"a", L"b"));
    EXPECT_FALSE(areSame(L"(a+b)*2", L"a+b*2"));
    EXPECT_FALSE(areSame(L"a", L"a+0.0000001"));
    EXPECT_FALSE(areSame(L"a*b", L"a*b*b/a"));
    EXPECT_FALSE(areSame(L"a/0", L"a"));
    EXPECT_TRUE(areSame(L"a/0", L"b/(c-c)")); // none has a value
}

TEST(FormulaIdentityTest, TheTwoReadingsAreComparedByValue)
{
    for (const wchar_t* formula : { L"2*3*(4+5)", L"2+(4+5)", L"(a+b)*2", L"a*b+c*d", L"-2*3", L"-a/b", L"2*-3",
                                    L"a-(b-c)", L"a+(b)+c", L"(a+b)*2-c", L"a/(b+c)", L"a*(b-c)/2" })
        EXPECT_TRUE(isReadAsWritten(formula)) << formula;
    for (const wchar_t* formula :
         { L"2*3+(4+5)*6", L"a-(b-1)*2", L"(a+b)*2-(c-1)*3", L"8/-2/2", L"a-(b)*c", L"a+((b+c)*2)", L"a*+b" })
        EXPECT_FALSE(isReadAsWritten(formula)) << formula;
}
}
