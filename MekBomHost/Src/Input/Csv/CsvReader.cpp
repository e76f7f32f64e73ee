// A record is read in one go over its stops, the bytes that may be a delimiter, a quote or a line end (StopScan). Of
//
//   HEA200,"7'-6""",12\n
//
// these are both commas, the five signs around 6 and its marks that are at most a comma, and the line end. What lies
// between a field's begin and the stop that ends it is its cell; no byte is copied but for a field with doubled quotes.
// Where the bytes that have been read end within the record, more are read and the record is begun anew: nothing has to
// be kept of a record in part. A line is checked to be text once it is there whole, and only if a byte of it asks for
// that; whatever else is wrong with a line is told after that.
#include "CsvReader.h"

#include "Fault.h"
#include "FindingCodes.h"
#include "InQuotes.h"
#include "InputLimits.h"
#include "TextCheck.h"
#include "Utf8.h"

#include <algorithm>

namespace mekbom
{
namespace
{
bool endsLine(char byte)
{
    return byte == '\n' || byte == '\r';
}

bool endsField(char byte, char delimiter)
{
    return byte == delimiter || endsLine(byte);
}

bool isAsciiText(char byte)
{
    return byte != 0 && static_cast<unsigned char>(byte) < 0x80;
}

std::string_view textBetween(const char* pBegin, const char* pEnd)
{
    return std::string_view(pBegin, static_cast<std::size_t>(pEnd - pBegin));
}
}

// An empty line is a record of one empty field to scanRecord(); it is told by its first byte and passed over. A line
// that is "" begins with a quote and is a record. Behind the last of the bytes read stands a line end (SourceBytes), so
// the first byte may be looked at even where none has been read yet.
const Record* CsvReader::next()
{
    if (m_nextLine == 0)
        beginFile();
    while (m_pNext != m_bytes.end() || !m_bytes.areLast())
    {
        const char firstByte = *m_pNext;
        if (!scanRecord())
            readMore();
        else if (!endsLine(firstByte))
        {
            resolveDoubledQuotes();
            return &m_cells;
        }
    }
    return nullptr;
}

void CsvReader::placeRecord(Finding& finding) const
{
    finding.source = name();
    finding.begin = { m_line, 0 };
}

// The cell of a field with doubled quotes is a text made of it, which stands elsewhere: its place is that of the field.
void CsvReader::placeCell(std::size_t index, Finding& finding) const
{
    std::string_view text = m_cells[index].text();
    for (const DoubledField& field : m_doubled)
        if (field.index == index)
            text = field.raw;
    finding.source = name();
    finding.begin = placeOf(text.data());
    finding.end = placeOf(text.data() + text.size());
}

// The first reading fills the buffer or ends the source, so a byte order mark is there whole.
void CsvReader::beginFile()
{
    m_bytes.readMore();
    m_pNext = Utf8::withoutByteOrderMark(textBetween(m_bytes.begin(), m_bytes.end())).data();
    m_scan.begin(m_pNext, m_bytes.end());
    m_nextLine = 1;
}

// Bytes move, so whatever points at them is worth nothing afterwards: one more reason to begin a record that was not
// complete anew rather than to go on with it. All that has been read and not been used up is of one record.
void CsvReader::readMore()
{
    if (static_cast<std::size_t>(m_bytes.end() - m_pNext) > InputLimits::kMostRecordBytes)
        failTooLarge();
    m_bytes.dropTo(m_pNext);
    m_bytes.readMore();
    m_pNext = m_bytes.begin();
    m_scan.begin(m_pNext, m_bytes.end());
}

// Each delimiter has a function of its own: three signs that are known beforehand are told in one step, and asking for
// one that is not takes an eighth more instructions of all reading.
bool CsvReader::scanRecord()
{
    switch (m_delimiter)
    {
        case ';': return scanRecord<';'>();
        case '\t': return scanRecord<'\t'>();
        case '|': return scanRecord<'|'>();
        default: return scanRecord<CsvDelimiter::kPlain>();
    }
}

// record := field { delimiter field } line-end
// field  := bytes | '"' { bytes | '""' } '"'
//
// Gives false when more bytes are needed; nothing of the record has been used up then.
// The copy of the scan is written back before anything is called that goes on with it, and read again behind that.
template <char delimiter>
bool CsvReader::scanRecord()
{
    constexpr bool isComma = delimiter == CsvDelimiter::kPlain;
    beginRecord();
    StopScan scan = m_scan; // a copy, which the compiler keeps in registers
    for (const char* pField = m_pNext;; ++pField)
    {
        const char* pStop = scan.next<isComma>();
        for (; !endsField(*pStop, delimiter) && *pStop != '"'; pStop = scan.next<isComma>())
            passByte(*pStop);
        if (*pStop == '"')
        {
            m_scan = scan;
            pStop = takeQuotedField(pField, pStop);
            if (pStop == nullptr)
                return false;
            scan = m_scan;
        }
        else
            m_cells.emplace_back(textBetween(pField, pStop));
        pField = pStop;
        if (*pStop == delimiter)
            continue;
        m_scan = scan;
        const char* const pEnd = passLineEnd(pStop);
        if (pEnd == nullptr)
            return false;
        m_nextLine = m_line + static_cast<int>(m_lineBegins.size()) - 1;
        m_pNext = pEnd;
        return true;
    }
}

void CsvReader::beginRecord()
{
    m_cells.clear();
    m_doubled.clear();
    m_line = m_nextLine;
    m_lineBegins.assign(1, m_pNext);
    m_isPlain = true;
}

// Takes the field that begins at `pField`, where `pQuote` is its first quote. Gives what ends it; null when more bytes
// are needed.
const char* CsvReader::takeQuotedField(const char* pField, const char* pQuote)
{
    if (pQuote != pField)
        return failWithinField(pQuote);
    bool hasDoubled = false;
    const char* const pClosing = findClosingQuote(hasDoubled);
    if (pClosing == nullptr && m_bytes.areLast())
        failUnclosed(pField);
    if (pClosing == nullptr || (pClosing + 1 == m_bytes.end() && !m_bytes.areLast()))
        return nullptr;
    if (!endsField(pClosing[1], m_delimiter))
        return failBehindQuote(pField, pClosing + 1);
    const std::string_view text = textBetween(pField + 1, pClosing);
    if (hasDoubled)
        m_doubled.push_back({ m_cells.size(), text });
    m_cells.emplace_back(text);
    return m_scan.next();
}

// Gives null when the closing quote is not among the bytes that have been read.
// Where a quote is the last of the bytes read it seems to close the field, since a line end stands behind it, though
// the next byte of the source may double it: takeQuotedField() asks for more bytes then. Line ends within the field are
// passed, and the lines checked, as between records.
const char* CsvReader::findClosingQuote(bool& hasDoubled)
{
    for (;;)
    {
        const char* const pStop = m_scan.next();
        if (pStop == m_bytes.end())
            return nullptr;
        if (*pStop == '"')
        {
            if (pStop[1] != '"')
                return pStop;
            m_scan.next();
            hasDoubled = true;
        }
        else if (!endsLine(*pStop))
            passByte(*pStop);
        else if (passLineEnd(pStop) == nullptr)
            return nullptr;
    }
}

// Gives what follows the line end at `pStop`; null when more bytes are needed, be it only to tell CR from CRLF. The end
// of the last bytes is a line end, too.
const char* CsvReader::passLineEnd(const char* pStop)
{
    const char* const pEnd = m_bytes.end();
    if (!m_bytes.areLast() && (pStop == pEnd || (*pStop == '\r' && pStop + 1 == pEnd)))
        return nullptr;
    if (!m_isPlain)
        requireLine(pStop);
    if (pStop == pEnd)
        return pEnd;
    if (*pStop == '\r' && pStop[1] == '\n' && pStop + 1 != pEnd)
        pStop = m_scan.next();
    m_lineBegins.push_back(pStop + 1);
    m_isPlain = true;
    return pStop + 1;
}

// Throws unless the last line of the record, up to `pEnd`, is text.
void CsvReader::requireLine(const char* pEnd) const
{
    requireText(textBetween(m_lineBegins.back(), pEnd), name(), lineOf(pEnd),
                "give --encoding if it is in another one");
}

// Only stops come here, and every byte that may make a line something else than text is a stop: zeros and all beyond
// ASCII. A line without any needs no second look.
void CsvReader::passByte(char byte)
{
    m_isPlain = m_isPlain && isAsciiText(byte);
}

// The texts of fields with doubled quotes are made once the record is complete: then `m_resolved` grows once at most,
// and no text moves while another one is made.
void CsvReader::resolveDoubledQuotes()
{
    if (m_doubled.empty())
        return;
    m_resolved.clear();
    m_resolved.reserve(textBetween(m_lineBegins.front(), m_pNext).size());
    for (const DoubledField& field : m_doubled)
    {
        const std::size_t begin = m_resolved.size();
        for (std::size_t i = 0; i < field.raw.size(); i += field.raw[i] == '"' ? 2 : 1)
            m_resolved += field.raw[i];
        m_cells[field.index] = RecordCell(std::string_view(m_resolved).substr(begin));
    }
}

// The number of the line that a byte of the record is on.
// Lines are not counted byte by byte while a record is read: where each of its lines begins is enough to tell, when a
// message asks for it.
int CsvReader::lineOf(const char* pByte) const
{
    const auto next = std::upper_bound(m_lineBegins.begin(), m_lineBegins.end(), pByte);
    return m_line + static_cast<int>(next - m_lineBegins.begin()) - 1;
}

TextPlace CsvReader::placeOf(const char* pByte) const
{
    const int line = lineOf(pByte);
    const char* const pLine = m_lineBegins[static_cast<std::size_t>(line - m_line)];
    return { line, static_cast<int>(Utf8::countCharacters(textBetween(pLine, pByte))) + 1 };
}

const char* CsvReader::failWithinField(const char* pQuote) const
{
    return failAt(pQuote, Finding::of(FindingCodes::kQuoteWithinField, "a quote within a field",
                                      "the whole field in quotes and the quote doubled"));
}

// Refuses the byte behind a closing quote, which is neither a comma nor a line end.
const char* CsvReader::failBehindQuote(const char* pField, const char* pByte) const
{
    const int fieldLine = lineOf(pField);
    std::string_view rest = textBetween(pByte, m_bytes.end());
    Utf8::takeCodePoint(rest);
    std::string expected = CsvDelimiter::nameOf(m_delimiter) + std::string(" or the line's end");
    if (fieldLine != lineOf(pByte))
        expected += " (the field starts on line " + std::to_string(fieldLine) + ")";
    return failAt(pByte, Finding::of(FindingCodes::kTextBehindQuote,
                                     inQuotes(textBetween(pByte, rest.data())) + " after a closing quote", expected));
}

// Throws, unless more bytes are needed, when it gives null: a line that is no text is told of before anything else that
// is wrong with it, so the line has to be there as a whole.
const char* CsvReader::failAt(const char* pByte, Finding finding) const
{
    const char* const pLineEnd = std::find_if(pByte, m_bytes.end(), endsLine);
    if (pLineEnd == m_bytes.end() && !m_bytes.areLast())
        return nullptr;
    requireLine(pLineEnd);
    finding.source = name();
    finding.begin = placeOf(pByte);
    finding.end = { finding.begin.line, finding.begin.column + 1 };
    throw Fault(kInvalidInput, finding);
}

void CsvReader::failUnclosed(const char* pField) const
{
    requireLine(m_bytes.end());
    Finding finding = Finding::of(FindingCodes::kQuoteNotClosed,
                                  "the end of the file within the quoted field that starts here", "a closing quote");
    finding.source = name();
    finding.begin.line = lineOf(pField);
    throw Fault(kInvalidInput, finding);
}

void CsvReader::failTooLarge() const
{
    Finding finding =
        Finding::of(FindingCodes::kRecordTooLarge,
                    "a row of more than " + std::to_string(InputLimits::kMostRecordBytes >> 20) + " MB", "less");
    finding.remedy = "a field without its closing quote takes in all that follows";
    finding.source = name();
    finding.begin.line = m_nextLine;
    throw Fault(kInvalidInput, finding);
}
}
