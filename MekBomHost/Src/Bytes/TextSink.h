// Where a report goes: standard output, a file, a text in a test. Takes UTF-8.
#pragma once

#include <string_view>

namespace mekbom
{
class TextSink
{
public:
    TextSink() = default;
    TextSink(const TextSink&) = delete;
    TextSink& operator=(const TextSink&) = delete;
    virtual ~TextSink() = default;

    // Throws a Fault of status kOutputNotWritten when the text cannot be taken.
    virtual void write(std::string_view text) = 0;

    // Completes the output: only then is everything known to be where it belongs. Throws as write() does.
    virtual void finish() = 0;
};
}
