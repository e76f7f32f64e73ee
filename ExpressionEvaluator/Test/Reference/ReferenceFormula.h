// A second, slow and obvious evaluator of formulas that the product is compared with: standard containers, copies
// everywhere, recursion over the tree, and the C library's own scanning and formatting of numbers. It shares no code
// with the product: that it has operators, blanks and a shortest length of its own is on purpose, or a mistake in the
// product's would go unnoticed. It is header-only so that the tests of reports use it too.
//   FormulaOutcome outcome = ReferenceFormula(L"a=Length/1000;a*2", { { L"Length", FormulaValue::real(500) } }).run();
//   outcome.result 1, outcome.text L"1.000000", outcome.errors empty, outcome.variables a = 0.5, Length = 500
// Numbers are scanned as the GNU C library's swscanf does in the C locale; a test program never leaves that locale.
#pragma once

#include <cstddef>
#include <cwchar>
#include <list>
#include <memory>
#include <string>
#include <utility>
#include <vector>

// What an operand, an operator or a variable is worth.
struct FormulaValue
{
    enum Kind
    {
        kUnknown,
        kInteger,
        kReal,
        kTruth
    };

    static FormulaValue unknown() { return FormulaValue(); }
    static FormulaValue integer(int number) { return FormulaValue{ kInteger, static_cast<double>(number) }; }
    static FormulaValue real(double number) { return FormulaValue{ kReal, number }; }
    static FormulaValue truth(bool flag) { return FormulaValue{ kTruth, flag ? 1.0 : 0.0 }; }

    // What arithmetic takes it for: truth values and unknown ones count as 0.
    double inArithmetic() const { return kind == kInteger || kind == kReal ? number : 0.0; }

    std::wstring text() const
    {
        wchar_t buffer[1000] = L"";
        switch (kind)
        {
            case kInteger: std::swprintf(buffer, 1000, L"%d", static_cast<int>(number)); return buffer;
            case kReal: std::swprintf(buffer, 1000, L"%f", number); return buffer;
            case kTruth: return number == 0.0 ? L"False" : L"True";
            default: return L"UnkValue";
        }
    }

    Kind kind = kUnknown;
    double number = 0.0; // an integer is exact in a double; a truth value is 0 or 1
};

struct FormulaVariable
{
    std::wstring name;
    FormulaValue value;
};

struct FormulaOutcome
{
    int result = 0;
    std::wstring text;                    // the last value, or the message of the first error
    std::vector<int> errors;              // codes, oldest first
    std::list<FormulaVariable> variables; // newest first
};

class ReferenceFormula
{
public:
    enum Error
    {
        kSyntaxError = 0,
        kImpairedParenthesis = 4,
        kDivisionByZero = 5
    };

    // `variables` in the order in which they are registered: of two equal names the later one is seen.
    ReferenceFormula(const std::wstring& formula, const std::vector<FormulaVariable>& variables) : m_text(formula)
    {
        m_outcome.variables.assign(variables.rbegin(), variables.rend());
    }

    FormulaOutcome run()
    {
        std::size_t start = 0;
        std::size_t previousLength = 0;
        for (;;)
        {
            const std::size_t separator = m_text.find(L';', start);
            const bool isLast = separator == std::wstring::npos;
            // On purpose: the last statement is measured by the length of the one before it, not by its place, so
            // behind a separator it reaches past the end of the text, where every character is zero.
            const std::size_t length = isLast ? m_text.size() - previousLength : separator - start;

            m_outcome.result = runStatement(start, start + length);
            if (!m_outcome.errors.empty())
            {
                m_outcome.text = message(m_outcome.errors.front());
                m_outcome.result = 0;
            }
            if (isLast || !m_outcome.errors.empty())
                return m_outcome;
            previousLength = length;
            start = separator + 1;
        }
    }

    // As the plain function that takes names and doubles does it: 0 with `result` untouched for what is no formula or
    // does not evaluate, else 1 and the value as its text gives it, so rounded to six decimals.
    static int evaluateFormula(const std::wstring& formula, const std::vector<FormulaVariable>& variables,
                               double& result)
    {
        if (formula.size() < 4 || formula.find_first_of(L"*/+-=()") == std::wstring::npos)
            return 0;
        const FormulaOutcome outcome = ReferenceFormula(formula, variables).run();
        if (outcome.result != 0)
            result = std::wcstod(outcome.text.c_str(), nullptr);
        return outcome.result;
    }

    static std::wstring message(int code)
    {
        static const wchar_t* const kMessages[] = { L"Syntax error",          L"Out of memory",
                                                    L"Not enough parameters", L"Too many parameters",
                                                    L"Impaired paranthesis",  L"Division by zero" };
        return kMessages[code];
    }

private:
    // An operator with its operands, or an operand with its place in the formula; the empty left side of a negation
    // is an operand without a place.
    struct Node
    {
        wchar_t sign = 0; // 0 for an operand
        bool hasText = true;
        std::size_t start = 0;
        std::size_t end = 0;
        std::unique_ptr<Node> left;
        std::unique_ptr<Node> right;
    };
    using NodePtr = std::unique_ptr<Node>;

