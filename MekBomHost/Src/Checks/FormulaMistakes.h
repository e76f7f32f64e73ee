// The mistakes in formulas, of all that a template computes or sums: those from MB401 to MB422 for which the formula
// and the template are enough.
//
// FormulaRules finds them in the text, and FormulaResults those whose result nobody says (MB421). That a formula stands
// only in a footer (MB403) is told by SumRules, and that rows lack one of its data (MB413) by OperandRule.
#pragma once

#include "FormulaResults.h"
#include "TemplateRules.h"

namespace mekbom
{
class FormulaMistakes : private TemplateRules
{
public:
    using TemplateRules::TemplateRules;

    void run();

private:
    void findInTotal(const ColumnStyle& style, const FormulaResults& results);
    void findIn(const CheckedTuple& tuple, const VorString& formula, const std::string& declared);
};
}
