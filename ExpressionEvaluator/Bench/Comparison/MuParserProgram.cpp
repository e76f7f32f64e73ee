// One parser for all calls. An assignment needs its variable defined, and a comma in place of the semicolon.
#include "FormulaProgram.h"

#if defined(MEK_HAS_MUPARSER)
#include <muParser.h>

#include <algorithm>
#include <limits>
#include <vector>

namespace
{
class MuParserProgram : public FormulaProgram
{
public:
    MuParserProgram()
    {
        std::copy(std::begin(kTypicalValues), std::end(kTypicalValues), m_values);
        for (const wchar_t* name : kTypicalNames)
            m_names.push_back(plainText(name));
        for (const TypicalFormula& formula : kTypicalFormulas)
        {
            const PlainFormula plain = plainFormula(formula);
            const std::string step = plain.stepName.empty() ? "" : plain.stepName + "=" + plain.stepValue + ",";
            m_steps.push_back(plain.stepName);
            m_formulas.push_back(step + plain.result);
        }
    }

    double evaluate(int index) override
    {
        const auto i = static_cast<std::size_t>(index);
        try
        {
            m_parser.ClearVar();
            for (int j = 0; j < kTypicalFormulas[index].numVariables; ++j)
                m_parser.DefineVar(m_names[static_cast<std::size_t>(j)], &m_values[j]);
            if (!m_steps[i].empty())
                m_parser.DefineVar(m_steps[i], &m_step);
            m_parser.SetExpr(m_formulas[i]);
            return m_parser.Eval();
        }
        catch (const mu::Parser::exception_type&)
        {
            return std::numeric_limits<double>::quiet_NaN();
        }
    }

private:
    mu::Parser m_parser;
    std::vector<std::string> m_names;
    std::vector<std::string> m_steps;
    std::vector<std::string> m_formulas;
    double m_values[kNumTypicalNames];
    double m_step = 0.0;
};
}

std::unique_ptr<FormulaProgram> makeMuParserProgram()
{
    return std::make_unique<MuParserProgram>();
}
#else
std::unique_ptr<FormulaProgram> makeMuParserProgram()
{
    return nullptr;
}
#endif
