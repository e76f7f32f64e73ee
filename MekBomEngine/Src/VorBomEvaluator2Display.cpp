// Formulas and display texts of evaluated sections.
//
// Told on a details line with %Length 2000 and "%Formula:%Length/1000":
//   computed    the formula sees %Length = 2000 from line and row; line and row get 2.0 under "%Formula:%Length/1000"
//   displayed   %Length is a distance, so the formula is one: both numbers become texts in the unit of distances
#include "VorBomEvaluator2.h"

#include "ExpressionEvaluator/Src/ExpressionsEvaluator.h"
#include "MekRoots/Exp/VorAssert.h"
#include "MekRoots/Exp/VorNumberText.h"

#include <algorithm>
#include <cwchar>
#include <iterator>

namespace
{
const wchar_t kSourcePath[] = L"MekBomEngine/Src/VorBomEvaluator2"; // named in assertion reports

constexpr int kShortestFormula = 4; // characters; shorter ones are taken for plain tokens or numbers
const wchar_t kOperators[] = L"*/+-=()";

bool isComputable(const VorString& formula)
{
    return formula.length() >= kShortestFormula && std::wcspbrk(formula.getStringW(), kOperators) != nullptr;
}

// Makes a number known to the formula under the text of its token; other values define nothing. The token's text must
// outlive the formula's evaluation.
void defineVariable(ExpressionsEvaluator& evaluator, const VorString& name, const VorBomDataValue& value)
{
    VorExprEvValue number;
    if (value.type() == VorBomDataValue::kIntData)
        number.setDouble(*static_cast<const int*>(value.data()));
    else if (value.type() == VorBomDataValue::kDoubleData)
        number.setDouble(*static_cast<const double*>(value.data()));
    else
        return;
    evaluator.addVariable(VorExprEvTextView(name.getStringW(), 0, name.length()), number);
}

void defineItemVariables(ExpressionsEvaluator& evaluator, const VorBomDataTupleArray& tuples, int indexOfFormula)
{
    for (int i = 0; i < tuples.length(); ++i)
        if (i != indexOfFormula)
            defineVariable(evaluator, tuples[i].token().token(), tuples[i].value());
}

// Newer variables are found first, so a number of the row hides one of the section.
void defineRowVariables(ExpressionsEvaluator& evaluator, const VorBomDataRow* pRow, const VorStringArray& tokens)
{
    if (pRow == nullptr)
        return;
    for (const VorString& token : tokens)
        if (const VorBomDataTuple* pDatum = pRow->getTupleAt(token))
            defineVariable(evaluator, token, pDatum->value());
}

// Computes the formula of one tuple; 0 with `result` untouched when it is none or fails. The result has passed through
// its text, so it has six decimals.
int computeFormula(const VorBomDataTupleArray& tuples, int index, const VorBomDataRow* pRow, double& result)
{
    VorString formula;
    if (!tuples[index].token().getFormulaRequest(formula))
        return 0;
    ExpressionsEvaluator evaluator(formula.getStringW(), static_cast<unsigned int>(formula.length()));
    if (!isComputable(formula))
        return 0;
    const VorStringArray rowTokens = VorBomDataToken::getTokensFromFormula(formula);
    defineItemVariables(evaluator, tuples, index);
    defineRowVariables(evaluator, pRow, rowTokens);

    wchar_t text[VorExprEvValue::kBufferLength] = {};
    if (!evaluator.evaluate(text))
        return 0;
    result = VorString::toDouble(text, 0);
    return 1;
}

VorString integerText(int value)
{
    wchar_t text[VorNumberText::kIntegerRoom];
    return VorString(text, VorNumberText::writeInteger(value, text));
}

// A formula is shown in the unit of its first token that has one: "%Length*2" is a length. Once found, the unit is
// registered under the formula's text.
void registerFormulaUnit(VorBomTemplateUnits& units, const VorString& formula)
{
    if (units.getUnitType(formula) != VorBomTemplateUnits::kNoUnit)
        return;
    for (const VorString& token : VorBomDataToken::getTokensFromFormula(formula))
    {
        const VorBomTemplateUnits::eTokenUnitType type = units.getUnitType(token);
        if (type == VorBomTemplateUnits::kNoUnit)
            continue;
        units.AddTokenType(formula, type);
        return;
    }
}

VorString displayText(VorBomTemplateUnits& units, const VorBomDataToken& token, double value)
{
    VorString name = token.token();
    token.getSummingRequest(name);
    if (VorBomDataToken::removeFormulaPrefix(name))
        registerFormulaUnit(units, name);
    return units.getDisplayString(name, value);
}
}

void VorBomEvaluator2::evaluateExpressions(VorBomTemplateItem* pItem, VorBomDataRow* pRow)
{
    if (pItem == nullptr)
        return;
    VorBomDataTupleArray& tuples = pItem->getData();
    for (int i = 0; i < tuples.length(); ++i)
    {
        double result = 0;
        if (!computeFormula(tuples, i, pRow, result))
            continue;
        tuples[i].value().set(result);
        if (pRow != nullptr)
            pRow->addData(VorBomDataTuple(tuples[i].token().token(), result));
    }
}

void VorBomEvaluator2::applyUnitsForData(VorBomTemplateUnits* pUnits, VorBomDataTupleArray& tuples)
{
    for (VorBomDataTuple& tuple : tuples)
    {
        VorBomDataValue& value = tuple.value();
        if (value.type() == VorBomDataValue::kIntData)
            value.set(integerText(*static_cast<const int*>(value.data())));
        else if (value.type() == VorBomDataValue::kDoubleData)
            value.set(displayText(*pUnits, tuple.token(), *static_cast<const double*>(value.data())));
    }
}

void VorBomEvaluator2::fillGenericString(VorGenericString& target, const VorBomDataRow* pRow)
{
    constexpr int kPlainEntry = 0; // shown as it stands
    for (const VorBomDataTuple& tuple : pRow->getData())
    {
        const VorString& token = tuple.token().token();
        const VorBomDataValue& value = tuple.value();
        target.addToken(token);
        switch (value.type())
        {
            case VorBomDataValue::kIntData:
                target.addEntry(token, *static_cast<const int*>(value.data()), kPlainEntry);
                break;
            case VorBomDataValue::kDoubleData:
                target.addEntry(token, *static_cast<const double*>(value.data()), kPlainEntry, L"%.1f");
                break;
            case VorBomDataValue::kStringData:
                target.addEntry(token, *static_cast<const VorString*>(value.data()), kPlainEntry);
                break;
            default: VorAssert::vorAssert(L"false", kSourcePath, __LINE__); break;
        }
    }
}