    static bool isWhite(wchar_t c) { return c == L' ' || c == L'\t' || c == L'\n' || c == L'\r'; }
    static bool isSign(wchar_t c) { return c != 0 && std::wcschr(L"*/+-=()", c) != nullptr; }
    static int precedence(wchar_t sign)
    {
        return sign == L'=' ? 0 : sign == L'(' || sign == L')' ? 1 : sign == L'+' || sign == L'-' ? 2 : 3;
    }

    wchar_t at(std::size_t place) const { return place < m_text.size() ? m_text[place] : L'\0'; }

    std::wstring textOf(const Node& node) const
    {
        std::wstring text;
        if (node.hasText)
            for (std::size_t i = node.start; i < node.end; ++i)
                text += at(i);
        return text;
    }

    void raise(Error code) { m_outcome.errors.push_back(code); }

    int runStatement(std::size_t start, std::size_t end)
    {
        NodePtr root;
        const int parsed = parse(start, end, root);
        if (parsed == 1 && root)
            m_outcome.text = evaluate(root.get()).text();
        return parsed;
    }

    int parse(std::size_t start, std::size_t end, NodePtr& root)
    {
        m_signs.clear();
        m_operands.clear();
        int depth = 0;
        wchar_t previous = L'-'; // what a leading '-' behaves as if it followed: any sign but ')'
        std::size_t i = start;
        while (i < end)
        {
            const wchar_t c = at(i);
            if (isWhite(c) || c == 0)
                ++i;
            else if (isSign(c))
            {
                depth += c == L'(' ? 1 : c == L')' ? -1 : 0;
                pushSign(c, isSign(previous) && previous != L')', i);
                previous = c;
                ++i;
            }
            else
            {
                i = pushOperand(i, end);
                previous = 0;
            }
        }
        if (depth != 0)
            raise(kImpairedParenthesis);
        else
            reduce(0);
        if (!m_operands.empty())
            root = std::move(m_operands.back());
        return depth == 0;
    }

    void pushSign(wchar_t c, bool valueMissingBefore, std::size_t place)
    {
        if (c == L'-' && valueMissingBefore)
        {
            NodePtr nothing(new Node);
            nothing->hasText = false;
            m_operands.push_back(std::move(nothing));
        }
        else if (c != L'(')
            reduce(precedence(c));
        NodePtr node(new Node);
        node->sign = c;
        node->start = place;
        node->end = place + 1;
        m_signs.push_back(std::move(node));
    }

    // Where the operand that begins at `start` ends.
    std::size_t pushOperand(std::size_t start, std::size_t end)
    {
        std::size_t stop = start;
        while (stop < end && !isSign(at(stop)))
            ++stop;
        NodePtr node(new Node);
        node->start = start;
        node->end = stop;
        while (node->end > node->start && isWhite(at(node->end - 1)))
            --node->end;
        m_operands.push_back(std::move(node));
        return stop;
    }

    // Takes every sign off the stack's top that binds at least as tight; a ')' takes its '(' and goes on past it.
    void reduce(int atLeast)
    {
        while (!m_signs.empty() && precedence(m_signs.back()->sign) >= atLeast)
        {
            NodePtr node = std::move(m_signs.back());
            m_signs.pop_back();
            if (node->sign == L'(' || node->sign == L')')
                continue;
            node->right = takeOperand();
            node->left = takeOperand();
            m_operands.push_back(std::move(node));
        }
    }

    NodePtr takeOperand()
    {
        if (m_operands.empty())
            return nullptr;
        NodePtr top = std::move(m_operands.back());
        m_operands.pop_back();
        return top;
    }

    FormulaValue evaluate(const Node* node)
    {
        if (node == nullptr)
            return FormulaValue::unknown();
        if (node->sign == 0)
            return evaluateOperand(*node);
        if (node->sign == L'=')
            return assign(*node);
        const double left = evaluate(node->left.get()).inArithmetic();
        const double right = evaluate(node->right.get()).inArithmetic();
        return FormulaValue::real(compute(node->sign, left, right));
    }

    double compute(wchar_t sign, double left, double right)
    {
        switch (sign)
        {
            case L'*': return left * right;
            case L'+': return left + right;
            case L'-': return left - right;
            default: break;
        }
        if (right > -0.0001 && right < 0.0001)
        {
            raise(kDivisionByZero);
            return 0.0;
        }
        return left / right;
    }

    FormulaValue assign(const Node& node)
    {
        const FormulaValue value = evaluate(node.right.get());
        if (!node.left)
        {
            raise(kSyntaxError);
            return FormulaValue::unknown();
        }
        m_outcome.variables.push_front(FormulaVariable{ textOf(*node.left), value });
        return value;
    }

    FormulaValue evaluateOperand(const Node& node)
    {
        if (!node.hasText)
            return FormulaValue::real(0.0);
        // The scan knows no end but the formula's: `2e+5` reads 200000 here and 5 behind the sign.
        float number = 0.0f;
        if (std::swscanf(m_text.c_str() + node.start, L"%f", &number) != 0)
            return FormulaValue::real(static_cast<double>(number));
        const std::wstring name = textOf(node);
        for (const FormulaVariable& variable : m_outcome.variables)
            if (variable.name == name)
                return variable.value;
        raise(kSyntaxError);
        return FormulaValue::unknown();
    }

    std::wstring m_text;
    FormulaOutcome m_outcome;
    std::vector<NodePtr> m_signs;
    std::vector<NodePtr> m_operands;
};
