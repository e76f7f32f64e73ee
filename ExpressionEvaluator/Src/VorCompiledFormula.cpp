// "(%Weight+3)*2" becomes the steps  %Weight  3  +  2  *  for a stack of numbers, in the order in which the formula's
// reader takes operands and combines them. With %Weight 2.5 the stack goes through
//   step     %Weight   3         +     2         *
//   stack    2.5       2.5 3     5.5   5.5 2     11
#include "VorCompiledFormula.h"

#include "Reading/VorStatementReader.h"
#include "Reading/VorStatementText.h"
#include "VorExprEvTreeItemOperand.h"
#include "VorExprEvTreeItemOperator.h"
#include "VorExprEvValue.h"

#include <algorithm>
#include <map>
#include <string_view>

// Writes the steps while the formula is read.
class VorCompiledFormula::StepWriter
{
public:
    struct Left // stands on the stack of numbers
    {
    };
    static constexpr bool kTakesOddStatements = false;
    static constexpr bool kIsTraced = false;

    StepWriter(VorCompiledFormula& formula, const VorExprEvTextView& statement) : m_formula(formula), m_text(statement)
    {
    }

    // The reader gives up where operands and operators do not take turns, so every operator finds two numbers.
    // 0 for a formula that is left to ExpressionsEvaluator.
    int write()
    {
        VorOperatorStack<Left>::Room room;
        return VorStatementReader<StepWriter>(*this, room).read(m_text.begin()) != nullptr && m_nHighest <= kDeepest;
    }

    VorFormulaCharacters::eKind kindAt(const wchar_t* pText) const { return m_text.kindAt(pText); }

    const wchar_t* readOperand(const wchar_t* pText, VorFormulaCharacters::eKind)
    {
        VorExprEvTextView operand;
        const wchar_t* pEnd = m_text.readOperand(pText, operand);
        double number = 0.0;
        if (VorExprEvTreeItemOperand::scanNumber(operand, number))
            push({ kPushNumber, 0, number });
        else
            push({ kPushName, indexOfName(operand.existingPart()), 0.0 });
        return pEnd;
    }

    void addNothing() { push({ kPushNumber, 0, 0.0 }); }

    Left left(const wchar_t*) const { return {}; }

    void combine(const VorWaitingOperator<Left>& waiting)
    {
        m_formula.m_steps.push_back({ waiting.character, 0, 0.0 });
        --m_nHeight;
    }

    bool canAssign(const wchar_t*) const { return false; }
    void assign(const VorWaitingOperator<Left>&) {}
    void trace(const VorOperatorStack<Left>&) const {}

private:
    // How high the stack gets is known when the formula is read, as every step changes it by one.
    void push(const Step& step)
    {
        m_formula.m_steps.push_back(step);
        m_nHighest = std::max(m_nHighest, ++m_nHeight);
    }

    // The map holds views of the caller's text, which outlives the writer; the names themselves are copies.
    int indexOfName(std::wstring_view name)
    {
        const auto [found, isNew] = m_indices.emplace(name, static_cast<int>(m_formula.m_names.size()));
        if (isNew)
            m_formula.m_names.emplace_back(name.data(), static_cast<int>(name.size()));
        return found->second;
    }

    VorCompiledFormula& m_formula;
    VorStatementText m_text;
    std::map<std::wstring_view, int> m_indices; // into the formula's names
    int m_nHeight = 0;                          // of the stack of numbers behind the steps so far
    int m_nHighest = 0;
};

// The reader may give up halfway. The steps until then stay unused, but names() promises none.
VorCompiledFormula::VorCompiledFormula(const wchar_t* text, int length)
{
    const std::wstring_view formula(text, static_cast<std::size_t>(length));
    const bool isSingle = formula.find(VorFormulaCharacters::kSeparator) == std::wstring_view::npos;
    m_bCompiled = isSingle && StepWriter(*this, VorExprEvTextView(text, 0, length)).write() ? 1 : 0;
    if (!m_bCompiled)
        m_names.clear();
}

// Whether the stack is high enough need not be asked: a formula that wants more than kDeepest places is not compiled.
// Which of two NaNs goes on shows in the sign of the result alone, so that only evaluations that end in one are done
// again with the left one first.
template <bool kLeftFirst, bool kIsRounded>
int VorCompiledFormula::compute(const double* values, double& result) const
{
    constexpr auto calculate =
        kLeftFirst ? &VorExprEvTreeItemOperator::calculateInOrder : &VorExprEvTreeItemOperator::calculate;
    double stack[kDeepest + 1];
    double* pTop = stack; // the number pushed last; the place below all is never popped
    *pTop = 0.0;
    for (const Step& step : m_steps)
    {
        switch (step.operation)
        {
            case kPushNumber: *++pTop = step.number; break;
            case kPushName: *++pTop = values[step.name]; break;
            default:
                --pTop;
                if (!calculate(step.operation, pTop[0], pTop[1], pTop[0]))
                    return 0;
                break;
        }
    }
    result = kIsRounded ? VorExprEvValue::readBack(*pTop) : *pTop;
    return 1;
}

template int VorCompiledFormula::compute<false, true>(const double* values, double& result) const;
template int VorCompiledFormula::compute<true, true>(const double* values, double& result) const;
template int VorCompiledFormula::compute<false, false>(const double* values, double& result) const;
