// Bytes are decoded a block at a time. A block of UTF-16 may end within a character, whose bytes wait for the next one:
//
//   41 00 3D D8 | 4B DF 0A 00          'A' and the first half of a pair; the other half and a line end
//   "A"                                 decoded of the first block: 3D D8 stays
//   "\xF0\x9F\x8D\x8B\n"                of the second
#include "DecodedSource.h"

#include "Fault.h"
#include "FindingCodes.h"
#include "Utf8.h"

#include <algorithm>

namespace mekbom
{
namespace
{
const std::size_t kBlockSize = 1 << 14; // arbitrary: some ten thousand bytes

bool isHighSurrogate(int unit)
{
    return unit >= 0xD800 && unit < 0xDC00;
}

bool isLowSurrogate(int unit)
{
    return unit >= 0xDC00 && unit < 0xE000;
}
}

std::size_t DecodedSource::read(char* pBytes, std::size_t size)
{
    if (m_encoding == TextEncoding::kUtf8)
        return m_source.read(pBytes, size);
    while (m_numGiven == m_text.size())
        if (!decodeMore())
            return 0;
    const std::size_t numCopied = m_text.copy(pBytes, size, m_numGiven);
    m_numGiven += numCopied;
    return numCopied;
}

// False at the end.
bool DecodedSource::decodeMore()
{
    m_text.clear();
    m_numGiven = 0;
    const bool isAtEnd = !readMore();
    if (isAtEnd && m_raw.empty())
        return false;
    if (m_encoding == TextEncoding::kWindows1252)
        decodeWindows1252();
    else
        decodeUtf16(isAtEnd);
    return true;
}

bool DecodedSource::readMore()
{
    const std::size_t numWaiting = m_raw.size();
    m_raw.resize(numWaiting + kBlockSize);
    const std::size_t numRead = m_source.read(&m_raw[numWaiting], kBlockSize);
    m_raw.resize(numWaiting + numRead);
    return numRead > 0;
}

// What is left is less than a character: nothing, one byte, or the first half of a pair with or without a byte more.
void DecodedSource::decodeUtf16(bool isAtEnd)
{
    std::size_t offset = 0;
    for (; m_raw.size() - offset >= 2; offset += 2)
    {
        const int unit = unitAt(offset);
        if (isHighSurrogate(unit))
        {
            if (m_raw.size() - offset < 4)
                break;
            offset += 2;
            const int low = unitAt(offset);
            if (!isLowSurrogate(low))
                fail("half a surrogate pair");
            append(0x10000 + ((unit - 0xD800) << 10) + (low - 0xDC00));
        }
        else if (isLowSurrogate(unit))
            fail("half a surrogate pair");
        else
            append(unit);
    }
    m_raw.erase(0, offset);
    if (isAtEnd && !m_raw.empty())
        fail("an end within a character");
}

void DecodedSource::decodeWindows1252()
{
    for (const char byte : m_raw)
    {
        const int codePoint = TextEncoding::codePointOfWindows1252(byte);
        if (codePoint == 0 && byte != 0)
            fail("a byte that is no character");
        append(codePoint);
    }
    m_raw.clear();
}

int DecodedSource::unitAt(std::size_t offset) const
{
    const auto first = static_cast<unsigned char>(m_raw[offset]);
    const auto second = static_cast<unsigned char>(m_raw[offset + 1]);
    return m_encoding == TextEncoding::kUtf16LittleEndian ? first | second << 8 : first << 8 | second;
}

// Lines end as the readers of text take them, with LF, CRLF or CR.
void DecodedSource::append(int codePoint)
{
    Utf8::appendCodePoint(m_text, codePoint);
    if (codePoint == '\r' || (codePoint == '\n' && !m_isBehindReturn))
        ++m_line;
    m_isBehindReturn = codePoint == '\r';
}

void DecodedSource::fail(const std::string& found) const
{
    Finding finding = Finding::of(FindingCodes::kTextNotOfEncoding, found,
                                  std::string("text in ") + TextEncoding::nameOf(m_encoding));
    finding.source = name();
    finding.begin.line = m_line;
    finding.remedy = "give --encoding if it is in another one";
    throw Fault(kInvalidInput, finding);
}
}
