#include "BlankRule.h"

#include "InQuotes.h"
#include "MistakeCodes.h"
#include "Utf8.h"

#include "MekRoots/Exp/VorCharacters.h"

namespace mekbom
{
namespace
{
const std::string_view kBlanks = " \t\r\n";

bool isBlank(wchar_t c)
{
    return c == L' ' || c == L'\t' || c == L'\r' || c == L'\n';
}

bool isPadded(const VorString& text)
{
    return text.isEmpty() == 0 && (isBlank(text.getStringW()[0]) || isBlank(text.getStringW()[text.length() - 1]));
}

// Null for a row without a text.
const VorString* textIn(const VorBomDataTuple* pTuple)
{
    const bool isText = pTuple != nullptr && pTuple->value().type() == VorBomDataValue::kStringData;
    return isText ? static_cast<const VorString*>(pTuple->value().data()) : nullptr;
}

std::string pairOf(const std::string& one, const std::string& other)
{
    return inQuotes(one) + " and " + inQuotes(other);
}
}

BlankRule::BlankRule(const CheckedTuple& request, const std::string& token)
    : m_request(request), m_grouped(Utf8::toWide(token))
{
}

void BlankRule::see(const VorBomDataRow& row)
{
    if (m_pFirstRow == nullptr)
        m_pFirstRow = &row;
    const VorString* const pText = textIn(m_grouped.findIn(row));
    if (pText == nullptr || !isPadded(*pText) || !m_pair.empty())
        return;
    const std::string text = Utf8::toBytes(*pText);
    const auto [entry, isNew] = m_padded.emplace(VorCharacters::trimmed(text, kBlanks), text);
    if (!isNew && entry->second != text)
        m_pair = pairOf(entry->second, text);
}

// The first text without blanks that some padded one reads like, with that; empty where there is none.
std::string BlankRule::pairWithPlainText() const
{
    DatumFinder grouped(m_grouped.token());
    for (const VorBomItemBase* pRow = m_padded.empty() ? nullptr : m_pFirstRow; pRow != nullptr; pRow = pRow->next())
        if (const VorString* const pText = textIn(grouped.findIn(static_cast<const VorBomDataRow&>(*pRow))))
        {
            const auto padded = isPadded(*pText) ? m_padded.end() : m_padded.find(Utf8::toBytes(*pText));
            if (padded != m_padded.end())
                return pairOf(padded->first, padded->second);
        }
    return std::string();
}

void BlankRule::tell(MistakeList& mistakes) const
{
    const std::string pair = m_pair.empty() ? pairWithPlainText() : m_pair;
    if (!pair.empty())
        mistakes.add(MistakeCodes::kTextsDifferInBlanks, m_request,
                     Utf8::toBytes(m_grouped.token()) + " has " + pair +
                         ", which differ in blanks alone: they are two groups that read alike",
                     "take the blanks out of the cells");
}
}
