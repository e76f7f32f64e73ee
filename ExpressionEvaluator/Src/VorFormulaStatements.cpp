// "a=4;a*2" of 7 characters has two statements:
//   "a=4"      3 characters, up to the separator
//   "a*2\0"    4 characters: no separator follows, so it is the last one, and its length is that of the formula, 7,
//              less that of the statement before it, 3. The text has 3 more; the view answers zero for the fourth.
#include "VorFormulaStatements.h"

#include "Reading/VorFormulaCharacters.h"

VorFormulaStatements::VorFormulaStatements(const wchar_t* text, int length)
    : m_pText(text), m_nLength(length), m_nTextLength(VorExprEvTextView(text, 0, length).textLength())
{
}

int VorFormulaStatements::next()
{
    if (m_bLast)
        return 0;
    const int nSeparator = findSeparator(m_nStart);
    m_bLast = nSeparator < 0 ? 1 : 0;
    const int nLength = m_bLast ? m_nLength - m_nPreviousLength : nSeparator - m_nStart;
    m_current = VorExprEvTextView(m_pText + m_nStart, 0, nLength, m_nTextLength - m_nStart);
    m_nPreviousLength = nLength;
    m_nStart = nSeparator + 1;
    return 1;
}

// The place of the first separator at or after `nStart`, -1 when there is none.
int VorFormulaStatements::findSeparator(int nStart) const
{
    const std::wstring_view text(m_pText, static_cast<std::size_t>(m_nLength));
    const std::size_t nFound = text.find(VorFormulaCharacters::kSeparator, static_cast<std::size_t>(nStart));
    return nFound == std::wstring_view::npos ? -1 : static_cast<int>(nFound);
}
