// Parts lists of any length as texts, and where benchmarks print to.
#pragma once

#include "TextSink.h"

#include <cstddef>
#include <string>
#include <string_view>

namespace mekbom
{
// Rows as a modeller exports them: many marks, few materials, numbers of one or two decimals. With `quote` set to "\""
// every text stands in quotes, which no text needs.
inline std::string partsText(long long numRows, const std::string& quote = std::string())
{
    std::string text = "Handle,MNum,Material,Length [mm],Weight [kg],Quantity\n";
    for (long long i = 0; i < numRows; ++i)
        text += quote + std::to_string(i + 4096) + quote + "," + quote + "B" +
                std::to_string(i * 7919 % (numRows + 1)) + quote + "," + quote + "S" + std::to_string(i % 8) + "35JR" +
                quote + "," + std::to_string(i * 31 % 12000) + ".5," + std::to_string(i * 17 % 1000) + ".25," +
                std::to_string(i % 20 + 1) + "\n";
    return text;
}

// Takes any text and counts its bytes.
class CountingSink : public TextSink
{
public:
    void write(std::string_view text) override { numBytes += text.size(); }
    void finish() override {}

    std::size_t numBytes = 0;
};
}
