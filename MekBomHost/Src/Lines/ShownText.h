// A text that a line of a report shows, in UTF-8. It does not own its characters, which are the evaluated report's.
#pragma once

#include <cstdint>
#include <string_view>

namespace mekbom
{
struct ShownText
{
    std::string_view view() const { return std::string_view(pBytes, length); }

    const char* pBytes = nullptr;
    std::uint32_t length = 0; // 0 where nothing is shown
    bool isPlain = true;      // printable ASCII: every character one byte and one column wide
};
}
