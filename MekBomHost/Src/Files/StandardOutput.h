// Standard output as the report's destination.
//
//   StandardOutput::print("7' 6\"\n");      throws a Fault of status kOutputNotWritten when the device is full
//
// The text reaches the system with finish() at the latest.
#pragma once

#include "TextSink.h"

namespace mekbom
{
class StandardOutput : public TextSink
{
public:
    void write(std::string_view text) override;
    void finish() override;

    // Writes `text` as all of the output. Throws as write() does.
    static void print(std::string_view text);
};
}
