// What a client is told is compared as text: "2 3 *" for the operands 2 and 3 and their product, "0" for the missing
// side of a negation, "no" at the end where the reader gives up or parentheses are not balanced.
#include "ExpressionEvaluator/Src/Reading/VorStatementReader.h"
#include "ExpressionEvaluator/Src/Reading/VorStatementText.h"

#include <gtest/gtest.h>

#include <cwchar>
#include <string>

namespace
{
template <bool kTakesAll>
class Listener
{
public:
    struct Left
    {
    };
    static constexpr bool kTakesOddStatements = kTakesAll;
    static constexpr bool kIsTraced = false;

    explicit Listener(const wchar_t* text) : m_text(VorExprEvTextView(text, 0, static_cast<int>(std::wcslen(text))))
    {
        typename VorOperatorStack<Left>::Room room;
        VorStatementReader<Listener> reader(*this, room);
        const bool isRead = reader.read(m_text.begin()) != nullptr;
        m_told += isRead ? L"" : L"no";
        m_hasOperators = reader.hasOperators();
    }

    const std::wstring& told() const { return m_told; }
    bool hasOperators() const { return m_hasOperators; }

    VorFormulaCharacters::eKind kindAt(const wchar_t* pText) const { return m_text.kindAt(pText); }
    const wchar_t* readOperand(const wchar_t* pText, VorFormulaCharacters::eKind)
    {
        VorExprEvTextView operand;
        const wchar_t* pEnd = m_text.readOperand(pText, operand);
        tell(std::wstring(operand.existingPart()));
        return pEnd;
    }
    void addNothing() { tell(L"0"); }
    Left left(const wchar_t*) const { return {}; }
    void combine(const VorWaitingOperator<Left>& waiting) { tell(std::wstring(1, waiting.character)); }
    bool canAssign(const wchar_t* pText) const { return kTakesAll || pText == m_text.begin() + 1; }
    void assign(const VorWaitingOperator<Left>& waiting) { combine(waiting); }
    void trace(const VorOperatorStack<Left>&) const {}

private:
    void tell(const std::wstring& word) { m_told += word + L" "; }

    VorStatementText m_text;
    std::wstring m_told;
    bool m_hasOperators = false;
};

struct Case
{
    const wchar_t* statement;
    const wchar_t* told;
    bool takesTurns;
};

const Case kCases[] = {
    { L"2*3+4", L"2 3 * 4 + ", true },
    { L"2+3*4", L"2 3 4 * + ", true },
    { L"8-3-2", L"8 3 - 2 - ", true },
    { L"2*(3+a)", L"2 3 a + * ", true },
    { L" my length * 2 ", L"my length 2 * ", true },
    { L"2*3+(4+5)*6", L"2 3 * 4 5 + + 6 * ", true }, // on purpose: ')' combines past its '('
    { L"-2*--3", L"0 2 0 0 3 - - * - ", true },
    { L"((1))", L"1 ", true },
    { L"a=2+3", L"a 2 3 + = ", true },
    { L"12", L"12 ", true },
    { L"(1+2", L"1 2 no", true }, // what waits is not combined
    { L"1+2)", L"1 2 + no", true },
    { L"", L"", false },
    { L" ", L"", false },
    { L"5*", L"5 * ", false },
    { L"*5", L"5 * ", false },
    { L"+", L"+ ", false },
    { L")(", L"", false },
    { L"(1)(2)", L"1 2 ", false },
    { L"2(3)", L"2 3 ", false },
    { L"(1)2", L"1 2 ", false },
    { L"a=b=3", L"a b = 3 = ", false },
    { L"1++2", L"1 + 2 + ", false },
};
}

TEST(VorStatementReaderTest, TheClientIsToldEveryStep)
{
    for (const Case& c : kCases)
        EXPECT_EQ(c.told, Listener<true>(c.statement).told()) << c.statement;
}

TEST(VorStatementReaderTest, WhoTakesNoOddStatementsIsToldTheSameOrGivesUp)
{
    for (const Case& c : kCases)
    {
        const std::wstring told = Listener<false>(c.statement).told();
        if (c.takesTurns)
            EXPECT_EQ(c.told, told) << c.statement;
        else
            EXPECT_EQ(L"no", told.substr(told.size() - 2)) << c.statement;
    }
}

TEST(VorStatementReaderTest, ItKnowsWhetherThereWasAnOperator)
{
    for (const wchar_t* statement : { L"1+2", L"(1)", L"-1", L"a=1", L"+", L"()" })
        EXPECT_TRUE(Listener<true>(statement).hasOperators()) << statement;
    for (const wchar_t* statement : { L"", L" ", L"12", L"my length" })
        EXPECT_FALSE(Listener<true>(statement).hasOperators()) << statement;
}
