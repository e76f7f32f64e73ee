// A formula stands in the details and, summed, in a footer or two. It is looked at once, where it stands first:
//
//   details        %Formula:2*3+(4+5)*6           MB404 here
//   group footer   %SumBy:%Formula:2*3+(4+5)*6    nothing more
#include "FormulaMistakes.h"

#include "FormulaRules.h"
#include "Utf8.h"

#include "VorBomDataToken.h"

#include <set>

namespace mekbom
{
// Both prefixes are taken off: "%SumBy:%Formula:%Weight*2" is about the formula "%Weight*2".
void FormulaMistakes::run()
{
    const FormulaResults results(m_list.file());
    std::set<std::string> formulas;
    for (const CheckedTuple& tuple : m_list.tuples())
    {
        VorString formula = Utf8::toWide(tuple.token);
        VorBomDataToken(formula).getSummingRequest(formula);
        if (VorBomDataToken::removeFormulaPrefix(formula) == 1 && formulas.insert(Utf8::toBytes(formula)).second)
            findIn(tuple, formula, results.declaredFor(Utf8::toBytes(formula)));
    }
    for (const ColumnStyle& style : m_list.file().columns)
        if (style.total.kind == ColumnTotal::kCalculated)
            findInTotal(style, results);
    m_mistakes.addPlaced(results.undeclared());
}

void FormulaMistakes::findInTotal(const ColumnStyle& style, const FormulaResults& results)
{
    const FormulaOperands operands = [&](const VorString& name)
    { return results.operandOfTotal(m_list.file(), style.total, name); };
    for (Finding finding : FormulaRules::check(style.total.formula, operands, style.result))
        if (finding.code != MistakeCodes::kResultUndeclared.name)
        {
            finding.begin = style.place.span.begin;
            finding.end = style.place.span.end;
            finding.path = style.place.path + "/total";
            m_mistakes.addPlaced({ finding });
        }
}

// FormulaRules, too, tells that nobody says what the result measures, as it must where there is no template. Here that
// is left to FormulaResults, which knows of "tokenUnits" and of columns that show the formula elsewhere. A token
// that nothing knows is handed over as kUnknown, of which FormulaRules is silent: TokenRules tells it once, as MB501.
void FormulaMistakes::findIn(const CheckedTuple& tuple, const VorString& formula, const std::string& declared)
{
    const FormulaOperands operands = [this](const VorString& name)
    { return m_tokens.knows(Utf8::toBytes(name)) ? FormulaResults::operandOf(m_list.file(), name) : FormulaOperand(); };
    for (const Finding& finding : FormulaRules::check(formula, operands, declared))
        if (finding.code != MistakeCodes::kResultUndeclared.name)
            m_mistakes.add(finding, tuple);
}
}
