#include "EncodedSink.h"

#include "Fault.h"
#include "FindingCodes.h"
#include "InQuotes.h"
#include "Utf8.h"

namespace mekbom
{
namespace
{
const int kByteOrderMark = 0xFEFF;
const int kFirstOfTwo = 0x10000; // code points from here on are two units of UTF-16

void appendUnit(std::string& bytes, int unit)
{
    bytes += static_cast<char>(unit & 0xFF);
    bytes += static_cast<char>(unit >> 8);
}

void appendUtf16(std::string& bytes, int codePoint)
{
    if (codePoint < kFirstOfTwo)
        return appendUnit(bytes, codePoint);
    appendUnit(bytes, 0xD800 + ((codePoint - kFirstOfTwo) >> 10));
    appendUnit(bytes, 0xDC00 + ((codePoint - kFirstOfTwo) & 0x3FF));
}

// False for a character that has no byte.
bool appendWindows1252(std::string& bytes, int codePoint)
{
    for (int byte = codePoint < 0x100 ? codePoint : 0x80; byte < 0x100; ++byte)
        if (TextEncoding::codePointOfWindows1252(static_cast<char>(byte)) == codePoint)
        {
            bytes += static_cast<char>(byte);
            return true;
        }
    return false;
}
}

void EncodedSink::write(std::string_view text)
{
    begin();
    if (m_encoding.encoding == TextEncoding::kUtf8)
        return m_sink.write(text);
    m_bytes.clear();
    while (!text.empty())
        append(Utf8::takeCodePoint(text));
    m_sink.write(m_bytes);
}

// A file without any text has its mark all the same.
void EncodedSink::finish()
{
    begin();
    m_sink.finish();
}

void EncodedSink::begin()
{
    if (m_hasBegun)
        return;
    m_hasBegun = true;
    if (!m_encoding.hasMark)
        return;
    std::string mark;
    Utf8::appendCodePoint(mark, kByteOrderMark);
    write(mark);
}

void EncodedSink::append(int codePoint)
{
    if (m_encoding.encoding == TextEncoding::kUtf16LittleEndian)
        appendUtf16(m_bytes, codePoint);
    else if (!appendWindows1252(m_bytes, codePoint))
        failAt(codePoint);
}

void EncodedSink::failAt(int codePoint)
{
    std::string character;
    Utf8::appendCodePoint(character, codePoint);
    Finding finding =
        Finding::stating(FindingCodes::kOutputNotWritten, "windows-1252 has no character " + inQuotes(character));
    finding.source = "--output-encoding";
    finding.remedy = "take utf-8-bom, which spreadsheets know as well";
    throw Fault(kOutputNotWritten, finding);
}
}
