#include "VorExpressionEvaluator.h"

#include "Tree/VorTreeBuilder.h"
#include "VorExprEvalErrorHandler.h"

#include <algorithm>
#include <cstddef>
#include <string_view>

int VorExpressionEvaluator::m_nTraceStacks = 0;

namespace
{
// The first of `text` that has no `partner` among the characters up to it.
template <class Character>
std::ptrdiff_t findAlone(Character character, Character end, wchar_t alone, wchar_t partner)
{
    const Character begin = character;
    for (int nPartners = 0; character != end; ++character)
    {
        nPartners += *character == partner ? 1 : 0;
        if (*character == alone && --nPartners < 0)
            return character - begin;
    }
    return -1;
}

}

VorExpressionEvaluator::~VorExpressionEvaluator()
{
    delete m_pRoot;
}

// A tree that is not whole, as the parentheses do not balance, is handed over like any other: traces show it.
//   "2+3)"     +(2, 3), as the ')' has combined the two
//   "(2+3"     3: nothing was combined, and of the operands read so far the last is taken
// The error is raised either way, and the statement not evaluated.
int VorExpressionEvaluator::parse(const VorExprEvTextView& statement, VorExprEvTreeItem*& pRoot)
{
    VorTreeBuilder builder(statement);
    const int nResult = builder.build();
    if (nResult == 0)
        VorExprEvalErrorHandler::ofThread().raise(VorExprEvalError::kImpairedParenthesis,
                                                  findImpairedParenthesis(statement));
    if (VorExprEvTreeItem* pTree = builder.takeTree())
    {
        delete pRoot;
        pRoot = pTree;
    }
    return nResult;
}

//   "(2+(3"    more '(' than ')': from the end, the first '(' without a ')' behind it is at 3
//   "2+3)*4)"  more ')' than '(': from the start, the first ')' without a '(' before it is at 3
int VorExpressionEvaluator::findImpairedParenthesis(const VorExprEvTextView& statement)
{
    const std::wstring_view text = statement.existingPart();
    const auto numOpening = std::count(text.begin(), text.end(), L'(');
    const auto numClosing = std::count(text.begin(), text.end(), L')');
    if (numOpening == numClosing)
        return VorExprEvalError::kNoPosition;
    if (numClosing > numOpening)
        return static_cast<int>(findAlone(text.begin(), text.end(), L')', L'('));
    const auto length = static_cast<std::ptrdiff_t>(text.size());
    return static_cast<int>(length - 1 - findAlone(text.rbegin(), text.rend(), L'(', L')'));
}
