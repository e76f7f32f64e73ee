// "(%Weight+3)*2" becomes the steps  %Weight  3  +  2  *  for a stack of numbers, in the order in which the tree is
// evaluated. A missing side, which counts as 0.0, becomes a step of its own.
#include "VorCompiledFormula.h"

#include "VorExprEvTreeItem.h"
#include "VorExprEvTreeItemOperand.h"
#include "VorExprEvTreeItemOperator.h"
#include "VorExprEvValue.h"
#include "VorExprEvalErrorHandler.h"
#include "VorExpressionEvaluator.h"

#include "MekRoots/Exp/VorNumberText.h"

#include <algorithm>
#include <cmath>
#include <string_view>

namespace
{
constexpr int kDecimals = 6; // of a value's text
constexpr double kParts = 1e6;

// Below this many millionths the product with 1e6 is off by less than kTooCloseToCall.
constexpr double kMostParts = 17592186044416.0; // 2^44
constexpr double kTooCloseToCall = 1.0 / 256;

double roundThroughText(double value)
{
    wchar_t text[VorNumberText::fixedRoom(kDecimals) + 1];
    text[VorNumberText::writeFixed(value, kDecimals, text)] = L'\0';
    return VorString::toDouble(text, 0);
}

// The double that a value's text is read as. Unless the value lies about in the middle between two texts, the text is
// the nearest whole number of millionths, and reading it gives the quotient of two whole numbers, correctly rounded, as
// a division does.
double roundToText(double value)
{
    const double parts = value * kParts;
    if (!(std::fabs(parts) < kMostParts))
        return roundThroughText(value);
    const double rounded = std::nearbyint(parts);
    if (std::fabs(std::fabs(parts - rounded) - 0.5) < kTooCloseToCall)
        return roundThroughText(value);
    return rounded / kParts;
}

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
            addOperand(here.pItem);
            if (++depth > kDeepest)
                return 0;
        }
    }
    return 1;
}

// Null for a missing side.
void VorCompiledFormula::addOperand(const VorExprEvTreeItem* pOperand)
{
    double number = 0.0;
    if (pOperand == nullptr || static_cast<const VorExprEvTreeItemOperand*>(pOperand)->getNumber(number))
    {
        m_steps.push_back({ kPushNumber, 0, number });
        return;
    }
    const std::wstring_view name = pOperand->getText().existingPart();
    m_steps.push_back({ kPushName, indexOfName(VorString(name.data(), static_cast<int>(name.size()))), 0.0 });
}

int VorCompiledFormula::indexOfName(const VorString& name)
{
    const auto found = std::find(m_names.begin(), m_names.end(), name);
    const auto index = static_cast<int>(found - m_names.begin());
    if (found == m_names.end())
        m_names.push_back(name);
    return index;
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
    result = roundToText(*pTop);
    return 1;
}
