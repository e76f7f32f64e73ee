// The characters of one statement, for a reader of statements that wants its operands as views.
//
//   VorStatementText text(VorExprEvTextView(L" my length * 2", 0, 14));
//   VorExprEvTextView operand;
//   text.readOperand(text.begin() + 1, operand);     // the place of the '*'; operand "my length"
//
// The statement may reach beyond its text, into zero characters. Views the text, which must outlive it.
#pragma once

#include "ExpressionEvaluator/Src/VorExprEvTextView.h"
#include "VorFormulaCharacters.h"

#include <string_view>

class VorStatementText
{
public:
    explicit VorStatementText(const VorExprEvTextView& statement)
        : m_statement(statement.measured()),
          m_pBegin(m_statement.existingPart().empty() ? L"" : m_statement.existingPart().data()),
          m_pEnd(m_pBegin + m_statement.existingPart().size())
    {
    }

    const wchar_t* begin() const { return m_pBegin; }

    VorFormulaCharacters::eKind kindAt(const wchar_t* pText) const
    {
        return pText == m_pEnd ? VorFormulaCharacters::kEnd : VorFormulaCharacters::kKindsInStatement[*pText];
    }

    // Answers where the operand at `pText` ends. Blanks at its end are no part of it, but the zero characters beyond
    // the text are part of an operand that reaches the text's end.
    const wchar_t* readOperand(const wchar_t* pText, VorExprEvTextView& operand) const
    {
        const int nStart = placeOf(pText);
        while (pText != m_pEnd && !VorFormulaCharacters::kOperators.holds(*pText))
            ++pText;
        int nEnd = pText == m_pEnd ? m_statement.end() : placeOf(pText);
        while (VorFormulaCharacters::kBlanks.holds(m_statement.at(nEnd - 1)))
            --nEnd;
        operand = m_statement.part(nStart, nEnd);
        return pText;
    }

    VorExprEvTextView operatorAt(const wchar_t* pText) const
    {
        return m_statement.part(placeOf(pText), placeOf(pText) + 1);
    }

private:
    int placeOf(const wchar_t* pText) const { return static_cast<int>(pText - m_statement.text()); }

    VorExprEvTextView m_statement;
    const wchar_t* m_pBegin; // never null
    const wchar_t* m_pEnd;   // of what exists; up to the statement's end there are zero characters
};
