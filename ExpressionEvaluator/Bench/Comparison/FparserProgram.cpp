// One parser for all calls; its fastest way without its optimizer, which costs more than one evaluation can gain.
#include "FormulaProgram.h"

#if defined(MEK_HAS_FPARSER)
#include <fparser.hh>

#include <limits>
#include <vector>

namespace
{
class FparserProgram : public FormulaProgram
{
public:
    FparserProgram()
    {
        for (const TypicalFormula& formula : kTypicalFormulas)
        {
            const PlainFormula plain = plainFormula(formula);
            const std::string step = plain.stepName.empty() ? "" : plain.stepName + ":=" + plain.stepValue + ";";
            m_formulas.push_back(step + plain.result);
            m_names.push_back(plainNames(formula));
        }
    }

    double evaluate(int index) override
    {
        const auto i = static_cast<std::size_t>(index);
        if (m_parser.Parse(m_formulas[i], m_names[i]) >= 0)
            return std::numeric_limits<double>::quiet_NaN();
        return m_parser.Eval(kTypicalValues);
    }

private:
    FunctionParser m_parser;
    std::vector<std::string> m_formulas;
    std::vector<std::string> m_names;
};
}

std::unique_ptr<FormulaProgram> makeFparserProgram()
{
    return std::make_unique<FparserProgram>();
}
#else
std::unique_ptr<FormulaProgram> makeFparserProgram()
{
    return nullptr;
}
#endif
