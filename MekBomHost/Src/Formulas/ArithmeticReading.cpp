// Operators wait until one that binds no tighter comes after them, as in the engine's reader, but a ')' combines back
// to its '(' alone. "2*3+(4+5)*6":
//   2 * 3     waiting *
//   +         waiting +          2*3 is combined
//   ( 4 + 5   waiting + ( +
//   )         waiting +          4+5 is combined, and no more
//   * 6       waiting + *
//   end       waiting            (4+5)*6 and then the sum are combined
#include "ArithmeticReading.h"

#include "Utf8.h"

#include "ExpressionEvaluator/Src/VorFormulaText.h"
#include "MekRoots/Exp/VorCharacters.h"
#include "MekRoots/Exp/VorNumberText.h"

#include <string_view>

namespace mekbom
{
namespace
{
// A formula is a list of statements, and its value is that of the last one.
constexpr wchar_t kSeparator = L';';

// What waits, by how tightly it binds: what comes combines all that binds as tightly or tighter. A '(' binds least of
// all, so that nothing passes it but its own ')'.
enum eRank
{
    kOpen, // a '('
    kAssignment,
    kSum,
    kProduct,
    kSign
};

eRank rankOf(wchar_t operation)
{
    switch (operation)
    {
        case L'=': return kAssignment;
        case L'+':
        case L'-': return kSum;
        default: return kProduct;
    }
}

bool isOneOf(wchar_t character, std::wstring_view characters)
{
    return characters.find(character) != std::wstring_view::npos;
}

class Reader
{
public:
    Reader(const VorString& formula, ArithmeticReading& reading)
        : m_pText(formula.getStringW()), m_pEnd(m_pText + formula.length()), m_reading(reading)
    {
    }

    // Stops at the first fault.
    void read()
    {
        while (m_reading.fault == ArithmeticReading::kNone && m_pText != m_pEnd)
            readItem(*m_pText);
        endStatement();
    }

private:
    struct Waiting
    {
        eRank rank;
        wchar_t operation;
    };

    // Each of these passes over what it reads. The first character of an item tells what it is, but what it means
    // depends on what comes before it: a '-' is a sign where an operand is wanted, and a difference behind one.
    void readItem(wchar_t character);
    void readBeforeOperand(wchar_t character);
    void readBehindOperand(wchar_t character);
    void readOperand();
    void close();
    void endStatement();

    const wchar_t* operandEnd() const;
    FormulaNode numberAt(const wchar_t* pEnd);
    void wait(eRank rank, wchar_t operation) { m_waiting.push_back({ rank, operation }); }
    void combineFor(eRank rank);
    void fail(ArithmeticReading::eFault fault, const std::string& what = std::string());

