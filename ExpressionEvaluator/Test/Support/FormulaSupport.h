// What the tests of formulas share: trees as text, evaluation in one line, thread lists that start empty.
#pragma once

#include "ExpressionEvaluator/Src/ExpressionsEvaluator.h"
#include "ExpressionEvaluator/Src/VorExprEvTreeItem.h"
#include "ExpressionEvaluator/Src/VorExprEvVariableList.h"
#include "ExpressionEvaluator/Src/VorExprEvalErrorHandler.h"
#include "MekRoots/Test/Support/TestSupport.h"

#include <cwchar>
#include <string>

// Empties the thread's variables and errors, as every construction does.
inline void emptyThreadLists()
{
    const ExpressionsEvaluator evaluator(nullptr, 0);
}

// As LeakCheck; what the thread's lists keep after an evaluation does not count. Declare it first.
class FormulaLeakCheck
{
public:
    FormulaLeakCheck() : m_numBlocks((emptyThreadLists(), VorMemoryControllerController::liveBlocks())) {}
    ~FormulaLeakCheck()
    {
        emptyThreadLists();
        EXPECT_EQ(m_numBlocks, VorMemoryControllerController::liveBlocks()) << "blocks leaked";
    }
    FormulaLeakCheck(const FormulaLeakCheck&) = delete;
    FormulaLeakCheck& operator=(const FormulaLeakCheck&) = delete;

private:
    long long m_numBlocks;
};

inline VorString textOf(const VorExprEvTextView& view)
{
    const std::wstring_view text = view.existingPart();
    VorString result(text.data(), static_cast<int>(text.size()));
    for (int i = result.length(); i < view.length(); ++i)
        result += L"\\0"; // zero characters beyond the text, made visible
    return result;
}

// A tree as "+(2, *(3, a))"; "none" for a missing side, "0" for the empty left side of a negation.
inline VorString textOf(const VorExprEvTreeItem* pItem)
{
    if (pItem == nullptr)
        return L"none";
    if (!pItem->isOperator())
        return pItem->getText().hasText() ? textOf(pItem->getText()) : VorString(L"0");
    VorString text = textOf(pItem->getText());
    text += L"(";
    text += textOf(pItem->left());
    text += L", ";
    text += textOf(pItem->right());
    text += L")";
    return text;
}

// A name or a whole text as a view.
inline VorExprEvTextView view(const wchar_t* text)
{
    return VorExprEvTextView(text, 0, static_cast<int>(std::wcslen(text)));
}

inline VorExprEvValue doubleValue(double number)
{
    VorExprEvValue value;
    value.setDouble(number);
    return value;
}

inline VorExprEvValue integerValue(int number)
{
    VorExprEvValue value;
    value.setInteger(number);
    return value;
}

inline VorExprEvValue booleanValue(int truth)
{
    VorExprEvValue value;
    value.setBoolean(truth);
    return value;
}

inline VorString textOf(const VorExprEvValue& value)
{
    wchar_t buffer[VorExprEvValue::kBufferLength] = L"";
    return value.toText(buffer) ? VorString(buffer) : VorString(L"no text");
}

inline void define(const wchar_t* name, VorExprEvValue value)
{
    VorExprEvVariableList::ofThread().addVariable(view(name), value);
}

// What the facade leaves in its buffer: the text of the value, or the message of the first error.
inline VorString evaluated(const wchar_t* formula)
{
    wchar_t buffer[VorExprEvValue::kBufferLength];
    ExpressionsEvaluator evaluator(formula, static_cast<unsigned int>(std::wcslen(formula)));
    evaluator.evaluate(buffer);
    return VorString(buffer);
}

// The codes of the thread's errors, newest first: "5 0".
inline std::string errorCodes()
{
    std::string codes;
    for (const VorExprEvalError* pError = VorExprEvalErrorHandler::ofThread().head(); pError; pError = pError->next())
        codes += (codes.empty() ? "" : " ") + std::to_string(pError->code());
    return codes;
}

// The names and values of the thread's variables, newest first: "b=5.000000 a=4.000000".
inline VorString variables()
{
    VorString text;
    for (const VorExprEvVariable* p = VorExprEvVariableList::ofThread().head(); p != nullptr; p = p->next())
    {
        text += text.isEmpty() ? L"" : L" ";
        text += textOf(p->name());
        text += L"=";
        text += textOf(p->value());
    }
    return text;
}

// `piece` written `count` times.
inline std::wstring repeated(const std::wstring& piece, int count)
{
    std::wstring text;
    text.reserve(piece.size() * static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i)
        text += piece;
    return text;
}
