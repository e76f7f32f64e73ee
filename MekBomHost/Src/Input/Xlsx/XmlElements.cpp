// The text is cut before it is parsed. Of the tags outside of wanted elements only the names are looked at, which say
// what stands around them; of those within one, how deep they are:
//
//   <worksheet><cols>...</cols><sheetData><row><c><v>12</v></c></row><row>...
//                                         |-- from here to here --|
//
// These bytes go to the parser, which changes them in place; the next call gives up what lies before it. So the memory
// is that of the largest element, whose size is bounded. Marks that look like tags in comments, in CDATA and in quotes
// are none. Where the bytes that have been read end within a tag, more are read and the tag is begun anew; as many are
// read as are kept, so that a long one is looked at about twice.
#include "XmlElements.h"

#include "InQuotes.h"
#include "Utf8.h"
#include "XlsxLimits.h"
#include "XmlNames.h"

#include <algorithm>
#include <utility>

namespace mekbom
{
namespace
{
const std::size_t kBlockSize = 1 << 16; // arbitrary
const std::string_view kCdata = "<![CDATA[";

bool startsWith(std::string_view text, std::string_view start)
{
    return text.substr(0, start.size()) == start;
}

// "r:id" of "r:id=..." and "/r:id>"
std::string_view nameIn(std::string_view tag)
{
    return tag.substr(0, tag.find_first_of(" \t\r\n/>"));
}

std::string lowerCase(std::string_view text)
{
    std::string lower(text);
    for (char& c : lower)
        c = c >= 'A' && c <= 'Z' ? static_cast<char>(c + ('a' - 'A')) : c;
    return lower;
}

// What an XML declaration says of its encoding; empty where it says nothing.
//   <?xml version="1.0" encoding="UTF-8"?>   ->  "utf-8"
std::string encodingIn(std::string_view text)
{
    const std::string_view word = "encoding";
    const std::string_view declaration = startsWith(text, "<?xml") ? text.substr(0, text.find("?>")) : "";
    const std::size_t found = declaration.find(word);
    const std::size_t open = found == std::string_view::npos ? found : declaration.find_first_of("\"'", found);
    if (open == std::string_view::npos)
        return std::string();
    const std::string_view value = declaration.substr(open + 1);
    return lowerCase(value.substr(0, value.find(declaration[open])));
}
}

XmlElements::XmlElements(ByteSource& part, const std::string& workbook, std::vector<std::string_view> wanted)
    : m_source(part), m_part{ workbook, part.name() }, m_wanted(std::move(wanted))
{
    begin();
}

pugi::xml_node XmlElements::next()
{
    m_element = kNone;
    for (Tag tag = nextTag(); tag.kind != kNoMore; tag = nextTag())
    {
        m_hasRoot = true;
        const std::string_view name = nameOf(tag);
        if (tag.kind == kCloses)
            leave(name);
        else if (isWanted(name))
        {
            m_element = tag.begin;
            if (tag.kind == kOpens)
                passElement();
            return parse();
        }
        else if (tag.kind == kOpens)
            enter(name);
    }
    if (!m_open.empty() || !m_hasRoot)
        WorkbookFault::inPart(m_part, m_hasRoot ? "its end within <" + harmless(m_open.back()) + ">" : "nothing",
                              m_hasRoot ? "</" + harmless(m_open.back()) + ">" : "XML");
    return pugi::xml_node();
}

// A byte order mark is passed over.
void XmlElements::begin()
{
    while (m_text.size() < kBlockSize && readMore())
    {
    }
    m_next = m_text.size() - Utf8::withoutByteOrderMark(m_text).size();
    requireUtf8();
}

void XmlElements::requireUtf8() const
{
    const std::string encoding = encodingIn(std::string_view(m_text).substr(m_next));
    if (!encoding.empty() && encoding != "utf-8" && encoding != "us-ascii")
        WorkbookFault::inPart(m_part, "text in " + harmless(encoding), "text in UTF-8");
}

XmlElements::Tag XmlElements::nextTag()
{
    while (findMarkup())
    {
        const std::size_t end = endOfMarkup();
        if (end == kNone)
        {
            if (!readMore())
                WorkbookFault::inPart(m_part, "its end within a tag", "'>'");
            continue;
        }
        const std::size_t begin = std::exchange(m_next, end);
        const char kind = m_text[begin + 1];
        if (kind == '?' || kind == '!')
            continue;
        return { kind == '/' ? kCloses : (m_text[end - 2] == '/' ? kIsEmpty : kOpens), begin, end };
    }
    return { kNoMore, 0, 0 };
}

std::string_view XmlElements::nameOf(const Tag& tag) const
{
    const std::size_t begin = tag.begin + (tag.kind == kCloses ? 2 : 1);
    return XmlNames::withoutPrefix(nameIn(std::string_view(m_text).substr(begin, tag.end - begin)));
}

// Goes on to the next '<'. False at the end.
bool XmlElements::findMarkup()
{
    for (;;)
    {
        const std::size_t found = m_text.find('<', m_next);
        m_next = std::min(found, m_text.size());
        if (found != kNone)
            return true;
        if (!readMore())
            return false;
    }
}

// Behind the '>' of the tag, comment or the like at m_next; kNone when it has not been read yet.
std::size_t XmlElements::endOfMarkup() const
{
    const char kind = m_next + 1 < m_text.size() ? m_text[m_next + 1] : '\0';
    if (kind != '?' && kind != '!')
        return endOfTag();
    const std::string_view rest = std::string_view(m_text).substr(m_next);
    if (kind == '?')
        return endBehind("?>");
    if (startsWith(rest, "<!--"))
        return endBehind("-->");
    if (startsWith(rest, kCdata))
        return endBehind("]]>");
    if (rest.size() >= kCdata.size())
        WorkbookFault::inPart(m_part, inQuotes(nameIn(rest.substr(1, 20))), "elements, and no definitions");
    return kNone;
}

std::size_t XmlElements::endOfTag() const
{
    for (std::size_t i = m_next + 1; i < m_text.size(); ++i)
    {
        const char c = m_text[i];
        if (c == '>')
            return i + 1;
        if (c != '"' && c != '\'')
            continue;
        i = m_text.find(c, i + 1);
        if (i == kNone)
            return kNone;
    }
    return kNone;
}

// A comment may not end within its begin: "<!-->" is none. So the search starts behind both hyphens.
std::size_t XmlElements::endBehind(std::string_view mark) const
{
    const std::size_t found = m_text.find(mark, m_next + (mark == "-->" ? 4 : 2));
    return found == kNone ? kNone : found + mark.size();
}

// False at the end of the part. What lies before the wanted element, or before m_next, is given up. Text without zero bytes
// is not UTF-16 either.
bool XmlElements::readMore()
{
    const std::size_t kept = std::min(m_element, m_next);
    m_text.erase(0, kept);
    m_next -= kept;
    m_element -= m_element == kNone ? 0 : kept;
    const std::size_t length = m_text.size();
    if (length > XlsxLimits::kMostElementBytes)
        WorkbookFault::tooLarge(m_part, "a row, a text or a tag", XlsxLimits::kMostElementBytes);
    m_text.resize(length + std::max(kBlockSize, length));
    const std::size_t numRead = m_source.read(&m_text[length], m_text.size() - length);
    m_text.resize(length + numRead);
    if (m_text.find('\0', length) != kNone)
        WorkbookFault::inPart(m_part, "a zero byte", "text in UTF-8");
    return numRead > 0;
}

bool XmlElements::isWanted(std::string_view name) const
{
    if (m_open.empty())
        return false;
    const std::string_view around = m_open.back();
    for (const std::string_view wanted : m_wanted)
        if (wanted.size() == around.size() + 1 + name.size() && startsWith(wanted, around) &&
            wanted[around.size()] == '/' && wanted.substr(around.size() + 1) == name)
            return true;
    return false;
}

void XmlElements::enter(std::string_view name)
{
    m_open.emplace_back(name);
    requireDepth(m_open.size());
}

void XmlElements::leave(std::string_view name)
{
    if (m_open.empty() || m_open.back() != name)
        WorkbookFault::inPart(m_part, "</" + harmless(name) + ">",
                              m_open.empty() ? "no more" : "</" + harmless(m_open.back()) + ">");
    m_open.pop_back();
}

// Goes behind the end of the element whose first tag was passed last. That names match is for the parser to see.
void XmlElements::passElement()
{
    for (std::size_t depth = 1; depth > 0;)
    {
        const Tag tag = nextTag();
        if (tag.kind == kNoMore)
            WorkbookFault::inPart(m_part, "its end within an element", "the rest of it");
        if (tag.kind == kOpens)
            requireDepth(m_open.size() + ++depth);
        if (tag.kind == kCloses)
            --depth;
    }
}

void XmlElements::requireDepth(std::size_t depth) const
{
    if (depth > XlsxLimits::kDeepest)
        WorkbookFault::inPart(m_part, "elements within each other, more than " + std::to_string(XlsxLimits::kDeepest),
                              "fewer");
}

// "&#0;" is no character of XML, and would end the text that it stands in: "4&#0;0" would be 4.
void XmlElements::refuseZeroCharacters(std::string_view element) const
{
    for (std::size_t at = element.find("&#"); at != kNone; at = element.find("&#", at + 1))
    {
        const std::size_t digits = at + (startsWith(element.substr(at + 2), "x") ? 3 : 2);
        const std::size_t end = element.find_first_not_of('0', digits);
        if (end != kNone && end > digits && element[end] == ';')
            WorkbookFault::inPart(m_part, "a zero character", "text");
    }
}

pugi::xml_node XmlElements::parse()
{
    refuseZeroCharacters(std::string_view(m_text).substr(m_element, m_next - m_element));
    const pugi::xml_parse_result result = m_document.load_buffer_inplace(
        &m_text[m_element], m_next - m_element, pugi::parse_default | pugi::parse_ws_pcdata, pugi::encoding_utf8);
    if (!result)
        WorkbookFault::inPart(m_part, std::string("an element that is no XML (") + result.description() + ")", "XML");
    return m_document.first_child();
}
}
