// Reads operands of a zero-terminated formula: numbers, and names that stand for announced variables.
//
//   variables.announce(names, values, 2);             // a = 2, b = 3
//   VorFormulaOperands operands(variables);
//   operands.read(L"b * 2", VorFormulaCharacters::kName, value)          ->  "* 2", value 3
//   operands.read(L"2", VorFormulaCharacters::kDigit, value)             ->  "", value 2
//   operands.read(L"c+1", VorFormulaCharacters::kName, value)            ->  null: nothing is known of c
//   operands.read(L"(2)", VorFormulaCharacters::kParenthesis, value)     ->  null: no operand begins there
//
// Owns nothing. Makes no variable, but announces those that are assigned.
#pragma once

#include "ExpressionEvaluator/Src/Reading/VorFormulaCharacters.h"
#include "ExpressionEvaluator/Src/Reading/VorFormulaNumber.h"
#include "ExpressionEvaluator/Src/VorExprEvVariableList.h"

#include <cstddef>
#include <string_view>

class VorFormulaOperands
{
public:
    // All variables in the list must be announced ones.
    explicit VorFormulaOperands(VorExprEvVariableList& variables)
        : m_variables(variables), m_numGiven(variables.announcedEnd() - variables.announced())
    {
    }

    // Reads the operand at `pText`, which is in the same formula every time, and answers where it ends, the blanks
    // behind it passed over; null, with `value` undefined, when there is none or it has no value.
    const wchar_t* read(const wchar_t* pText, VorFormulaCharacters::eKind kind, double& value)
    {
        switch (kind)
        {
            case VorFormulaCharacters::kName: return findName(pText, value);
            case VorFormulaCharacters::kDigit:
                if (const wchar_t* pNext = VorFormulaNumber::scanShort(pText, value))
                    return pNext;
                break;
            case VorFormulaCharacters::kOperand: break;
            default: return nullptr;
        }
        double unusual = 0.0; // a variable of its own, so that the usual value stays in a register
        const wchar_t* pNext = readUnusual(pText, unusual);
        value = unusual;
        return pNext;
    }

    // The characters of the operand at `pText`, without the blanks behind it; `pNext` is where those end.
    static std::wstring_view textAt(const wchar_t* pText, const wchar_t*& pNext)
    {
        while (VorFormulaCharacters::kBlanks.holds(*pText))
            ++pText;
        pNext = pText;
        while (!VorFormulaCharacters::kOperandEnds.holds(*pNext))
            ++pNext;
        const wchar_t* pEnd = pNext;
        while (pEnd != pText && VorFormulaCharacters::kBlanks.holds(pEnd[-1]))
            --pEnd;
        return { pText, static_cast<std::size_t>(pEnd - pText) };
    }

    // Makes a variable; 0 when there are too many. Later statements may take it back.
    int assign(std::wstring_view name, double value) { return m_variables.announce(name, value); }
    void forgetAssigned() { m_variables.withdraw(m_numGiven); }

    void beginNextStatement() { m_bReachesPastEnd = true; }

private:
    using Variable = VorExprEvVariableList::Announced;

    // The newest first. The last of several statements reaches past the end of the formula: a name there has a zero
    // character, and no variable has that.
    const wchar_t* findName(const wchar_t* pText, double& value) const
    {
        for (const Variable* pVariable = m_variables.announcedEnd(); pVariable != m_variables.announced();)
        {
            const wchar_t* pNext = passOver((--pVariable)->pName, pText);
            if (pNext == nullptr || !pVariable->canBeOperand)
                continue;
            value = pVariable->value;
            return m_bReachesPastEnd && *pNext == L'\0' ? nullptr : pNext;
        }
        return nullptr;
    }

    // Where the operand at `pText` ends that begins with the name and has nothing but blanks behind it; else null.
    static const wchar_t* passOver(const wchar_t* pName, const wchar_t* pText)
    {
        for (; *pName != L'\0'; ++pName, ++pText)
            if (*pText != *pName)
                return nullptr;
        return VorFormulaCharacters::endOperand(pText);
    }

    const wchar_t* readUnusual(const wchar_t* pText, double& value);

    VorExprEvVariableList& m_variables;
    std::ptrdiff_t m_numGiven;              // the assigned ones stand behind
    const wchar_t* m_pFormulaEnd = nullptr; // not looked for before it is needed
    bool m_bReachesPastEnd = false;
};
