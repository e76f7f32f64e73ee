// The records of a comma-separated file, as RFC 4180 has them: quoted fields may hold commas, doubled quotes and line
// breaks; blanks belong to the field; lines end with LF, CRLF or CR. Empty lines are skipped.
//
//   "a,b"    ->   a | b
//
// Lines without any quote, which are nearly all, are taken as LineReader has split them, several times as fast as by
// libcsv (CsvReaderBench), which gets the others.
//
// A quote where none may stand, a quoted field without its end, bytes that are not UTF-8 and zero bytes end the reading
// with a Fault that names the place. How many fields a record has is left to the caller.
#pragma once

#include "ByteSource.h"
#include "LineReader.h"
#include "RecordSource.h"

#include <csv.h>

#include <cstddef>
#include <exception>
#include <string>
#include <string_view>
#include <vector>

namespace mekbom
{
class CsvReader : public RecordSource
{
public:
    // `source` is not owned and outlives the reader.
    explicit CsvReader(ByteSource& source);
    ~CsvReader() override;

    const std::string& name() const override { return m_source.name(); }
    const Record* next() override;

    // These name the physical line on which the record or the field starts.
    Finding findingInRecord() const override;
    Finding findingInCell(std::size_t index) const override;

private:
    static void fieldRead(void* pBytes, std::size_t length, void* pReader) noexcept;
    static void recordRead(int terminator, void* pReader) noexcept;
    void addField(const char* pBytes, std::size_t length) noexcept;

    bool readRecord();
    void beginRecord();
    Finding findingOnLine(int line) const;
    void takeFields(const char* pBytes, const std::vector<std::ptrdiff_t>& borders);
    void parse(std::string_view line);
    void beginParsing();
    void finish();
    void rethrowFailure();
    [[noreturn]] void failAt(std::string_view line, std::size_t offset);

    ByteSource& m_source;
    LineReader m_lines;
    csv_parser m_parser;

    Record m_cells; // of the line itself or of m_unquoted

    // Of a record that libcsv has read: its fields, each followed by a zero, and what lies around them.
    std::string m_unquoted;
    std::vector<std::ptrdiff_t> m_unquotedBorders;
    std::vector<int> m_fieldLines; // empty for other records
    std::exception_ptr m_failure;  // from within the parser's callbacks, which must not throw through it

    int m_recordLine = 0;
    int m_fieldLine = 0; // where the field in progress starts
    bool m_isWithinRecord = false;
    bool m_isAtEnd = false;
};
}
