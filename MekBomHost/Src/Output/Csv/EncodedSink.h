// Hands on text in another encoding than UTF-8.
//
//   EncodedSink encoded(sink, { TextEncoding::kWindows1252, false });
//   encoded.write("Tr\xC3\xA4ger");        // "Tr\xE4ger" goes on
//   encoded.finish();
#pragma once

#include "OutputChoices.h"
#include "TextSink.h"

#include <string>
#include <string_view>

namespace mekbom
{
class EncodedSink : public TextSink
{
public:
    // The sink is not owned and outlives this one. The encoding is UTF-8, UTF-16 with the lower byte first, or
    // Windows-1252.
    EncodedSink(TextSink& sink, OutputEncoding encoding) : m_sink(sink), m_encoding(encoding) {}

    // Texts are cut between characters. Throws a Fault of status kOutputNotWritten for a character that the encoding has
    // not: another one in its place would be another mark.
    void write(std::string_view text) override;
    void finish() override;

private:
    void begin();
    void append(int codePoint);
    [[noreturn]] static void failAt(int codePoint);

    TextSink& m_sink;
    OutputEncoding m_encoding;
    bool m_hasBegun = false;
    std::string m_bytes; // of the text that is being written
};
}
