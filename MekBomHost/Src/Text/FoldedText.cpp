#include "FoldedText.h"

#include <utf8proc.h>

#include <cstdlib>
#include <memory>

namespace mekbom
{
namespace
{
struct Free
{
    void operator()(utf8proc_uint8_t* pBytes) const { std::free(pBytes); }
};

// Decomposed, an accent is a character of its own, which is dropped then.
constexpr auto kOptions = static_cast<utf8proc_option_t>(UTF8PROC_DECOMPOSE | UTF8PROC_COMPAT | UTF8PROC_CASEFOLD |
                                                         UTF8PROC_STRIPMARK | UTF8PROC_IGNORE);
}

std::string foldedText(std::string_view text)
{
    utf8proc_uint8_t* pBytes = nullptr;
    const utf8proc_ssize_t size = utf8proc_map(reinterpret_cast<const utf8proc_uint8_t*>(text.data()),
                                               static_cast<utf8proc_ssize_t>(text.size()), &pBytes, kOptions);
    const std::unique_ptr<utf8proc_uint8_t, Free> owner(pBytes);
    if (size < 0)
        return std::string(text);
    return std::string(reinterpret_cast<const char*>(pBytes), static_cast<std::size_t>(size));
}
}
