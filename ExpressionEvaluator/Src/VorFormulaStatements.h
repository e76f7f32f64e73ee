// The statements of a formula, from the left, as evaluation takes them.
//
//   VorFormulaStatements statements(L"a=4;a*2", 7);
//   while (statements.next())
//       parser.parse(statements.current());       // "a=4", then "a*2" and a zero character
//
// A formula has one statement more than it has separators; those without an operand count.
//
// On purpose the last of several statements reaches beyond the formula, since its length is that of the formula less that
// of the statement before it. VorExprEvTextView answers zero for the characters that are not there, and
// ExpressionsEvaluator.h tells what comes of it. Pinned by
// VorFormulaStatementsTest.TheLastOfSeveralStatementsReachesBeyondTheFormula.
//
// Views the text, which must outlive it and go on to a terminating zero. Costs no more than one pass over the text.
#pragma once

#include "VorExprEvTextView.h"

class MEK_EXPRESSION_API VorFormulaStatements
{
public:
    // `length` characters of formula, at least 0; `text` may be null when there are none.
    VorFormulaStatements(const wchar_t* text, int length);

    // 1 and on to the next statement, or 0 behind the last. To be asked before the first, too.
    int next();

    const VorExprEvTextView& current() const { return m_current; }

private:
    int findSeparator(int nStart) const;

    const wchar_t* m_pText; // not owned
    int m_nLength;
    int m_nTextLength; // measured once for all statements; each measuring what is left of it would take quadratic time
    int m_nStart = 0;
    int m_nPreviousLength = 0;
    int m_bLast = 0;
    VorExprEvTextView m_current;
};
