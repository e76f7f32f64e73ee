#include "JsonText.h"

namespace mekbom
{
namespace
{
const char kHexDigits[] = "0123456789abcdef";

// A quote and a backslash have short escapes, other control characters their code: a line feed is \u000a. DEL needs
// none by the rules of JSON, but a terminal may take it for a command. Bytes beyond ASCII stand as they are.
std::string escaped(char c)
{
    if (c == '"' || c == '\\')
        return { '\\', c };
    const auto code = static_cast<unsigned char>(c);
    if (code >= 0x20 && code != 0x7F)
        return { c };
    return std::string("\\u00") + kHexDigits[code / 16] + kHexDigits[code % 16];
}
}

std::string jsonText(std::string_view text)
{
    std::string result = "\"";
    for (const char c : text)
        result += escaped(c);
    return result + "\"";
}
}
