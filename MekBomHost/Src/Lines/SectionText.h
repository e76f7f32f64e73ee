// A text that a table shows, in UTF-8. Not owned.
#pragma once

#include <cstdint>
#include <string_view>

namespace mekbom
{
struct SectionText
{
    std::string_view view() const { return std::string_view(pBytes, length); }

    const char* pBytes = nullptr;
    std::uint32_t length = 0; // 0 where there is no text
    bool isPlain = true;      // printable ASCII: every character one byte and one column wide
};
}
