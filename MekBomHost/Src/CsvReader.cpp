#include "CsvReader.h"

#include "Fault.h"
#include "MessageText.h"
#include "Utf8.h"

#include <cstring>
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

std::string_view withoutLineEnd(std::string_view line)
{
    while (!line.empty() && endsLine(line.back()))
        line.remove_suffix(1);
    return line;
}

bool holdsQuote(std::string_view line)
{
    return std::memchr(line.data(), '"', line.size()) != nullptr;
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

// The parser is fed line by line, so that a record is complete exactly when a line has been fed.
bool CsvReader::next()
{
    beginRecord();
    std::string_view line;
    while (!m_isAtEnd && m_lines.next(line))
    {
        if (!m_isWithinRecord && endsLine(line.front()))
            continue;
        if (m_isWithinRecord || holdsQuote(line))
            parse(line);
        else
            split(line);
        if (!m_isWithinRecord)
            return true;
    }
    if (!m_isAtEnd && m_isWithinRecord)
        finish();
    m_isAtEnd = true;
    return !m_fields.empty();
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
        m_fields.push_back({ m_unquoted.size(), length, m_fieldLine });
        m_unquoted.append(pBytes, length);
        m_pBytes = m_unquoted.data();
        m_fieldLine = m_lines.lineNumber();
    }
    catch (...)
    {
        m_failure = std::current_exception();
    }
}

void CsvReader::beginRecord()
{
    m_unquoted.clear();
    m_fields.clear();
}

// record := field { ',' field }
// Every byte is noted as if it were a comma, and what is next to be noted overwrites it unless it is one: fields are so
// short that a jump at each comma, which no processor foresees, costs more than all their bytes.
void CsvReader::split(std::string_view line)
{
    line = withoutLineEnd(line);
    if (m_commas.size() < line.size() + 1)
        m_commas.resize(line.size() + 1);
    std::size_t* const pCommas = m_commas.data();
    std::size_t numCommas = 0;
    for (std::size_t i = 0; i < line.size(); ++i)
    {
        pCommas[numCommas] = i;
        numCommas += line[i] == ',' ? 1 : 0;
    }
    pCommas[numCommas] = line.size();
    takeFields(line, numCommas + 1);
}

// The fields of `line` that end where m_commas says.
void CsvReader::takeFields(std::string_view line, std::size_t numFields)
{
    m_pBytes = line.data();
    m_recordLine = m_lines.lineNumber();
    m_fields.resize(numFields);
    std::size_t begin = 0;
    for (std::size_t i = 0; i < numFields; ++i)
    {
        m_fields[i] = { begin, m_commas[i] - begin, m_recordLine };
        begin = m_commas[i] + 1;
    }
}

void CsvReader::parse(std::string_view line)
{
    if (!m_isWithinRecord)
        m_recordLine = m_fieldLine = m_lines.lineNumber();
    m_isWithinRecord = true;
    const std::size_t numParsed = csv_parse(&m_parser, line.data(), line.size(), fieldRead, recordRead, this);
    rethrowFailure();
    if (numParsed < line.size())
        failAt(line, numParsed);
}

// The last record may lack its line end, but not the quote that closes its last field.
void CsvReader::finish()
{
    if (csv_fini(&m_parser, fieldRead, recordRead, this) != 0)
        throw Fault(kInvalidInput, m_source.name() + ":" + std::to_string(m_fieldLine) +
                                       ": found the end of the file within the quoted field that starts here, expected "
                                       "a closing quote");
    rethrowFailure();
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
