// MB401 to MB422, about formulas. Each example has one formula, in the details of a list by material, and the right one
// differs from it by what the rule is about. MB413 needs data: some rows of its example lack a weight.
#include "MistakeCodes.h"
#include "MistakeExamples.h"

namespace mekbom::MistakeExamples
{
namespace
{
std::string computing(const std::string& formula, const std::string& keys = "")
{
    return listWithFormula("%Formula:" + formula, keys);
}

// The same with a column that says what the formula gives, for one whose tokens do not: else MB421 would trip as well.
std::string computingPlain(const std::string& formula)
{
    return computing(formula, R"("columns": [ { "token": "%Formula:)" + formula + R"(", "result": "none" } ])");
}

const char* const kRows = "%PNum,%Material,%Length [mm],%Weight [kg]\n";
}

std::vector<Mistake> ofFormulas() // NOLINT(readability-function-size): a table
{
    return {
        { &MistakeCodes::kFormulaTooShort, "%Formula:1+2, %Formula:a*b",
          "A formula of three characters or fewer is never computed.", "Write blanks or parentheses: %Formula:(1+2).",
          computing("1+2"), computing("(1+2)") },
        { &MistakeCodes::kFormulaWithoutOperator, "%Formula:%Weight",
          "A formula without an operator is never computed.", "Write the token alone: %Weight.", computing("%Weight"),
          computing("%Weight*2") },
        { &MistakeCodes::kFormulaOnlyInFooter, "a formula that stands only in a footer", "Footers compute nothing.",
          "Give the details the formula, and write %SumBy: in front of it in the footer.",
          groupedList(kByMaterial, kParts, { "%Formula:%Weight*2" }),
          groupedList(kByMaterial, { "%PNum", "%Formula:%Weight*2" }, { "%SumBy:%Formula:%Weight*2" }) },
        { &MistakeCodes::kFormulaReadsOtherwise, "2*3+(4+5)*6, %W-(%Q-1)*2, (a+b)*2-(c-1)*3, 8/-2/2",
          "90, (W-Q+1)*2, ((a+b)*2-c+1)*3 and -8: a ')' applies everything pending on its left, and a sign in front "
          "binds weaker than '*' and '/'.",
          "Put what has parentheses first, (4+5)*6+2*3, or give it a name.", computing("%Weight-(%Weight/2)*2"),
          computing("%Weight-%Weight/4") },
        { &MistakeCodes::kFactorDisappears, "round(%W*2.2), sqrt(%A)*2, 2(3+4), (a)(b)",
          "The word, or the first factor, disappears without an error: W*2.2, A*2, 7, b.",
          "There are no functions; write the '*' of a product.", computing("round(%Weight*3)"),
          computing("(%Weight*3)") },
        { &MistakeCodes::kStatementEndsInName, "a=4;2*a",
          "\"Syntax error\": the last operand of a formula of several statements is a name.",
          "Write a=4;(2*a) or a=4;2*a;.", computing("a=4;%Weight*a"), computing("a=4;(%Weight*a)") },
        { &MistakeCodes::kAssignedTokenGluedToName, "a=%Length;a*2",
          "The token that is looked for is \"%Length;a\", so %Length is unknown.",
          "Write a blank in front of the semicolon: a=%Length ;(a*2).", computing("a=%Length;(a*2)"),
          computing("a=%Length ;(a*2)") },
        { &MistakeCodes::kNumberCutShort, "2,5*%W, 10%*%W, 2^3+0", "They are read as 2, 10 and 2.",
          "Write a decimal point, 0.1, and 2*2*2.", computing("2,5*%Weight"), computing("2.5*%Weight") },
        { &MistakeCodes::kExponentIsDifference, "1e-3*%W", "It is 0.001 - 3*W.", "Write 0.001*%W.",
          computingPlain("1e-3*%Weight"), computingPlain("0.001*%Weight") },
        { &MistakeCodes::kOperandMissing, "%W *, %W -", "They are 0 and -W.",
          "Write the operand, or take the operator out.", computing("%Weight *"), computing("%Weight * 2") },
        { &MistakeCodes::kAssignmentAsTest, "%W=5 as a test, a=b=3", "They assign: 5, and a variable named \"=\".",
          "There are no tests; filter rows with \"queryFilter\".", computingPlain("%Weight=5"),
          computing("%Weight*5") },
        { &MistakeCodes::kTextInFormula, "a text in a formula (every %UserAttr..., %External...)",
          "It is undefined, and the column keeps its starting value.", "Compute with numbers.", computing("%Name*2"),
          computing("%Weight*2") },
        { &MistakeCodes::kOperandMissingInRows, "a token that some rows lack",
          "Their lines keep the starting value, and totals lack them.",
          "Fill it in, or leave these rows out with \"queryFilter\".", computing("%Weight*2"), computing("%Weight*2"),
          kRows + std::string("P1,S235,1000,10\nP2,S235,2000,\n"), kRows + std::string("P1,S235,1000,10\n") },
        { &MistakeCodes::kDivisorTooSmall, "a divisor between -0.0001 and 0.0001, as in /0.00000785",
          "\"Division by zero\", and the starting value is kept.", "Multiply by the reciprocal.",
          computingPlain("%Weight/0.00003"), computingPlain("%Weight*30000") },
        { &MistakeCodes::kPrecisionLost, "more than seven digits in a number, or very small results",
          "Numbers have single precision (16777217 is read as 16777216), and results six decimals (0.0000785 becomes "
          "0.000078 or 0.000079).",
          "Write seven digits at most, and compute in a smaller unit.", computing("%Weight*16777217"),
          computing("%Weight*16777216") },
        { &MistakeCodes::kFormulaWithinFormula, "a formula inside a formula, %%PaintMeter in a formula",
          "No row has it under that name.", "Write the inner formula out, in parentheses.",
          computing("%Formula:%Weight*2"), computing("(%Weight*2)*3") },
        { &MistakeCodes::kLengthOrAreaPerLength, "%Paint/%Length",
          "An area divided by a length is shown as a length, 1 m2 of paint on each metre as 1000 mm.",
          "Where an area per length is meant, declare it in the column: \"result\": \"area-per-length\".",
          computing("%Paint/%Length"),
          computing("%Paint/%Length", R"("columns": [ { "token": "%Formula:%Paint/%Length", "result": )"
                                      R"("area-per-length" } ])") },
        { &MistakeCodes::kOperatorForgotten, "%W %Q*2 (operator forgotten)",
          "It is one name with a blank in it: \"Syntax error\".", "Write the operator.",
          computing("%Weight %Quantity*2"), computing("%Weight*%Quantity*2") },
        { &MistakeCodes::kNameReadsAsNumber, "names that begin with a digit, or with \"inf\" or \"nan\"",
          "They are read as numbers.", "Begin names with another letter.", computing("2nd=%Weight ;(2nd*3)"),
          computing("second=%Weight ;(second*3)") },
        { &MistakeCodes::kParenthesesCrossed, ")2+3(", "Parentheses are only counted, so it is accepted.",
          "Put them right.", computing(")%Weight*3("), computing("(%Weight*3)") },
        { &MistakeCodes::kResultUndeclared, "a formula whose result measures nothing that tokens say",
          "A weight times a price is no kind of quantity, and 1000 may be the millimetres of a metre: whether units "
          "change the number is not known.",
          "Take out a constant that only converts units. Else declare it in the column: \"result\": \"weight\", "
          "\"none\" or a label of your own such as \"EUR\".",
          computing("%Length/1000"), computingPlain("%Length/1000") },
        { &MistakeCodes::kFormulaFails, "(%W*2, Weight*2, =%W*2",
          "Parentheses that do not match, a name that nothing defines, and an assignment to nothing end in an error; "
          "the column keeps its starting value.",
          "Close the parenthesis; write the token with its percent sign: %Weight*2.", computing("(%Weight*2"),
          computing("(%Weight*2)") },
    };
}
}