    const wchar_t* m_pText; // what has not been read
    const wchar_t* m_pEnd;
    ArithmeticReading& m_reading;
    std::vector<Waiting> m_waiting;
    std::vector<int> m_operands; // indices into the tree
    // True at the start, behind an operator and behind a '(': an operator is a mistake then, unless it is a sign.
    bool m_wantsOperand = true;
};

void Reader::readItem(wchar_t character)
{
    if (isOneOf(character, VorFormulaText::kBlanks))
        ++m_pText;
    else if (character == kSeparator)
    {
        endStatement();
        ++m_pText;
    }
    else if (m_wantsOperand)
        readBeforeOperand(character);
    else
        readBehindOperand(character);
}

// "-a" is read as "0-a" whose 0 is nowhere: a node of nothing becomes the left side, and the sign waits for its right
// one. A ')' with something to close is a mistake as well, "()" or "(a+)", but not one of the parentheses.
void Reader::readBeforeOperand(wchar_t character)
{
    if (!isOneOf(character, VorFormulaText::kOperators))
        return readOperand();
    ++m_pText;
    if (character == L'(')
        wait(kOpen, character);
    else if (character == L'-')
    {
        m_operands.push_back(m_reading.tree.add(FormulaNode()));
        wait(kSign, character);
    }
    else if (character == L')' && m_waiting.empty())
        fail(ArithmeticReading::kCrossed);
    else if (character != L'+') // a sign that changes nothing
        fail(ArithmeticReading::kOperandMissing);
}

// An operand behind an operand, "2(3+4)" or "round(a)", is a product or a call to its author; the engine loses one of
// the two, so it is named. A ')' leaves an operand behind it: the value of what it has closed.
void Reader::readBehindOperand(wchar_t character)
{
    if (character == L'(' || !isOneOf(character, VorFormulaText::kOperators))
        return fail(ArithmeticReading::kFactorLost, m_reading.tree.textOf(m_operands.back()));
    ++m_pText;
    if (character == L')')
        return close();
    combineFor(rankOf(character));
    wait(rankOf(character), character);
    m_wantsOperand = true;
}

// Whatever begins with a digit or a point means to be a number: no token and no variable does.
void Reader::readOperand()
{
    const wchar_t* const pEnd = operandEnd();
    FormulaNode node;
    if (VorCharacters::isDigit(*m_pText) || *m_pText == L'.')
        node = numberAt(pEnd);
    else
    {
        node.kind = FormulaNode::kName;
        node.text = VorString(m_pText, static_cast<int>(pEnd - m_pText));
        m_pText = pEnd;
    }
    m_operands.push_back(m_reading.tree.add(node));
    m_wantsOperand = false;
}

// The end of the operand that begins here, in front of the blanks that may stand behind it.
const wchar_t* Reader::operandEnd() const
{
    const wchar_t* pEnd = m_pText;
    while (pEnd != m_pEnd && *pEnd != kSeparator && !isOneOf(*pEnd, VorFormulaText::kOperators))
        ++pEnd;
    while (isOneOf(pEnd[-1], VorFormulaText::kBlanks))
        --pEnd;
    return pEnd;
}

// "1e-3" is one number to its author, though the operand ends before the '-'; so the scan may go on behind the operand.
// It may also end within it, "2,5", which is a fault. The value is that of single precision, as the engine keeps
// constants: both readings shall compute with the same one.
FormulaNode Reader::numberAt(const wchar_t* pOperandEnd)
{
    const wchar_t* pEnd = m_pText;
    VorNumberText::scanDouble(m_pText, pEnd, 0);
    float number = 0.0F;
    VorNumberText::scanFloat(m_pText, m_pEnd, number);
    if (pEnd < pOperandEnd)
        fail(ArithmeticReading::kNoNumber, Utf8::toBytes(VorString(m_pText, static_cast<int>(pOperandEnd - m_pText))));
    FormulaNode node;
    node.kind = FormulaNode::kNumber;
    node.text = VorString(m_pText, static_cast<int>(pEnd - m_pText));
    node.number = number;
    node.numRead = node.text.length();
    m_pText = pEnd;
    return node;
}

void Reader::close()
{
    combineFor(kAssignment);
    if (m_waiting.empty())
        return fail(ArithmeticReading::kCrossed);
    m_waiting.pop_back();
}

// An empty statement, as between two separators, is none and has no value. The operands hold one node at the end, the
// root: each operator that was combined has taken two and left one.
void Reader::endStatement()
{
    if (m_reading.fault != ArithmeticReading::kNone)
        return;
    const bool isEmpty = m_operands.empty() && m_waiting.empty();
    if (m_wantsOperand && !isEmpty)
        return fail(ArithmeticReading::kOperandMissing);
    combineFor(kAssignment);
    if (!m_waiting.empty())
        return fail(ArithmeticReading::kNotClosed);
    m_reading.tree.endStatement(isEmpty ? FormulaNode::kNoSide : m_operands.back());
    m_operands.clear();
    m_wantsOperand = true;
}

// Combines what binds as tightly as `rank` or tighter, back to a '(', the last one first: so operators of one rank,
// "8-2-1", combine from the left.
void Reader::combineFor(eRank rank)
{
    while (!m_waiting.empty() && m_waiting.back().rank >= rank)
    {
        FormulaNode node;
        node.kind = FormulaNode::kOperator;
        node.operation = m_waiting.back().operation;
        node.text += node.operation;
        node.right = m_operands.back();
        m_operands.pop_back();
        node.left = m_operands.back();
        m_operands.back() = m_reading.tree.add(node);
        m_waiting.pop_back();
    }
}

void Reader::fail(ArithmeticReading::eFault fault, const std::string& what)
{
    m_reading.fault = fault;
    m_reading.what = what;
}
}

ArithmeticReading ArithmeticReading::read(const VorString& formula)
{
    ArithmeticReading reading;
    Reader(formula, reading).read();
    return reading;
}
}
