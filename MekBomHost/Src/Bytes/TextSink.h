// Where a report goes: standard output, a file, a text in a test. Takes UTF-8.
//
//   sink.write("Name   Length\n");
//   sink.write("HEA200   2286\n");
//   sink.finish();                      // without it a file stays what it was
//
// Texts may be cut anywhere, even within a line, and are taken in the order in which they are written.
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

    // Takes all of `text`, which is not needed afterwards. Throws a Fault of status kOutputNotWritten when that fails.
    virtual void write(std::string_view text) = 0;

    // Completes the output: only then is everything known to be where it belongs. To be called once, last, and not
    // after a Fault. Throws as write() does.
    virtual void finish() = 0;
};
}
