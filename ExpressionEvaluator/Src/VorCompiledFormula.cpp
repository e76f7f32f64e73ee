// "(%Weight+3)*2" becomes the steps  %Weight  3  +  2  *  for a stack of numbers, in the order in which the tree is
// evaluated. A missing side, which counts as 0.0, becomes a step of its own.
#include "VorCompiledFormula.h"

#include "VorExprEvTreeItem.h"
#include "VorExprEvTreeItemOperand.h"
#include "VorExprEvTreeItemOperator.h"
#include "VorExprEvValue.h"
#include "VorExprEvalErrorHandler.h"
#include "VorExpressionEvaluator.h"

namespace
{
bool isSingleStatement(std::wstring_view text)
{
    return text.find_first_of(L";=") == std::wstring_view::npos;
}
}

VorCompiledFormula::VorCompiledFormula(const wchar_t* text, int length)
{
    if (!isSingleStatement(std::wstring_view(text, static_cast<std::size_t>(length))))
        return;
    VorExpressionEvaluator parser;
    m_bFails = parser.parse(VorExprEvTextView(text, 0, length)) == 0 ? 1 : 0;
    m_bCompiled = m_bFails != 0 || parser.root() == nullptr ? 1 : compile(parser.root());
    if (!m_bCompiled)
        m_names.clear();
    VorExprEvalErrorHandler::ofThread().clear();
}

// Walks the tree with a stack of the operators whose sides are still to come; 0 when it is too deep.
int VorCompiledFormula::compile(const VorExprEvTreeItem* pRoot)
{
    struct Pending
    {
        const VorExprEvTreeItem* pItem;
        bool sidesAreDone;
    };
    std::vector<Pending> pending{ { pRoot, false } };
    NameIndices indices;
    int depth = 0;
    while (!pending.empty())
    {
        const Pending here = pending.back();
        pending.pop_back();
        if (here.sidesAreDone)
        {
            const VorExprEvTextView text = here.pItem->getText();
            m_steps.push_back({ text.at(text.start()), 0, 0.0 });
            --depth;
        }
        else if (here.pItem != nullptr && here.pItem->isOperator())
        {
            pending.push_back({ here.pItem, true });
            pending.push_back({ here.pItem->right(), false });
            pending.push_back({ here.pItem->left(), false });
        }
        else
        {
            addOperand(here.pItem, indices);
            if (++depth > kDeepest)
                return 0;
        }
    }
    return 1;
}

// Null for a missing side.
void VorCompiledFormula::addOperand(const VorExprEvTreeItem* pOperand, NameIndices& indices)
{
    double number = 0.0;
    if (pOperand == nullptr || static_cast<const VorExprEvTreeItemOperand*>(pOperand)->getNumber(number))
    {
        m_steps.push_back({ kPushNumber, 0, number });
        return;
    }
    m_steps.push_back({ kPushName, indexOfName(pOperand->getText().existingPart(), indices), 0.0 });
}

int VorCompiledFormula::indexOfName(std::wstring_view name, NameIndices& indices)
{
    const auto [found, isNew] = indices.emplace(name, static_cast<int>(m_names.size()));
    if (isNew)
        m_names.emplace_back(name.data(), static_cast<int>(name.size()));
    return found->second;
}

int VorCompiledFormula::evaluate(const double* values, double& result) const
{
    if (m_bFails)
        return 0;
    double stack[kDeepest + 1];
    double* pTop = stack; // the last number pushed; the place below all is for a formula without operands
    *pTop = 0.0;
    for (const Step& step : m_steps)
    {
        switch (step.operation)
        {
            case kPushNumber: *++pTop = step.number; break;
            case kPushName: *++pTop = values[step.name]; break;
            default:
                --pTop;
                if (!VorExprEvTreeItemOperator::calculate(step.operation, pTop[0], pTop[1], pTop[0]))
                    return 0;
                break;
        }
    }
    result = VorExprEvValue::readBack(*pTop);
    return 1;
}
