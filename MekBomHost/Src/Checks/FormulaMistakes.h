// The mistakes in formulas, MB401 to MB421, of all formulas that a template computes or sums: FormulaRules finds them, and
// FormulaResults those whose result nobody says.
#pragma once

#include "TemplateRules.h"

namespace mekbom
{
class FormulaMistakes : private TemplateRules
{
public:
    using TemplateRules::TemplateRules;

    void run();

private:
    void findIn(const CheckedTuple& tuple, const VorString& formula, const std::string& declared);
};
}
