#include "VorBomFormulaColumn.h"
#include "MekBomEngine/Test/Support/BomTestSupport.h"

#include <gtest/gtest.h>

namespace
{
VorBomDataTupleArray section(Tuples tuples)
{
    VorBomDataTupleArray array;
    for (const VorBomDataTuple& added : tuples)
        array.append(added);
    return array;
}

// The formula is the last tuple.
VorBomFormulaColumn formulaOf(const VorBomDataTupleArray& tuples)
{
    return VorBomFormulaColumn(std::make_shared<VorBomTuplePositions>(), tuples, tuples.length() - 1);
}

// The result as text, "-" for none. Reading the formula once and evaluating it from its text must agree.
VorString computed(const VorBomDataTupleArray& tuples, VorBomDataRow* pRow)
{
    double once = 0;
    double result = 0;
    const int isOnceComputed = VorBomFormulaColumn::computeOnce(tuples, tuples.length() - 1, pRow, once);
    const int isComputed = formulaOf(tuples).compute(tuples, pRow, result);
    EXPECT_EQ(isOnceComputed, isComputed);
    EXPECT_EQ(once, result);
    return isComputed ? VorBomDataValue(result).asString() : VorString(L"-");
}

struct FormulaCase
{
    const wchar_t* token;
    const wchar_t* expected;
};
}

TEST(VorBomFormulaColumnTest, NumbersOfTheRowComeBeforeTheLastOfTheSection)
{
    // section  %A 1, %A 2, %B 3, %C text, %D 5, my length 6, %Formula:%A 7
    // row      %B 30, %B 31, %D text, %E 50, length 60, %my 61
    const FormulaCase cases[] = {
        { L"%Formula:%A*100", L"200" },               // of equal tokens of the section the last
        { L"%Formula:%B*100", L"3000" },              // of equal tokens of the row the first, before the section
        { L"%Formula:%C*100", L"-" },                 // a text is no number
        { L"%Formula:%D*100", L"500" },               // a text in the row leaves the section's number
        { L"%Formula:%E*100", L"5000" },              // what the section does not show
        { L"%Formula:length*100", L"-" },             // of the row only what starts with "%"
        { L"%Formula:my length * 100", L"600" },      // a name may hold blanks
        { L"%Formula:%my length * 100", L"-" },       // the row's "%my" is another name
        { L"%Formula:%Formula:%A*100", L"700" },      // a formula's number under its whole token
        { L"%Formula:%a*100", L"-" },                 // case counts
        { L"%Formula:x=%B ;x*100", L"3000" },         // statements
        { L"%Formula:x=%B;x*100", L"300" },           // the row is asked for "%B;x", so the section's number counts
        { L"%Formula:%B=5;%B*100", L"500" },          // a newer variable hides the row's number
        { L"%Formula:%B/%B-%B", L"-29" },             // a name several times
        { L"%Formula:%A/0", L"-" },                   // an error
        { L"%Formula:(%A", L"-" },                    // never readable
        { L"%Formula:)( 1", L"1" },                   // readable after all
        { L"%Formula:()()", L"0" },                   // without an operand
        { L"%Formula:%A*%A*%A*%A*%A*%A+1-1", L"64" }, // long, not deep
        { L"%Formula:(%A)", L"2" },                   // a parenthesis is an operator character
        { L"%Formula:%A+1", L"3" },                   // four characters
        { L"%Formula:1+2", L"-" },                    // three
        { L"%Formula:%Quantity", L"-" },              // no operator
        { L"%Formula:0.0000004*1", L"0" },            // six decimals
        { L"%Formula:%E*0.1*1000-5000", L"7.5e-05" }, // numbers in single precision
        { L"%Formula:1e+5", L"100005" },              // "1e" runs on past the operator
        { L"%Formula:%A*(%A*(%A*(%A+%B)))", L"256" }, // nested
        { L"%Formula:2*3+(4+5)*6", L"90" },           // ')' groups all before it
    };
    VorBomDataRow row;
    addTuples(row, { tuple(L"%B", 30), tuple(L"%B", 31), tuple(L"%D", L"x"), tuple(L"%E", 50.0), tuple(L"length", 60),
                     tuple(L"%my", 61) });
    for (const FormulaCase& here : cases)
    {
        const VorBomDataTupleArray tuples =
            section({ tuple(L"%A", 1), tuple(L"%A", 2.0), tuple(L"%B", 3), tuple(L"%C", L"4"), tuple(L"%D", 5),
                      tuple(L"my length", 6), tuple(L"%Formula:%A", 7), tuple(here.token, L"") });

        EXPECT_EQ(VorString(here.expected), computed(tuples, &row)) << VorString(here.token);
    }
}

TEST(VorBomFormulaColumnTest, ColumnServesRowsOfAnyLayout)
{
    const VorBomDataTupleArray tuples = section({ tuple(L"%Width", 2), tuple(L"%Formula:%Length*%Width", L"") });
    VorBomFormulaColumn formula = formulaOf(tuples);
    VorBomDataRow row;
    double result = -1;

    EXPECT_EQ(0, formula.compute(tuples, &row, result));
    EXPECT_EQ(-1, result) << "untouched";
    row.addData(tuple(L"%Length", 5));
    EXPECT_EQ(1, formula.compute(tuples, &row, result));
    EXPECT_EQ(10, result);
    row.addData(tuple(L"%Width", 3));
    EXPECT_EQ(1, formula.compute(tuples, &row, result));
    EXPECT_EQ(15, result);
    EXPECT_EQ(0, formula.compute(tuples, nullptr, result)) << "no row, no length";
}

TEST(VorBomFormulaColumnTest, NumbersAreThoseOfTheSectionAtHand)
{
    const VorBomDataTupleArray planned = section({ tuple(L"%Width", 2), tuple(L"%Formula:%Width*10", L"") });
    const VorBomDataTupleArray wider = section({ tuple(L"%Width", 7), tuple(L"%Formula:%Width*10", L"") });
    const VorBomDataTupleArray unknown = section({ tuple(L"%Width", NoValue()), tuple(L"%Formula:%Width*10", L"") });
    VorBomFormulaColumn formula = formulaOf(planned);
    double result = -1;

    EXPECT_EQ(1, formula.compute(wider, nullptr, result));
    EXPECT_EQ(70, result);
    EXPECT_EQ(0, formula.compute(unknown, nullptr, result));
}

TEST(VorBomFormulaColumnTest, OperatorBehindAZeroCharacterMakesAFormula)
{
    VorBomDataTupleArray tuples;
    tuples.append(VorBomDataTuple(VorString(L"%Formula:12\0 *2", 15), VorString()));

    EXPECT_EQ(VorString(L"24"), computed(tuples, nullptr));
}

TEST(VorBomFormulaColumnTest, HundredThousandCharactersAreReadAtOnce)
{
    VorBomDataRow row;
    VorString token(L"%Formula:0");
    for (int i = 0; i < 200; ++i)
    {
        VorString name;
        name.format(L"%%Name%d", i);
        row.addData(VorBomDataTuple(name, 1));
    }
    for (int i = 0; token.length() < 100000; ++i)
    {
        token += L"+";
        token += row.getData()[i % 200].token().token();
    }
    const VorBomDataTupleArray tuples = section({ tuple(token.getStringW(), L"") });

    EXPECT_NE(VorString(L"-"), computed(tuples, &row));
}
