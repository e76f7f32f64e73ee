// The bytes of a source in UTF-8, whatever encoding it has.
//
//   MemorySource bytes("parts.csv", "L\xE4nge;Menge\n");
//   DecodedSource text(bytes, TextEncoding::kWindows1252);
//   text.readAll()      ->  "L\xC3\xA4nge;Menge\n"
//
// What is UTF-8 already is passed on as it is, valid or not. Of other encodings some ten thousand bytes are held at a
// time.
#pragma once

#include "ByteSource.h"
#include "TextEncoding.h"

#include <cstddef>
#include <string>

namespace mekbom
{
class DecodedSource : public ByteSource
{
public:
    // `source` is not owned and outlives this one.
    DecodedSource(ByteSource& source, TextEncoding::eEncoding encoding) : m_source(source), m_encoding(encoding) {}

    const std::string& name() const override { return m_source.name(); }

    // Throws also where bytes stand for no character of the encoding: half a surrogate pair, an odd byte at the end.
    std::size_t read(char* pBytes, std::size_t size) override;

private:
    bool decodeMore();
    bool readMore();
    void decodeUtf16(bool isAtEnd);
    void decodeWindows1252();
    int unitAt(std::size_t offset) const;
    void append(int codePoint);
    [[noreturn]] void fail(const std::string& found) const;

    ByteSource& m_source;
    TextEncoding::eEncoding m_encoding;
    std::string m_raw;             // read, and still to be decoded
    std::string m_text;            // decoded
    std::size_t m_numGiven = 0;    // of it
    int m_line = 1;                // the one on which the next character stands
    bool m_isBehindReturn = false; // a line feed there belongs to the line end before it
};
}
