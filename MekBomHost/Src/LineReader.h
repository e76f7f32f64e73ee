// The physical lines of a text file, checked to be text.
//
//   "a,b\r\n\"c\nd\",e"   ->   "a,b\r\n"  |  "\"c\n"  |  "d\",e"
//
// A line ends with LF, CRLF or CR, which stays part of it; the last one may lack its end. A byte order mark in front is
// dropped. Anything that is not UTF-8, and a zero byte, ends the reading with a Fault that names line and column.
#pragma once

#include "ByteSource.h"

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

    // Number of the line read last, from 1; 0 before the first.
    int lineNumber() const { return m_lineNumber; }

    // "parts.csv:3:17", for the byte at `offset` of `line`, the line read last; columns count characters from 1.
    std::string place(std::string_view line, std::size_t offset) const;

private:
    bool findLineEnd(std::size_t& end) const;
    bool readMore();
    void dropByteOrderMark();
    void checkText(std::string_view line) const;

    ByteSource& m_source;
    std::vector<char> m_buffer; // bytes [m_begin, m_end) are still to be handed out
    std::size_t m_begin = 0;
    std::size_t m_end = 0;
    std::size_t m_movedBy = 0; // by which the bytes last moved to the front
    bool m_sourceIsAtEnd = false;
    int m_lineNumber = 0;
};
}
