// Two marks can differ by leading zeros only where one has any, and most lists have none: keeping each mark took 4 % of
// the instructions of the whole job. So rows are gone through a second time once a mark such as "B02" was met. Then
// marks are kept under what natural order takes them for. The first one under a name stays; another spelling under the
// same name is the mistake:
//
//   "B02"   is kept under "B2"
//   "B10"   is kept under "B10"
//   "B2"    finds "B02" under "B2": these two are told, and no further mark is looked at
#include "MarkRule.h"

#include "InQuotes.h"
#include "MistakeCodes.h"
#include "Utf8.h"

#include "MekRoots/Exp/VorCharacters.h"
#include "MekRoots/Exp/VorString.h"

#include <unordered_map>

namespace mekbom
{
namespace
{
const VorString* textIn(const VorBomDataTuple* pTuple)
{
    const bool isText = pTuple != nullptr && pTuple->value().type() == VorBomDataValue::kStringData;
    return isText ? static_cast<const VorString*>(pTuple->value().data()) : nullptr;
}

// Whether withoutLeadingZeros() would take any away: a zero at the begin of a number that goes on.
bool hasLeadingZeros(const VorString& text)
{
    const wchar_t* const pText = text.getStringW();
    for (int i = 0; i < text.length(); ++i)
        if (pText[i] == L'0' && VorCharacters::isDigit(pText[i + 1]) &&
            (i == 0 || !VorCharacters::isDigit(pText[i - 1])))
            return true;
    return false;
}

// "B02" -> "B2", "A-010" -> "A-10". The last zero of a number stays, so that "B0" and "B00" are "B0" and not "B".
std::string withoutLeadingZeros(const std::string& text)
{
    std::string bare;
    for (std::size_t i = 0; i < text.size(); ++i)
    {
        const bool beginsNumber = bare.empty() || !VorCharacters::isDigit(bare.back());
        const bool goesOn = i + 1 < text.size() && VorCharacters::isDigit(text[i + 1]);
        if (text[i] != '0' || !beginsNumber || !goesOn)
            bare += text[i];
    }
    return bare;
}
}

MarkRule::MarkRule(const CheckedTuple& request, const std::string& token)
    : m_request(request), m_marked(Utf8::toWide(token))
{
}

void MarkRule::see(const VorBomDataRow& row)
{
    if (m_pFirstRow == nullptr)
        m_pFirstRow = &row;
    const VorString* const pMark = m_hasLeadingZeros ? nullptr : textIn(m_marked.findIn(row));
    m_hasLeadingZeros = m_hasLeadingZeros || (pMark != nullptr && hasLeadingZeros(*pMark));
}

// The first two marks that are alike, in quotes; empty where there are none. Most marks follow themselves.
std::string MarkRule::firstPair() const
{
    DatumFinder marked(m_marked.token());
    std::unordered_map<std::string, std::string> marks; // "B2" -> "B02": by what they are without leading zeros
    VorString last;
    for (const VorBomItemBase* pRow = m_pFirstRow; pRow != nullptr; pRow = pRow->next())
    {
        const VorString* const pMark = textIn(marked.findIn(static_cast<const VorBomDataRow&>(*pRow)));
        if (pMark == nullptr || *pMark == last)
            continue;
        last = *pMark;
        const std::string text = Utf8::toBytes(last);
        const auto [entry, isNew] = marks.emplace(withoutLeadingZeros(text), text);
        if (!isNew && entry->second != text)
            return inQuotes(entry->second) + " and " + inQuotes(text);
    }
    return std::string();
}

void MarkRule::tell(MistakeList& mistakes) const
{
    const std::string pair = m_hasLeadingZeros ? firstPair() : std::string();
    if (!pair.empty())
        mistakes.add(MistakeCodes::kMarksNearlyEqual, m_request,
                     Utf8::toBytes(m_marked.token()) + " has " + pair +
                         ", which differ by leading zeros alone: they stand side by side as two marks",
                     "write the mark in one way in the data, if one is meant");
}
}
