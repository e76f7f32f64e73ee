#include "FormulaRules.h"

#include "MistakeCodes.h"
#include "Support/FormulaSupport.h"

#include <gtest/gtest.h>

#include <string>

namespace mekbom
{
namespace
{
// The codes of a formula's findings, a note's or warning's marked: "MB404 MB415W".
std::string codesOf(const VorString& formula, const std::string& declared = std::string())
{
    std::string codes;
    for (const Finding& finding : FormulaRules::check(formula, operandOfTest, declared))
    {
        const char* const marks[] = { "", "W", "I" };
        codes += (codes.empty() ? "" : " ") + finding.code + marks[finding.severity];
    }
    return codes;
}

// The finding of the rule, as its statement and remedy.
std::string textOf(const wchar_t* formula, const std::string& declared = std::string())
{
    const std::vector<Finding> findings = FormulaRules::check(formula, operandOfTest, declared);
    return findings.empty() ? "" : findings.front().statement + ": " + findings.front().remedy;
}

struct RuleCase
{
    const wchar_t* formula;
    const char* codes;
    const char* declared = "none";
};

template <std::size_t N>
void expectCodes(const RuleCase (&cases)[N])
{
    for (const RuleCase& c : cases)
        EXPECT_EQ(c.codes, codesOf(c.formula, c.declared)) << c.formula;
}
}

TEST(FormulaRulesTest, EveryRuleTripsAndJustDoesNot)
{
    const RuleCase cases[] = {
        { L"1+2", "MB401" },
        { L"a*b", "MB401" },
        { L"1 + 2", "" },
        { L"%Weight", "MB402" },
        { L"%W", "MB402" },
        { L"", "MB402" },
        { L"%Weight*1", "" },
        { L"2*3+(4+5)*6", "MB404" },
        { L"%Weight-(%Quantity-1)*2", "MB404" },
        { L"(a+b)*2-(c-1)*3", "MB404" },
        { L"8/-2/2", "MB404" },
        { L"2*3+((4+5)*6)", "MB404" }, // the inner ')' groups the sum as well
        { L"(4+5)*6+2*3", "" },
        { L"x=c-1;(a+b)*2-x*3", "" },
        { L"8/(-2)/2", "" },
        { L"-2*%Quantity", "" },
        { L"round(%Weight*3)", "MB405" },
        { L"sqrt(%Area)*2", "MB405" },
        { L"2(3+4)", "MB405" },
        { L"(a)(b)", "MB405" },
        { L"2*(3+4)", "" },
        { L"a=4;2*a", "MB406" },
        { L"a=4;(2*a)", "" },
        { L"a=4;2*a;", "" },
        { L"a=4;a*2", "" },
        { L"a=%Length;a*2", "MB407" },
        { L"x=2;%Length*x*1", "MB407" },
        { L"a=%Length ;a*2", "" },
        { L"x=2; %Length*x*1", "" },
        { L"2,5*%Weight", "MB408" },
        { L"10%*%Weight", "MB408" },
        { L"2^3+0", "MB408" },
        { L"(2,5*3)%Quantity", "MB408" }, // the number is gone with its parentheses
        { L"2.5*%Weight", "" },
        { L"1e-3*%Weight", "MB409" },
        { L"1e3*%Weight", "" },
        { L"%Weight *", "MB410W" },
        { L"%Weight -", "MB410W" },
        { L"- %Weight", "" },
        { L"%Weight=5", "MB411W" },
        { L"a=b=3", "MB411W" },
        { L"2*(x=3)+1", "MB404 MB411W" },
        { L"x=3;x+1", "" },
        { L"%Name*2", "MB412" },
        { L"%UserAttr7*2", "MB412" },
        { L"%Quantity*2", "" },
        { L"%Weight/0.00000785", "MB414" },
        { L"%Weight/0", "MB414" },
        { L"%Weight/(0.01*0.001)", "MB414" },
        { L"%Weight/0.0001", "MB414" }, // 0.0000999999975 in single precision
        { L"%Weight/0.00011", "" },
        { L"%Weight/-0.00009", "MB414" },
        { L"16777217*%Quantity", "MB415W" },
        { L"3.14159265*%Quantity", "MB415I" },
        { L"16777216*%Quantity", "" },
        { L"3.141593*%Quantity", "" },
        { L"0.0000785*1", "MB415W" },
        { L"0.0785*1", "" },
        { L"%Weight/(%Length*%Width*%Thick)", "MB415W", "" },
        { L"%Weight/(%Length*%Width*%Thick)*1000000000", "", "kg/m3" },
        { L"%Formula:%Weight*2", "MB416" },
        { L"%%PaintMeter*2", "MB416" },
        { L"%SumBy:%Weight*2", "MB416" },
        { L"%Paint/%Length", "MB417W", "" },
        { L"%Paint/%Length", "", "area-per-length" },
        { L"%Weight/%Length", "", "" },
        { L"%Length*%Width", "", "" },
        { L"%Weight %Quantity*2", "MB418W" },
        { L"my length*2", "" },
        { L"2nd=%Weight ;(2nd*3)", "MB419W" },
        { L"inf*%Weight", "MB419W" },
        { L"2 a*%Weight", "MB408" },
        { L"infix=2;infix*3", "" },
        { L")2+3(", "MB420W" },
        { L"(2+3)", "" },
        { L"%Length/1000", "MB421", "" },
        { L"%Weight*%Price", "MB421", "" },
        { L"%Weight+%Length", "MB421", "" },
        { L"%Length*%Width", "MB421", "weight" },
        { L"%Length/1000", "", "none" },
        { L"%Weight*%Price", "", "EUR" },
        { L"%Weight*%Quantity", "", "" },
        { L"(1+2", "MB422" },
        { L"a=(4;a)*2", "MB422" },
        { L"=5+1", "MB410W MB422" },
        { L"%Weight*x", "MB422" },
        { L"%Wieght*2", "" }, // for whoever knows the catalogue to say
    };
    expectCodes(cases);
}

TEST(FormulaRulesTest, OneFormulaMayHaveSeveralMistakes)
{
    EXPECT_EQ("MB404 MB421", codesOf(L"%Weight-(%Quantity-1)*2"));
    EXPECT_EQ("MB405 MB408", codesOf(L"round(%Weight*2,5)"));
    EXPECT_EQ("MB408", codesOf(L"2,5*3,5*4,5*%Weight")); // one finding for each code
}

TEST(FormulaRulesTest, FindingsSayWhatIsComputedAndWhatToDo)
{
    EXPECT_EQ("\"2*3+(4+5)*6\" is read as \"(((2*3)+(4+5))*6)\", not as \"((2*3)+((4+5)*6))\": a ')' groups all that "
              "stands before it, and a sign binds less than '*' and '/': begin with the parentheses, or assign their "
              "value to a variable in a statement before",
              textOf(L"2*3+(4+5)*6"));
    EXPECT_EQ("\"round\" disappears: \"round(%Weight*3)\" is read as \"(%Weight*3)\": there are no functions, and a "
              "product needs its '*'",
              textOf(L"round(%Weight*3)"));
    EXPECT_EQ("\"2,5\" is read as the number 2: the decimal sign is a point, and the operators are \"*/+-=()\"",
              textOf(L"2,5*%Weight"));
    EXPECT_EQ("\"1e-3\" is read as 0.001, and its exponent is added or subtracted besides: write the number without an "
              "exponent",
              textOf(L"1e-3*%Weight", "none"));
    EXPECT_EQ("the divisor 7.85e-06 lies within 0.0001 of zero: \"Division by zero\": multiply by 127389 instead",
              textOf(L"%Weight/0.00000785", "none"));
    EXPECT_EQ("\"16777217\" is read as 16777216: numbers of formulas are kept to seven digits",
              textOf(L"16777217*%Weight"));
    EXPECT_EQ("the constant 1000 hides a unit of length (1 m = 1000 mm): take the constant out: lists show the number "
              "in the reader's unit; or give it a label of its own in the column, \"result\": \"m\"",
              textOf(L"%Length/1000"));
}

TEST(FormulaRulesTest, HostileFormulasEndInAFewFindings)
{
    VorString nested;
    nested.append(L'(', 100000);
    VorString long404 = L"%Weight";
    VorString statements;
    VorString bytes;
    for (int i = 0; i < 20000; ++i)
    {
        long404 += L"-(2)*3";
        statements += L"a=2;";
        bytes += L"2,5\x1B*";
    }
    statements += L"a*2";

    EXPECT_EQ("MB422", codesOf(nested));
    EXPECT_EQ("MB404", codesOf(long404, "none"));
    EXPECT_EQ("", codesOf(statements));
    EXPECT_EQ("MB408", codesOf(bytes));
    for (const Finding& finding : FormulaRules::check(long404, operandOfTest))
        EXPECT_LT(finding.statement.size(), 600U);
    for (const Finding& finding : FormulaRules::check(bytes, operandOfTest))
        EXPECT_EQ(std::string::npos, finding.statement.find('\x1B'));
}
}
