#include "RandomFormula.h"

#include "ExpressionEvaluator/Src/VorFormulaText.h"

#include <cstddef>
#include <cwchar>
#include <iterator>

namespace
{
const wchar_t* const kNames[] = { L"a",           L"b",  L"A",  L"%Weight", L"my length", L"infix", L"nab",
                                  L"in",          L"e5", L"x1", L"2abc",    L"nan",       L"%A%%",  L"_",
                                  L"%L\u00e4nge", L".",  L"0x", L"0xg",     L"a b  c",    L"=",     L"-" };
const wchar_t* const kStrangers[] = { L"c",     L"Weight", L"mylength", L"my  length", L"%",
                                      L"abc.5", L"infini", L"\u00e9",   L"\U0001F600" };
const wchar_t* const kNumbers[] = { L"0",    L"1",      L"2",       L"3",       L"7",    L"10",  L"0.5",
                                    L".5",   L"5.",     L"007",     L"0.1",     L"1000", L"1e5", L"1e+5",
                                    L"1e-5", L"0.0001", L"0.00009", L"0.00005", L"2e",   L"2e+", L"0x1p3",
                                    L"0x",   L"0xg",    L"0x.",     L"0x.8",    L"inf",  L"nan" };
const wchar_t* const kLongNumbers[] = { L"0X1P-2",
                                        L"1E-40",
                                        L"1e39",
                                        L"2elements",
                                        L"INFINITY",
                                        L"0.00010001",
                                        L"16777217",
                                        L"2147483648",
                                        L"1.2.3",
                                        L"1,5",
                                        L"1'000",
                                        L"99999999999999999999999999999999999999",
                                        L"0.333333333333333333333333333333333333333" };
const wchar_t* const kGaps[] = { L" ", L"  ", L"\t", L"\n", L"\r", L"\f", L"\v", L" \t " };

// Operators twice, so that every third character is one.
std::wstring anyCharacters()
{
    const std::wstring operators(VorFormulaText::kOperators);
    return operators + operators + L";; \t\f.0123456789abexpnif%";
}
}

std::wstring RandomFormula::write()
{
    const int numStatements = m_dice.oneIn(3) ? 2 + m_dice.below(3) : 1;
    for (int i = 0; i < numStatements; ++i)
    {
        if (i > 0)
            m_text += L';';
        writeStatement();
    }
    if (m_dice.oneIn(12))
        m_text += L';';
    if (m_dice.oneIn(3))
        spoil(1 + m_dice.below(3));
    return m_text;
}

void RandomFormula::writeStatement()
{
    if (m_dice.oneIn(25))
        return writeGap();
    while (m_dice.oneIn(m_text.empty() ? 8 : 3))
    {
        writeName();
        writeGap();
        m_text += L'=';
    }
    writeSum(m_dice.oneIn(10) ? 6 : 3);
}

void RandomFormula::writeSum(int depth)
{
    writeFactor(depth);
    const int numMore = m_dice.below(4);
    for (int i = 0; i < numMore; ++i)
    {
        m_text += anyOf(L"*/+-*/+");
        writeFactor(depth);
    }
}

void RandomFormula::writeFactor(int depth)
{
    writeGap();
    if (m_dice.oneIn(8))
        m_text += L'-';
    if (depth > 0 && m_dice.oneIn(4))
    {
        m_text += L'(';
        writeSum(depth - 1);
        m_text += L')';
    }
    else if (m_dice.oneIn(3))
        writeName();
    else
        writeNumber();
    writeGap();
}

void RandomFormula::writeGap()
{
    if (m_dice.oneIn(6))
        m_text += m_dice.pick(kGaps);
}

void RandomFormula::writeName()
{
    m_text += m_dice.oneIn(40) ? m_dice.pick(kStrangers) : m_dice.pick(kNames);
}

void RandomFormula::writeNumber()
{
    if (m_dice.oneIn(2))
        m_text += std::to_wstring(m_dice.below(1000));
    else
        m_text += m_dice.oneIn(3) ? m_dice.pick(kLongNumbers) : m_dice.pick(kNumbers);
}

void RandomFormula::spoil(int numTimes)
{
    static const std::wstring s_characters = anyCharacters();
    for (int i = 0; i < numTimes && !m_text.empty(); ++i)
    {
        const auto place = static_cast<std::size_t>(m_dice.below(static_cast<int>(m_text.size())));
        const wchar_t any = anyOf(s_characters.c_str());
        switch (m_dice.below(4))
        {
            case 0: m_text.erase(place, 1); break;
            case 1: m_text.insert(place, 1, any); break;
            case 2: m_text[place] = any; break;
            default: m_text.insert(place, m_text.substr(place / 2, 4)); break;
        }
    }
}

wchar_t RandomFormula::anyOf(const wchar_t* characters)
{
    return characters[m_dice.below(static_cast<int>(std::wcslen(characters)))];
}

std::vector<std::wstring> RandomFormula::names()
{
    return std::vector<std::wstring>(std::begin(kNames), std::end(kNames));
}
