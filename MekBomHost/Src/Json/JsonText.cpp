// Nearly all texts need no escape. What lies between two characters that do is copied in one go:
//
//   Length "net"     ->    Length \  "net  \  "       three pieces; each but the first begins with what was escaped
#include "JsonText.h"

#include <cstddef>

namespace mekbom
{
namespace
{
const char kHexDigits[] = "0123456789abcdef";

// DEL needs no escape by the rules of JSON, but a terminal may take it for a command. Bytes beyond ASCII stand as they
// are.
bool needsEscape(char c)
{
    return c == '"' || c == '\\' || c == 0x7F || static_cast<unsigned char>(c) < 0x20;
}

// A quote and a backslash have short escapes, other control characters their code: a line feed is \u000a.
void appendEscaped(std::string& json, char c)
{
    if (c == '"' || c == '\\')
    {
        json.append({ '\\', c });
        return;
    }
    const auto code = static_cast<unsigned char>(c);
    json.append("\\u00").append({ kHexDigits[code / 16], kHexDigits[code % 16] });
}
}

std::string jsonText(std::string_view text)
{
    std::string json;
    appendJsonText(json, text);
    return json;
}

void appendJsonText(std::string& json, std::string_view text)
{
    json += '"';
    std::size_t begin = 0; // of what is still to be copied
    for (std::size_t i = 0; i < text.size(); ++i)
        if (needsEscape(text[i]))
        {
            json.append(text.substr(begin, i - begin));
            appendEscaped(json, text[i]);
            begin = i + 1;
        }
    json.append(text.substr(begin)) += '"';
}

void appendJsonTextOrNull(std::string& json, std::string_view text)
{
    if (text.empty())
        json += "null";
    else
        appendJsonText(json, text);
}
}
