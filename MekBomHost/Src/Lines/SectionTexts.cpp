// A section is a number for its place, then its texts. A text that lines share is one byte, its number; a plain one its
// length in one byte and its characters; another one kOther, its length as a number and its bytes.
//
//   details, level 2, "HEA200", the first such text under its column, and "2.5"   ->   4 0 0 0   128   3 2 . 5
#include "SectionTexts.h"

#include "Utf8.h"

#include <algorithm>

namespace mekbom
{
namespace
{
const std::size_t kPageSize = 1 << 20; // arbitrary: small against a report that needs a second one

std::uint32_t numberOf(SectionPlace place)
{
    return static_cast<std::uint32_t>(place.level) * 2 + (place.isFooter ? 1 : 0);
}

SectionPlace placeOf(std::uint32_t number)
{
    return { static_cast<int>(number / 2), number % 2 != 0 };
}

// False for a text that is not plain: a character below ' ' or above '~' sets the highest bit of one of the
// differences, and looking at all of them once is cheaper than at each.
bool narrow(const VorString& text, char* pBytes)
{
    const wchar_t* const pText = text.getStringW();
    const int length = text.length();
    std::uint32_t differences = 0;
    for (int i = 0; i < length; ++i)
    {
        // NOLINTNEXTLINE(bugprone-signed-char-misuse): a wchar_t is no char
        const auto character = static_cast<std::uint32_t>(pText[i]);
        differences |= (character - U' ') | (U'~' - character);
        pBytes[i] = static_cast<char>(character);
    }
    return differences >> 31 == 0;
}
}

SectionTexts::SectionTexts(const ReportTemplate& reportTemplate)
{
    for (const VorBomItemBase* pHeader = reportTemplate.pTemplate->child(); pHeader != nullptr;
         pHeader = pHeader->child())
    {
        m_headers.push_back(choiceFor(reportTemplate, pHeader));
        m_footers.push_back(choiceFor(reportTemplate, pHeader->next()));
    }
}

// A level may lack its footer.
SectionTexts::Choice SectionTexts::choiceFor(const ReportTemplate& reportTemplate, const VorBomItemBase* pSection)
{
    Choice choice;
    if (pSection == nullptr)
        return choice;
    choice.hasLine = reportTemplate.hasLine(*pSection);
    choice.tuples = reportTemplate.shownTuplesOf(*pSection);
    choice.sharedTexts.resize(choice.tuples.size());
    choice.extents.resize(choice.tuples.size());
    return choice;
}

void SectionTexts::takeHeader(const VorBomReportSection& header)
{
    const auto index = static_cast<std::size_t>(header.level);
    m_numDetails += index + 1 == m_headers.size() ? 1 : 0;
    take(m_headers[index], header.section, { header.level, false });
}

void SectionTexts::takeFooter(const VorBomReportSection& footer)
{
    take(m_footers[static_cast<std::size_t>(footer.level)], footer.section, { footer.level, true });
}

const SectionTexts::Choice& SectionTexts::choiceOf(SectionPlace place) const
{
    return (place.isFooter ? m_footers : m_headers)[static_cast<std::size_t>(place.level)];
}

TextExtent SectionTexts::extentOf(SectionPlace place, std::size_t index) const
{
    TextExtent extent = choiceOf(place).extents[index];
    for (const SectionText& text : choiceOf(place).sharedTexts[index].texts())
    {
        extent.longest = std::max(extent.longest, text.length);
        extent.areAllPlain = extent.areAllPlain && text.isPlain;
    }
    return extent;
}

void SectionTexts::take(Choice& choice, const VorBomTemplateItem& section, SectionPlace place)
{
    if (!choice.hasLine)
        return;
    choice.isTaken = true;
    makeRoom(sizeof(Number));
    append(numberOf(place));
    const VorBomDataTuple* const pTuples = section.getData().begin();
    for (std::size_t i = 0; i < choice.tuples.size(); ++i)
        append(pTuples[choice.tuples[i]].value(), choice.sharedTexts[i], choice.extents[i]);
}

// An evaluated section shows texts alone; whatever has no value shows nothing.
void SectionTexts::append(const VorBomDataValue& value, SharedTexts& sharedTexts, TextExtent& extent)
{
    static const VorString kNoText;
    const VorString& text =
        value.type() == VorBomDataValue::kStringData ? *static_cast<const VorString*>(value.data()) : kNoText;
    const std::size_t number = text.isEmpty() == 1 ? SharedTexts::kNone : sharedTexts.numberOf(text);
    if (number != SharedTexts::kNone)
        appendByte(kFirstShared + number);
    else if (appendPlain(text))
        extent.longest = std::max(extent.longest, static_cast<std::uint32_t>(text.length()));
    else
    {
        appendOther(Utf8::toBytes(text));
        extent.areAllPlain = false;
    }
}

void SectionTexts::appendByte(std::size_t byte)
{
    makeRoom(1);
    *m_pNext++ = static_cast<char>(byte);
}

bool SectionTexts::appendPlain(const VorString& text)
{
    const auto length = static_cast<std::size_t>(text.length());
    if (length > kLongestPlain)
        return false;
    makeRoom(length + 1);
    if (!narrow(text, m_pNext + 1))
        return false;
    *m_pNext = static_cast<char>(length);
    m_pNext += length + 1;
    return true;
}

void SectionTexts::appendOther(std::string_view text)
{
    makeRoom(1 + sizeof(Number) + text.size());
    *m_pNext++ = static_cast<char>(kOther);
    append(static_cast<Number>(text.size()));
    m_pNext = std::copy(text.begin(), text.end(), m_pNext);
}

// Where there is room for it.
void SectionTexts::append(Number number)
{
    std::memcpy(m_pNext, &number, sizeof number);
    m_pNext += sizeof number;
}

void SectionTexts::makeRoom(std::size_t size)
{
    if (static_cast<std::size_t>(m_pPageEnd - m_pNext) < size)
        startPage(size);
}

void SectionTexts::startPage(std::size_t size)
{
    if (!m_pages.empty())
        m_pages.back().pEnd = m_pNext;
    const std::size_t pageSize = std::max(size, kPageSize);
    m_pages.emplace_back();
    m_pages.back().bytes.reset(new char[pageSize]); // not cleared, as make_unique would
    m_pNext = m_pages.back().bytes.get();
    m_pPageEnd = m_pNext + pageSize;
}

const char* SectionTexts::endOf(std::size_t page) const
{
    return page + 1 == m_pages.size() ? m_pNext : m_pages[page].pEnd;
}

bool SectionTexts::Reader::nextSection(SectionPlace& place)
{
    turnPages();
    if (m_pNext == m_pPageEnd)
        return false;
    place = placeOf(takeNumber());
    m_pSharedTexts = m_texts.choiceOf(place).sharedTexts.data();
    return true;
}

// Pages may be empty: a text that did not fit into the one before may turn out to need a larger one.
void SectionTexts::Reader::turnPages()
{
    while (m_pNext == m_pPageEnd && m_numPagesTurned < m_texts.m_pages.size())
    {
        m_pNext = m_texts.m_pages[m_numPagesTurned].bytes.get();
        m_pPageEnd = m_texts.endOf(m_numPagesTurned);
        ++m_numPagesTurned;
    }
}
}
