// Marks are kept under what natural order takes them for. The first one under a name stays; another spelling under the
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

namespace mekbom
{
namespace
{
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
    // One pair is enough to say what is wrong, so that rows behind it cost nothing.
    const VorBomDataTuple* const pTuple = m_pair.empty() ? m_marked.findIn(row) : nullptr;
    if (pTuple == nullptr || pTuple->value().type() != VorBomDataValue::kStringData)
        return;
    const VorString& mark = *static_cast<const VorString*>(pTuple->value().data());
    if (mark == m_last)
        return;
    m_last = mark;
    const std::string text = Utf8::toBytes(mark);
    const auto [entry, isNew] = m_marks.emplace(withoutLeadingZeros(text), text);
    if (!isNew && entry->second != text)
        m_pair = inQuotes(entry->second) + " and " + inQuotes(text);
}

void MarkRule::tell(MistakeList& mistakes) const
{
    if (!m_pair.empty())
        mistakes.add(MistakeCodes::kMarksNearlyEqual, m_request,
                     Utf8::toBytes(m_marked.token()) + " has " + m_pair +
                         ", which differ by leading zeros alone: they stand side by side as two marks",
                     "write the mark in one way in the data, if one is meant");
}
}
