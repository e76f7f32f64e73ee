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

// Reads zero-terminated formulas of several statements, gives up at an operand that begins with "x", and at every '='
// unless told otherwise. Counts what it is asked, and writes down what waits: "+*|" for a '*' upon a '+'.
class Counter
{
public:
    struct Left
    {
    };
    static constexpr bool kTakesOddStatements = false;
    static constexpr bool kIsTraced = true;

    int numOperands = 0;
    int numCombined = 0;
    int numAssigned = 0;
    bool mayAssign = false;
    std::wstring waited;

    VorFormulaCharacters::eKind kindAt(const wchar_t* pText) const
    {
        return VorFormulaCharacters::kKindsInFormula[*pText];
    }
    const wchar_t* readOperand(const wchar_t* pText, VorFormulaCharacters::eKind)
    {
        ++numOperands;
        if (*pText == L'x')
            return nullptr;
        while (!VorFormulaCharacters::kOperandEnds.holds(*pText))
            ++pText;
        return pText;
    }
    void addNothing() {}
    Left left(const wchar_t*) const { return {}; }
    void combine(const VorWaitingOperator<Left>&) { ++numCombined; }
    bool canAssign(const wchar_t*) const { return mayAssign; }
    void assign(const VorWaitingOperator<Left>&) { ++numAssigned; }
    void trace(const VorOperatorStack<Left>& waiting)
    {
        for (std::size_t i = 1; i < waiting.size(); ++i) // no operator stands at the bottom
            waited += waiting[i].character;
        waited += L'|';
    }
};

// Where the statement ends, or null.
const wchar_t* readBy(Counter& counter, const wchar_t* statement)
{
    VorOperatorStack<Counter::Left>::Room room;
    return VorStatementReader<Counter>(counter, room).read(statement);
}

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

TEST(VorStatementReaderTest, StatementsAreReadOneAfterTheOther)
{
    Counter counter;
    counter.mayAssign = true;
    VorOperatorStack<Counter::Left>::Room room;
    VorStatementReader<Counter> reader(counter, room);

    const wchar_t* pEnd = reader.read(L"7;a=1+2;3*(4-5)");
    ASSERT_STREQ(L";a=1+2;3*(4-5)", pEnd);
    EXPECT_FALSE(reader.hasOperators());
    pEnd = reader.read(pEnd + 1);
    ASSERT_STREQ(L";3*(4-5)", pEnd);
    pEnd = reader.read(pEnd + 1);

    EXPECT_STREQ(L"", pEnd);
    EXPECT_TRUE(reader.hasOperators());
    EXPECT_EQ(7, counter.numOperands);
    EXPECT_EQ(3, counter.numCombined);
    EXPECT_EQ(1, counter.numAssigned);
}

TEST(VorStatementReaderTest, AClientThatHasGivenUpIsAskedNothingMore)
{
    Counter atOperand;
    EXPECT_EQ(nullptr, readBy(atOperand, L"1+x*2+3"));
    EXPECT_EQ(2, atOperand.numOperands);
    EXPECT_EQ(0, atOperand.numCombined);

    Counter atAssignment;
    EXPECT_EQ(nullptr, readBy(atAssignment, L"1+a=2"));
    EXPECT_EQ(2, atAssignment.numOperands);
    EXPECT_EQ(0, atAssignment.numCombined);
    EXPECT_EQ(0, atAssignment.numAssigned);
}

TEST(VorStatementReaderTest, OperatorsMayWaitInAnyNumber)
{
    constexpr int kDeep = 1000; // far beyond the room they have at first
    std::wstring formula;
    for (int i = 0; i < kDeep; ++i)
        formula += L"1+(";
    formula += L"1" + std::wstring(kDeep, L')');
    Counter counter;

    EXPECT_NE(nullptr, readBy(counter, formula.c_str()));
    EXPECT_EQ(kDeep + 1, counter.numOperands);
    EXPECT_EQ(kDeep, counter.numCombined);
}

TEST(VorStatementReaderTest, WhatWaitsIsTracedBeforeAndAfterCombining)
{
    const wchar_t* const kTraces[][2] = {
        { L"7", L"||" },       { L"2*3+4", L"*||+||" },     { L"2+3*4", L"+*||" },
        { L"(1)", L"(||)||" }, { L"2*(3+a)", L"*(+||)||" }, { L"(1+2", L"(+|(+|" }
    }; // not balanced: nothing is combined
    for (const auto& [statement, waited] : kTraces)
    {
        Counter counter;
        readBy(counter, statement);
        EXPECT_EQ(waited, counter.waited) << statement;
    }
}
