#include "LineReader.h"

#include "Fault.h"
#include "Utf8.h"

#include <algorithm>
#include <cstring>

namespace mekbom
{
namespace
{
const std::size_t kBlockSize = 1 << 18; // measured: no faster beyond
const std::string_view kByteOrderMark = "\xEF\xBB\xBF";

bool endsLine(char byte)
{
    return byte == '\n' || byte == '\r';
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
    std::size_t end = m_begin;
    while (!findLineEnd(end) && readMore())
        end -= m_movedBy;
    if (m_begin == m_end)
        return false;
    line = std::string_view(m_buffer.data() + m_begin, end - m_begin);
    m_begin = end;
    ++m_lineNumber;
    checkText(line);
    return true;
}

std::string LineReader::place(std::string_view line, std::size_t offset) const
{
    const std::size_t column = Utf8::countCharacters(line.substr(0, offset)) + 1;
    return m_source.name() + ":" + std::to_string(m_lineNumber) + ":" + std::to_string(column);
}

// Moves `end`, up to which the line has been looked through, past its end. False when more of the source must be seen
// first, be it only to tell CR from CRLF; at its end the rest is the line.
bool LineReader::findLineEnd(std::size_t& end) const
{
    const char* const pEnd = m_buffer.data() + m_end;
    const char* pFound = std::find_if(m_buffer.data() + end, pEnd, endsLine);
    const bool mayBePair = pFound != pEnd && *pFound == '\r';
    if (mayBePair && pFound + 1 == pEnd && !m_sourceIsAtEnd)
    {
        end = m_end - 1;
        return false;
    }
    if (mayBePair && pFound + 1 != pEnd && pFound[1] == '\n')
        ++pFound;
    end = pFound == pEnd ? m_end : static_cast<std::size_t>(pFound + 1 - m_buffer.data());
    return pFound != pEnd || m_sourceIsAtEnd;
}

// Appends to the buffer, after moving what is left to its front.
bool LineReader::readMore()
{
    if (m_sourceIsAtEnd)
        return false;
    m_movedBy = m_begin;
    if (m_begin > 0)
        std::memmove(m_buffer.data(), m_buffer.data() + m_begin, m_end - m_begin);
    m_end -= m_begin;
    m_begin = 0;
    if (m_buffer.size() < m_end + kBlockSize)
        m_buffer.resize(std::max(m_end + kBlockSize, 2 * m_buffer.size()));
    const std::size_t numRead = m_source.read(m_buffer.data() + m_end, m_buffer.size() - m_end);
    m_end += numRead;
    m_sourceIsAtEnd = numRead == 0;
    return true;
}

void LineReader::dropByteOrderMark()
{
    while (m_end - m_begin < kByteOrderMark.size() && readMore())
    {
    }
    if (std::string_view(m_buffer.data(), m_end).substr(0, kByteOrderMark.size()) == kByteOrderMark)
        m_begin = kByteOrderMark.size();
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
