// The physical lines of a text file, checked to be text, and where their commas are.
//
//   "a,b\r\n\"c\nd\",e"   ->   "a,b\r\n"  |  "\"c\n"  |  "d\",e"
//
// A line ends with LF, CRLF or CR, which stays part of it; the last one may lack its end. A byte order mark in front is
// dropped. Anything that is not UTF-8, and a zero byte, ends the reading with a Fault that names line and column.
#pragma once

#include "ByteSource.h"
#include "StopScan.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace mekbom
{
class LineReader
{
public:
    // `source` is not owned and outlives the reader.
    explicit LineReader(ByteSource& source) : m_source(source) {}

    // Reads the next line; false at the end. `line` is good until the next call.
    bool next(std::string_view& line);

    // What stands in front of, between and behind the fields of the line read last, if it holds no quote: -1, the offsets
    // of its commas, the offset of its end.  "a,bc\r\n"  ->  -1, 1, 4
    const std::vector<std::ptrdiff_t>& borders() const { return m_borders; }
    bool holdsQuote() const { return m_holdsQuote; }

    // Number of the line read last, from 1; 0 before the first.
    int lineNumber() const { return m_lineNumber; }

    // "parts.csv:3:17", for the byte at `offset` of `line`, the line read last; columns count characters from 1.
    std::string place(std::string_view line, std::size_t offset) const;

private:
    const char* begin() const { return m_buffer.data() + m_begin; }
    const char* end() const { return m_buffer.data() + m_end; }

    void beginLine();
    bool findLineEnd();
    void passStop(char byte);
    bool endLine(const char* pStop);
    bool readMore();
    void dropByteOrderMark();
    void checkText(std::string_view line) const;

    ByteSource& m_source;
    std::vector<char>
        m_buffer; // bytes [m_begin, m_end) are still to be handed out; StopScan::kBlockSize more than read
    std::size_t m_begin = 0;
    std::size_t m_end = 0;
    bool m_sourceIsAtEnd = false;
    int m_lineNumber = 0;

    // Of the line that is looked through or was read last.
    StopScan m_scan;
    std::size_t m_length = 0; // of what has been looked through
    std::vector<std::ptrdiff_t> m_borders;
    bool m_holdsQuote = false;
    bool m_isPlain = true; // surely text, without a look at its bytes
};
}
