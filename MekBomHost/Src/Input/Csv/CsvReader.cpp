#include "CsvReader.h"

#include "Fault.h"
#include "MessageText.h"
#include "Utf8.h"

#include <new>

namespace mekbom
{
namespace
{
const std::size_t kFieldBlock = 4096; // by which the parser's own buffer grows

// Nothing is a blank to be trimmed: blanks belong to the field.
int isNoBlank(unsigned char)
{
    return 0;
}

bool endsLine(char byte)
{
    return byte == '\n' || byte == '\r';
}

}

CsvReader::CsvReader(ByteSource& source) : m_source(source), m_lines(source)
{
    if (csv_init(&m_parser, CSV_STRICT | CSV_STRICT_FINI) != 0)
        throw std::bad_alloc();
    csv_set_space_func(&m_parser, isNoBlank);
    csv_set_blk_size(&m_parser, kFieldBlock);
}

CsvReader::~CsvReader()
{
    csv_free(&m_parser);
}

const Record* CsvReader::next()
{
    return readRecord() ? &m_cells : nullptr;
}

// The parser is fed line by line, so that a record is complete exactly when a line has been fed.
bool CsvReader::readRecord()
{
    beginRecord();
    std::string_view line;
    while (!m_isAtEnd && m_lines.next(line))
    {
        if (!m_isWithinRecord && endsLine(line.front()))
            continue;
        if (!m_isWithinRecord && !m_lines.holdsQuote())
        {
            m_recordLine = m_lines.lineNumber();
            takeFields(line.data(), m_lines.borders());
            return true;
        }
        parse(line);
        if (!m_isWithinRecord)
        {
            takeFields(m_unquoted.data(), m_unquotedBorders);
            return true;
        }
    }
    if (!m_isAtEnd && m_isWithinRecord)
        finish();
    m_isAtEnd = true;
    return !m_cells.empty();
}

Finding CsvReader::findingInRecord() const
{
    return findingOnLine(m_recordLine);
}

Finding CsvReader::findingInCell(std::size_t index) const
{
    return findingOnLine(m_fieldLines.empty() ? m_recordLine : m_fieldLines[index]);
}

Finding CsvReader::findingOnLine(int line) const
{
    Finding finding;
    finding.source = name();
    finding.begin.line = line;
    return finding;
}

void CsvReader::fieldRead(void* pBytes, std::size_t length, void* pReader) noexcept
{
    static_cast<CsvReader*>(pReader)->addField(static_cast<const char*>(pBytes), length);
}

void CsvReader::recordRead(int, void* pReader) noexcept
{
    static_cast<CsvReader*>(pReader)->m_isWithinRecord = false;
}

void CsvReader::addField(const char* pBytes, std::size_t length) noexcept
{
    try
    {
        m_unquoted.append(pBytes, length).push_back('\0');
        m_unquotedBorders.push_back(static_cast<std::ptrdiff_t>(m_unquoted.size()) - 1);
        m_fieldLines.push_back(m_fieldLine);
        m_fieldLine = m_lines.lineNumber();
    }
    catch (...)
    {
        m_failure = std::current_exception();
    }
}

void CsvReader::beginRecord()
{
    m_cells.clear();
    m_fieldLines.clear();
}

void CsvReader::takeFields(const char* pBytes, const std::vector<std::ptrdiff_t>& borders)
{
    for (std::size_t i = 1; i < borders.size(); ++i)
        m_cells.emplace_back(
            std::string_view(pBytes + borders[i - 1] + 1, static_cast<std::size_t>(borders[i] - borders[i - 1] - 1)));
}

void CsvReader::parse(std::string_view line)
{
    if (!m_isWithinRecord)
        beginParsing();
    const std::size_t numParsed = csv_parse(&m_parser, line.data(), line.size(), fieldRead, recordRead, this);
    rethrowFailure();
    if (numParsed < line.size())
        failAt(line, numParsed);
}

void CsvReader::beginParsing()
{
    m_recordLine = m_fieldLine = m_lines.lineNumber();
    m_isWithinRecord = true;
    m_unquoted.clear();
    m_unquotedBorders.assign(1, -1);
}

// The last record may lack its line end, but not the quote that closes its last field.
void CsvReader::finish()
{
    if (csv_fini(&m_parser, fieldRead, recordRead, this) != 0)
        throw Fault(kInvalidInput, m_source.name() + ":" + std::to_string(m_fieldLine) +
                                       ": found the end of the file within the quoted field that starts here, expected "
                                       "a closing quote");
    rethrowFailure();
    takeFields(m_unquoted.data(), m_unquotedBorders);
}

void CsvReader::rethrowFailure()
{
    if (m_failure != nullptr)
        std::rethrow_exception(m_failure);
}

void CsvReader::failAt(std::string_view line, std::size_t offset)
{
    if (csv_error(&m_parser) != CSV_EPARSE)
        throw std::bad_alloc();
    const bool isQuote = line[offset] == '"';
    std::string message = m_lines.place(line, offset) + ": found ";
    std::string_view rest = line.substr(offset);
    Utf8::takeCodePoint(rest);
    const std::string_view found = line.substr(offset, line.size() - rest.size() - offset);
    message += isQuote ? "a quote within a field, expected the whole field in quotes and the quote doubled"
                       : inQuotes(found) + " after a closing quote, expected a comma or the line's end";
    if (m_fieldLine != m_lines.lineNumber())
        message += " (the field starts on line " + std::to_string(m_fieldLine) + ")";
    throw Fault(kInvalidInput, message);
}
}
