// The records of a comma-separated file in UTF-8, as RFC 4180 has them, or of one with another delimiter: quoted fields may hold commas, doubled quotes and line
// breaks; blanks belong to the field; lines end with LF, CRLF or CR. Empty lines between records are skipped, a byte
// order mark in front is dropped.
//
//   HEA200,"7'-6""",12       ->   HEA200 | 7'-6" | 12
//
// A quote where none may stand, a quoted field without its end, a record larger than InputLimits allow, bytes that are
// not UTF-8 and zero bytes end the reading with a Fault that names the place. How many fields a record has is left to the caller. Cells are views of bytes that
// the reader holds, and good until the next record is asked for.
#pragma once

#include "ByteSource.h"
#include "CsvDelimiter.h"
#include "RecordSource.h"
#include "SourceBytes.h"
#include "StopScan.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace mekbom
{
struct FindingCode;

class CsvReader : public RecordSource
{
public:
    // `source` is not owned and outlives the reader. `delimiter` is one of CsvDelimiter.
    explicit CsvReader(ByteSource& source, char delimiter = CsvDelimiter::kPlain)
        : m_source(source), m_delimiter(delimiter), m_bytes(source), m_scan(delimiter)
    {
    }

    const std::string& name() const override { return m_source.name(); }
    const Record* next() override;

    // The line on which the record begins; the place of the field's text, without its quotes.
    void placeRecord(Finding& finding) const override;
    void placeCell(std::size_t index, Finding& finding) const override;

private:
    // A field with doubled quotes: its cell needs a text without them.
    struct DoubledField
    {
        std::size_t index;    // in the record
        std::string_view raw; // between the outer quotes
    };

    void beginFile();
    void readMore();
    bool scanRecord();
    template <char delimiter>
    bool scanRecord();
    void beginRecord();
    const char* takeQuotedField(const char* pField, const char* pQuote);
    const char* findClosingQuote(bool& hasDoubled);
    const char* passLineEnd(const char* pStop);
    void passByte(char byte);
    void requireLine(const char* pEnd) const;
    void resolveDoubledQuotes();

    int lineOf(const char* pByte) const;
    TextPlace placeOf(const char* pByte) const;
    const char* failWithinField(const char* pQuote) const;
    const char* failBehindQuote(const char* pField, const char* pByte) const;
    const char* failAt(const char* pByte, Finding finding) const;
    [[noreturn]] void failUnclosed(const char* pField) const;
    [[noreturn]] void failTooLarge() const;

    ByteSource& m_source;
    const char m_delimiter;
    SourceBytes m_bytes;
    StopScan m_scan;
    const char* m_pNext = nullptr; // where the next record begins, among m_bytes
    int m_nextLine = 0;            // the line on which it does; 0 before the first

    // What is known of the record that was read last, or is being read.
    Record m_cells;
    int m_line = 0;                        // the line on which it begins
    std::vector<const char*> m_lineBegins; // where each of its lines begins
    bool m_isPlain = true;                 // its last line is surely text, without a look at all its bytes
    std::vector<DoubledField> m_doubled;
    std::string m_resolved; // the texts of these fields, one after the other
};
}
