#include "LineReader.h"

#include "Fault.h"
#include "Utf8.h"

#include <algorithm>
#include <cstring>

namespace mekbom
{
namespace
{
const std::size_t kBlockSize = 1 << 17; // half of the buffer; measured: no faster beyond
const std::string_view kByteOrderMark = "\xEF\xBB\xBF";

bool endsLine(char byte)
{
    return byte == '\n' || byte == '\r';
}

bool isAsciiText(char byte)
{
    return byte != 0 && static_cast<unsigned char>(byte) < 0x80;
}

std::string byteName(char byte)
{
    const char* const digits = "0123456789ABCDEF";
    const auto value = static_cast<unsigned char>(byte);
    return { '0', 'x', digits[value >> 4], digits[value & 15] };
}
}

bool LineReader::next(std::string_view& line)
{
    if (m_lineNumber == 0)
        dropByteOrderMark();
    beginLine();
    while (!findLineEnd() && readMore())
    {
    }
    if (m_begin == m_end)
        return false;
    line = std::string_view(begin(), m_length);
    m_begin += m_length;
    ++m_lineNumber;
    if (!m_isPlain)
        checkText(line);
    return true;
}

std::string LineReader::place(std::string_view line, std::size_t offset) const
{
    const std::size_t column = Utf8::countCharacters(line.substr(0, offset)) + 1;
    return m_source.name() + ":" + std::to_string(m_lineNumber) + ":" + std::to_string(column);
}

void LineReader::beginLine()
{
    m_length = 0;
    m_borders.clear();
    m_borders.push_back(-1);
    m_holdsQuote = false;
    m_isPlain = true;
}

// Looks the line through up to its end. False when more of the source must be seen first, be it only to tell CR from
// CRLF; at its end the rest is the line.
bool LineReader::findLineEnd()
{
    StopScan scan = m_scan; // a copy, which the compiler keeps in registers
    const char* const pBegin = begin();
    const char* const pEnd = end();
    const char* pStop = scan.next();
    for (; pStop != pEnd && !endsLine(*pStop); pStop = scan.next())
    {
        if (*pStop == ',')
            m_borders.push_back(pStop - pBegin);
        else
            passStop(*pStop);
    }
    m_scan = scan;
    return endLine(pStop);
}

void LineReader::passStop(char byte)
{
    m_holdsQuote = m_holdsQuote || byte == '"';
    m_isPlain = m_isPlain && isAsciiText(byte);
}

// Ends the line at its end or at that of the buffer.
bool LineReader::endLine(const char* pStop)
{
    m_length = static_cast<std::size_t>(pStop - begin());
    const bool mayBePair = pStop != end() && *pStop == '\r';
    const bool needsMore = pStop == end() || (mayBePair && pStop + 1 == end());
    if (needsMore && !m_sourceIsAtEnd)
        return false;
    m_borders.push_back(pStop - begin());
    if (pStop != end())
        ++m_length;
    if (mayBePair && pStop + 1 != end() && pStop[1] == '\n')
    {
        m_scan.next();
        ++m_length;
    }
    return true;
}

// Appends to the buffer, after moving what is left to its front.
bool LineReader::readMore()
{
    if (m_sourceIsAtEnd)
        return false;
    if (m_begin > 0)
        std::memmove(m_buffer.data(), begin(), m_end - m_begin);
    m_end -= m_begin;
    m_begin = 0;
    if (m_buffer.size() < m_end + kBlockSize)
        m_buffer.resize(std::max(2 * kBlockSize, 2 * m_buffer.size()));
    const std::size_t room = m_buffer.size() - m_end - StopScan::kBlockSize;
    const std::size_t numRead = m_source.read(m_buffer.data() + m_end, room);
    m_end += numRead;
    m_sourceIsAtEnd = numRead == 0;
    m_scan.begin(m_buffer.data() + m_length, end());
    return true;
}

void LineReader::dropByteOrderMark()
{
    while (m_end - m_begin < kByteOrderMark.size() && readMore())
    {
    }
    if (std::string_view(m_buffer.data(), m_end).substr(0, kByteOrderMark.size()) == kByteOrderMark)
    {
        m_begin = kByteOrderMark.size();
        m_scan.begin(begin(), end());
    }
}

void LineReader::checkText(std::string_view line) const
{
    const std::size_t invalid = Utf8::findInvalid(line);
    const std::size_t zero = line.find('\0');
    if (zero < invalid)
        throw Fault(kInvalidInput, place(line, zero) + ": found a zero byte, expected text");
    if (invalid < line.size())
        throw Fault(kInvalidInput,
                    place(line, invalid) + ": found byte " + byteName(line[invalid]) + ", expected text in UTF-8");
}
}
