// A section is a byte for its place, its texts, and its values where they are kept; a place that no byte can tell is the
// byte kOther and a number. Texts are of three kinds: one that many lines repeat is a single byte, its number; a plain
// one its length in a byte and its characters; any other one the byte kOther, its length as a number, and its bytes. A
// value is a byte for its type and its unit, and behind that of a number the double.
//
//   a details line of level 2 that shows "HEA200", the first text that lines repeat under that token, and "2.5"
//
//     04            80           03 '2' '.' '5'
//     2 * level     repeated 0   plain, of 3 bytes
//
// The rows behind the sections stand apart, in SectionRows: a row that is merged into a line comes after the line was
// packed.
#include "PackedSections.h"

#include "NumberInValue.h"
#include "Utf8.h"

#include "VorBomTokenCatalogue.h"

#include <algorithm>

namespace mekbom
{
namespace
{
const std::size_t kPageSize = 1 << 20; // arbitrary: small against a report that needs a second one

const std::uint32_t kTypesPerUnit = 4;

// Of a value all but its number.
std::uint32_t kindOf(const VorBomTypedValue& value)
{
    return static_cast<std::uint32_t>(value.unitType) * kTypesPerUnit + static_cast<std::uint32_t>(value.type);
}

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
//
// Writes as many bytes as the text has characters either way; what it has written of a text that is not plain is
// worthless, and the next entry overwrites it.
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

// What the catalogue knows as a text is none; totals and formulas are.
bool mayBeNumber(const VorString& token)
{
    const VorBomTokenCatalogue::Entry* const pEntry = VorBomTokenCatalogue::find(token);
    return pEntry == nullptr || pEntry->type != VorBomDataValue::kStringData;
}
}

PackedSections::PackedSections(const ReportTemplate& reportTemplate, LineContents contents)
    : VorBomSectionSink(contents.values ? kTypedValues : kTextsAlone), m_contents(contents)
{
    for (const VorBomItemBase* pHeader = reportTemplate.pTemplate->child(); pHeader != nullptr;
         pHeader = pHeader->child())
    {
        m_headers.push_back(keptFor(reportTemplate, pHeader));
        m_footers.push_back(keptFor(reportTemplate, pHeader->next()));
    }
}

// A level may lack its footer.
PackedSections::Kept PackedSections::keptFor(const ReportTemplate& reportTemplate, const VorBomItemBase* pSection)
{
    Kept kept;
    if (pSection == nullptr)
        return kept;
    kept.hasLine = reportTemplate.hasLine(*pSection);
    kept.tuples = reportTemplate.shownTuplesOf(*pSection);
    kept.repeatedTexts.resize(kept.tuples.size());
    kept.extents.resize(kept.tuples.size());
    for (const int tuple : kept.tuples)
        kept.areNumbers.push_back(mayBeNumber(pSection->getData()[tuple].token().token()));
    return kept;
}

void PackedSections::takeHeader(const VorBomReportSection& header)
{
    if (take(m_headers[static_cast<std::size_t>(header.level)], header, false) && m_contents.rows)
        m_rows.add(*header.pRow);
}

void PackedSections::takeFooter(const VorBomReportSection& footer)
{
    if (!take(m_footers[static_cast<std::size_t>(footer.level)], footer, true) || !m_contents.rows)
        return;
    for (const VorBomDataRow& row : footer.countedRows)
        m_rows.add(row);
}

// The engine names no section: the row is merged into the one handed over last. If that has no line, there is no list
// for the row, and the last one is that of another line.
void PackedSections::takeMergedRow(const VorBomDataRow& row)
{
    if (m_isLastPacked && m_contents.rows)
        m_rows.add(row);
}

const PackedSections::Kept& PackedSections::keptOf(SectionPlace place) const
{
    return (place.isFooter ? m_footers : m_headers)[static_cast<std::size_t>(place.level)];
}

// Repeated texts are measured here, each once, and not when they are packed: a hundred thousand lines may show the same
// one.
TextExtent PackedSections::extentOf(SectionPlace place, std::size_t index) const
{
    TextExtent extent = keptOf(place).extents[index];
    for (const ShownText& text : keptOf(place).repeatedTexts[index].texts())
    {
        keptOf(place).areNumbers[index] ? extent.addNumber(text.view()) : extent.addText(text.length);
        extent.areAllPlain = extent.areAllPlain && text.isPlain;
    }
    return extent;
}

// False for a section without a line.
// Every section packed begins a list of rows, even if none follow: the reader finds its list by counting sections.
bool PackedSections::take(Kept& kept, const VorBomReportSection& section, bool isFooter)
{
    m_isLastPacked = kept.hasLine;
    if (!kept.hasLine)
        return false;
    kept.isTaken = true;
    ++m_numSections;
    append(SectionPlace{ section.level, isFooter });
    const VorBomDataTuple* const pTuples = section.section.getData().begin();
    for (std::size_t i = 0; i < kept.tuples.size(); ++i)
        append(pTuples[kept.tuples[i]].value(), kept, i);
    if (m_contents.values)
        for (const int tuple : kept.tuples)
            append(section.pValues[tuple]);
    if (m_contents.rows)
        m_rows.beginList();
    return true;
}

// An evaluated section shows texts alone; whatever has no value shows nothing.
// The cheapest form is tried first: a number is found by the address of the characters, without a look at any of them.
// Without that form a report of 100,000 rows with long equal texts takes 3 % more instructions and 11 % more memory.
// Where decimals begin is asked of numbers alone: it takes some 45 instructions.
void PackedSections::append(const VorBomDataValue& value, Kept& kept, std::size_t index)
{
    static const VorString kNoText;
    RepeatedTexts& repeatedTexts = kept.repeatedTexts[index];
    TextExtent& extent = kept.extents[index];
    const VorString& text =
        value.type() == VorBomDataValue::kStringData ? *static_cast<const VorString*>(value.data()) : kNoText;
    const std::size_t number = text.isEmpty() == 1 ? RepeatedTexts::kNone : repeatedTexts.numberOf(text);
    if (number != RepeatedTexts::kNone)
        appendByte(kFirstRepeated + number);
    else if (appendPlain(text))
    {
        const auto length = static_cast<std::uint32_t>(text.length());
        kept.areNumbers[index] ? extent.addNumber({ m_pNext - length, length }) : extent.addText(length);
    }
    else
    {
        appendOther(Utf8::toBytes(text));
        extent.areAllPlain = false;
    }
}

void PackedSections::append(SectionPlace place)
{
    const Number number = numberOf(place);
    if (number < kOther)
        return appendByte(number);
    makeRoom(1 + sizeof number);
    *m_pNext++ = static_cast<char>(kOther);
    append(number);
}

void PackedSections::appendByte(std::size_t byte)
{
    makeRoom(1);
    *m_pNext++ = static_cast<char>(byte);
}

bool PackedSections::appendPlain(const VorString& text)
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

void PackedSections::appendOther(std::string_view text)
{
    makeRoom(1 + sizeof(Number) + text.size());
    *m_pNext++ = static_cast<char>(kOther);
    append(static_cast<Number>(text.size()));
    m_pNext = std::copy(text.begin(), text.end(), m_pNext);
}

// There must be room for it.
void PackedSections::append(Number number)
{
    std::memcpy(m_pNext, &number, sizeof number);
    m_pNext += sizeof number;
}

void PackedSections::append(const VorBomTypedValue& value)
{
    makeRoom(1 + sizeof value.number);
    *m_pNext++ = static_cast<char>(kindOf(value));
    if (!holdsNumber(value.type))
        return;
    std::memcpy(m_pNext, &value.number, sizeof value.number);
    m_pNext += sizeof value.number;
}

void PackedSections::makeRoom(std::size_t size)
{
    if (static_cast<std::size_t>(m_pPageEnd - m_pNext) < size)
        startPage(size);
}

// A page keeps its address when others are begun, so what a reader has been given stays where it is. The end of the
// last page is noted when it is the last no more; until then that is `m_pNext`.
void PackedSections::startPage(std::size_t size)
{
    if (!m_pages.empty())
        m_pages.back().pEnd = m_pNext;
    const std::size_t pageSize = std::max(size, kPageSize);
    m_pages.emplace_back();
    m_pages.back().bytes.reset(new char[pageSize]); // not cleared, as make_unique would
    m_pNext = m_pages.back().bytes.get();
    m_pPageEnd = m_pNext + pageSize;
}

const char* PackedSections::endOf(std::size_t page) const
{
    return page + 1 == m_pages.size() ? m_pNext : m_pages[page].pEnd;
}

PackedSections::Position PackedSections::end() const
{
    return { m_numSections, m_pages.empty() ? 0 : m_pages.size() - 1, m_pNext };
}

// Sections say nothing of their length: the next one is found because all of the one before has been read.
bool PackedSections::Reader::nextSection(SectionPlace& place)
{
    while (m_numSections == m_rangeEnd)
        if (!turnToNextRange())
            return false;
    turnPages();
    ++m_numSections;
    const Number first = takeByte();
    place = placeOf(first != kOther ? first : takeNumber());
    const std::vector<RepeatedTexts>& repeatedTexts = m_sections.keptOf(place).repeatedTexts;
    m_pRepeatedTexts = repeatedTexts.data();
    m_numTexts = repeatedTexts.size();
    return true;
}

RowList PackedSections::Reader::rows() const
{
    return m_sections.m_contents.rows ? m_sections.m_rows.list(m_numSections - 1) : RowList();
}

bool PackedSections::Reader::turnToNextRange()
{
    if (m_numRanges == m_sections.m_order.size())
        return false;
    const Range& range = m_sections.m_order[m_numRanges++];
    m_numSections = range.begin.numSections;
    m_rangeEnd = range.end;
    m_numPagesTurned = range.begin.page;
    m_pNext = m_pPageEnd = nullptr; // so that the page is turned to
    if (range.begin.pNext == nullptr)
        return true;
    m_pNext = range.begin.pNext;
    m_pPageEnd = m_sections.endOf(m_numPagesTurned++);
    return true;
}

// A number begins wherever the text before it ends, so it is copied and not pointed at: its address need not be aligned.
void PackedSections::Reader::read(VorBomTypedValue& value)
{
    turnPages();
    const Number kind = takeByte();
    value.type = static_cast<VorBomDataValue::eBomDataValueType>(kind % kTypesPerUnit);
    value.unitType = static_cast<VorBomTemplateUnits::eTokenUnitType>(kind / kTypesPerUnit);
    value.number = 0;
    if (holdsNumber(value.type))
        std::memcpy(&value.number, take(sizeof value.number), sizeof value.number);
}

// Pages may be empty: a text that did not fit into the one before may turn out to need a larger one.
void PackedSections::Reader::turnPages()
{
    while (m_pNext == m_pPageEnd && m_numPagesTurned < m_sections.m_pages.size())
    {
        m_pNext = m_sections.m_pages[m_numPagesTurned].bytes.get();
        m_pPageEnd = m_sections.endOf(m_numPagesTurned);
        ++m_numPagesTurned;
    }
}
}
