// Evaluates a formula of statements over named values: the facade of this library for hosts that want texts, messages
// or typed variables. For plain doubles there is evaluateFormula.
//
//   ExpressionsEvaluator evaluator(L"a=%Length/1000;a*3", 18);      // empties the thread's variables and errors
//   VorExprEvValue length;
//   length.setDouble(2500.0);
//   evaluator.addVariable(VorExprEvTextView(L"%Length", 0, 7), length);
//   wchar_t buffer[VorExprEvValue::kBufferLength];
//   evaluator.evaluate(buffer);                                     // 1, "7.500000" in the buffer
//
// Order of calls: construct, add variables, evaluate. Constructing empties the variable list and the error list of the
// thread; both keep what an evaluation left in them until the next construction. The formula and the characters of all
// names are not copied and must outlive the evaluation. Evaluations on different threads do not touch each other; on
// one thread they run one after the other.
#pragma once

#include "VorExprEvTextView.h"
#include "VorExprEvValue.h"
#include "VorExprEvalError.h"

class VorExprEvTreeItem;

class MEK_EXPRESSION_API ExpressionsEvaluator
{
public:
    // A debugging build sets this to see the tree of every statement in the debug output. 0 or 1, process-wide, read by
    // every evaluation: set it while none runs.
    static int m_nTraceTrees;

    // Whether trees (m_nTraceTrees) or stacks (VorExpressionEvaluator::m_nTraceStacks) are to be seen in the debug
    // output. Whoever has a quicker way to compute a formula goes through this class then.
    static bool isTraced();

    // `length` characters of formula, behind which the text goes on to a terminating zero; a null text is a formula of
    // none. At most 2^31 - 1 of them are read. A number that the formula ends in is read as far as the text goes: of
    // "1+23" with length 3 comes 24.
    ExpressionsEvaluator(const wchar_t* text, unsigned int length);
    virtual ~ExpressionsEvaluator() = default;

    // Registers a variable for the evaluations to come and releases `value`. A later one shadows an earlier one of the
    // same name. Returns 1.
    int addVariable(const VorExprEvTextView& name, VorExprEvValue& value);

    // Evaluates statement by statement, from the left. Returns 1 with the text of the last value in `buffer`
    // (VorExprEvValue::toText; empty when no statement has an operand), or 0 with the message of the first error. The
    // first statement with an error is the last one evaluated. `buffer` has VorExprEvValue::kBufferLength characters.
    //
    // An empty last statement ("a=4;") leaves the text of the one before. On purpose: the last of several statements is
    // read past the formula's end, since its length is that of the formula less that of the statement before it. There
    // it meets zero characters, which belong to its last operand: "a=4;2*a" is a syntax error, no variable being named
    // "a" and a zero; "a=4;a*2" is 8. Existing formulas are written around it. Pinned by
    // ExpressionsEvaluatorTest.TheLastStatementIsReadPastTheFormulasEnd.
    int evaluate(wchar_t* buffer);

    // Where in the formula the error is whose message evaluate() gave last, in characters from 0: the name that is
    // unknown, the '/' whose divisor is none, the '=' without a left side, the parenthesis that has no partner.
    // VorExprEvalError::kNoPosition while nothing has failed.
    int errorPosition() const { return m_nErrorPosition; }

private:
    int evaluateStatement(const VorExprEvTextView& statement, wchar_t* buffer) const;

    const wchar_t* m_pText; // not owned
    unsigned int m_nLength;
    int m_nErrorPosition = VorExprEvalError::kNoPosition;
};
