// Told on [ {"a": "}"}, {"b": 1} ]: the bracket says that there is an array. The first object begins at its brace; the
// one within quotes is passed over, so it ends at the second. The comma must be there, and the bracket is the end.
#include "JsonObjects.h"

#include "Fault.h"
#include "FindingCodes.h"
#include "InQuotes.h"
#include "InputLimits.h"
#include "Utf8.h"

#include <algorithm>

namespace mekbom
{
namespace
{
constexpr std::string_view kBlanks = " \t\r\n";
}

JsonObjects::JsonObjects(const std::string& name, std::string_view text)
    : m_name(name), m_text(Utf8::withoutByteOrderMark(text)), m_places(m_text)
{
    rewind();
}

void JsonObjects::rewind()
{
    m_places = PlaceCounter(m_text);
    m_offset = 0;
    m_isFirst = true;
    skipBlanks();
    m_isArray = isAt('[');
    if (m_isArray)
        ++m_offset;
}

std::string_view JsonObjects::next()
{
    beginNext();
    if (m_offset == m_text.size())
        return std::string_view();
    if (!isAt('{'))
        fail("an object for each part: { \"Name\": \"HEA200\", ... }");
    m_begin = m_offset;
    m_offset = endOfObject();
    if (m_offset - m_begin > InputLimits::kMostRecordBytes)
        failTooLarge();
    m_isFirst = false;
    return m_text.substr(m_begin, m_offset - m_begin);
}

// Goes to where the next object begins, or to the end of the text behind the last one.
void JsonObjects::beginNext()
{
    skipBlanks();
    if (!m_isArray)
        return;
    if (isAt(']'))
    {
        ++m_offset;
        m_isArray = false; // nothing but blanks may follow
        skipBlanks();
        if (m_offset < m_text.size())
            fail("nothing behind the array");
        return;
    }
    if (!m_isFirst && !isAt(','))
        fail("a comma or the array's end");
    if (!m_isFirst)
        ++m_offset;
    skipBlanks();
    if (m_offset == m_text.size())
        fail("the array's end");
}

void JsonObjects::skipBlanks()
{
    m_offset = std::min(m_text.find_first_not_of(kBlanks, m_offset), m_text.size());
}

// Behind the brace that closes the one at m_offset.
std::size_t JsonObjects::endOfObject() const
{
    std::size_t depth = 0;
    for (std::size_t offset = m_offset;; ++offset)
    {
        offset = m_text.find_first_of("\"{}", offset);
        if (offset == std::string_view::npos)
            failUnclosed();
        if (m_text[offset] == '"')
            offset = endOfText(offset + 1);
        else if (m_text[offset] == '{')
            ++depth;
        else if (--depth == 0)
            return offset + 1;
    }
}

// The quote that ends the text of which `offset` is the first character.
std::size_t JsonObjects::endOfText(std::size_t offset) const
{
    for (;; offset += 2) // behind a backslash and what it escapes
    {
        offset = m_text.find_first_of("\"\\", offset);
        if (offset == std::string_view::npos)
            failUnclosed();
        if (m_text[offset] == '"')
            return offset;
    }
}

void JsonObjects::fail(const std::string& expected)
{
    const bool isAtEnd = m_offset == m_text.size();
    std::string_view rest = m_text.substr(m_offset);
    if (!isAtEnd)
        Utf8::takeCodePoint(rest);
    const std::string_view character = m_text.substr(m_offset, m_text.size() - m_offset - rest.size());
    Finding finding = Finding::of(FindingCodes::kNoJsonParts,
                                  isAtEnd ? "the end of the file" : inQuotes(std::string(character)), expected);
    PlaceCounter places(m_text);
    throw Fault(kInvalidInput, finding.in(m_name, { places.placeOf(m_offset), places.placeOf(m_offset + 1) }));
}

void JsonObjects::failUnclosed() const
{
    PlaceCounter places(m_text);
    const Finding finding =
        Finding::of(FindingCodes::kNoJsonParts, "the end of the file within the object that starts here", "its end");
    throw Fault(kInvalidInput, finding.in(m_name, { places.placeOf(m_offset), places.placeOf(m_offset + 1) }));
}

// Such as { "parts": [ ... ] } around all of them.
void JsonObjects::failTooLarge()
{
    Finding finding =
        Finding::of(FindingCodes::kRecordTooLarge,
                    "an object of more than " + std::to_string(InputLimits::kMostRecordBytes >> 20) + " MB", "less");
    finding.remedy = "give each part an object of its own";
    const TextPlace begin = place();
    throw Fault(kInvalidInput, finding.in(m_name, { begin, { begin.line, begin.column + 1 } }));
}
}
