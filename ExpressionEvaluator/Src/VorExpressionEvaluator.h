// Parses one statement of a formula into a tree of operators and operands. It evaluates nothing.
//
//   const wchar_t text[] = L"2*(3+a)";
//   VorExpressionEvaluator evaluator;
//   evaluator.parse(VorExprEvTextView(text, 0, 7));   // 1
//   evaluator.root()  ->  the tree *(2, +(3, a))
//
// How a statement is read:
//   - Blanks are " \t\n\r", and zero characters between operands. Operators are "*/+-=()". An operand is everything
//     between two operators, its ends trimmed of blanks: "my length * 2" has the operand "my length".
//   - '*' and '/' bind tighter than '+' and '-', these tighter than '='. All of them group from the left: 8-3-2 is 3,
//     "a=b=3" is (a=b)=3.
//   - A '-' at the start or after any operator but ')' is a negation: an operand without text on its left stands for 0.
//   - On purpose: a ')' closes more than its '('. It groups all that stands before it, back to an '=' or the start of
//     the statement, and then holds back tighter operators: "2*3+(4+5)*6" is (2*3+(4+5))*6 = 90. Existing formulas
//     rely on it. Pinned by VorExpressionEvaluatorTest.AClosingParenthesisGroupsAllThatStandsBeforeIt.
//   - Operators without an operand get one side or none: "5*" is *(none, 5), "+" is +(none, none).
//   - Of operands without an operator between them ("(1)(2)") only the last is kept.
//
// Nodes view the text, which must outlive the tree.
#pragma once

#include "VorExprEvTreeItem.h"

class MEK_EXPRESSION_API VorExpressionEvaluator
{
public:
    // A debugging build sets this to see the stacks at every reduction, in the debug output. 0 or 1, process-wide,
    // read by every parse: set it while none runs.
    static int m_nTraceStacks;

    VorExpressionEvaluator() = default;
    VorExpressionEvaluator(const VorExpressionEvaluator&) = delete;
    VorExpressionEvaluator& operator=(const VorExpressionEvaluator&) = delete;
    virtual ~VorExpressionEvaluator();

    // The tree of the last parse, owned; null when there is none.
    VorExprEvTreeItem* root() const { return m_pRoot; }

    // Parses `statement` and replaces `pRoot`, which is null or a tree of the caller's, by its tree; the old tree is
    // deleted. A statement without operands leaves `pRoot` as it is. Returns 1, or 0 with error "Impaired paranthesis"
    // raised when there are more '(' than ')' or the reverse; what was read so far becomes the tree then, too, and is
    // not meant to be evaluated.
    int parse(const VorExprEvTextView& statement, VorExprEvTreeItem*& pRoot);

    // The same into root().
    int parse(const VorExprEvTextView& statement) { return parse(statement, m_pRoot); }

    // Where the statement has a parenthesis without a partner, in characters from its first: the last '(' that is not
    // closed where there are too many of them, else the first ')' that closes nothing. VorExprEvalError::kNoPosition
    // where there are as many of either, in whatever order: ")a+b(" is evaluated. Raises nothing.
    //   VorExpressionEvaluator::findImpairedParenthesis(VorExprEvTextView(L"2+(3", 0, 4))   ->  2
    static int findImpairedParenthesis(const VorExprEvTextView& statement);

private:
    VorExprEvTreeItem* m_pRoot = nullptr;
};
