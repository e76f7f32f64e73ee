// Nearly all texts need nothing: "HEA200" is looked through once and appended as a whole. In a style every character
// that could mean something goes by its number, which a blank ends:
//
//   Length [mm]   ->   "Length \5b mm\5d "
//   </style>      ->   "\3c \2f style\3e "
#include "HtmlText.h"

#include "Utf8.h"

#include "MekRoots/Exp/VorCharacters.h"

#include <charconv>
#include <cstddef>

namespace mekbom::HtmlText
{
namespace
{
const int kReplacement = 0xFFFD;

bool isBreakOrTab(int codePoint)
{
    return codePoint == '\n' || codePoint == '\r' || codePoint == '\t';
}

bool isControl(int codePoint)
{
    return codePoint < 0x20 || (codePoint >= 0x7F && codePoint < 0xA0);
}

// Control characters above ASCII begin with the byte C2, as many harmless ones do.
bool needsCare(char byte)
{
    const auto code = static_cast<unsigned char>(byte);
    return code < 0x20 || code == 0x7F || code == 0xC2 || byte == '&' || byte == '<' || byte == '>' || byte == '"' ||
           byte == '\'';
}

void appendCodePoint(std::string& page, int codePoint)
{
    switch (codePoint)
    {
        case '&': page += "&amp;"; return;
        case '<': page += "&lt;"; return;
        case '>': page += "&gt;"; return;
        case '"': page += "&quot;"; return;
        case '\'': page += "&#39;"; return;
        default: break;
    }
    Utf8::appendCodePoint(page, isControl(codePoint) && !isBreakOrTab(codePoint) ? kReplacement : codePoint);
}

bool standsForItself(unsigned char byte)
{
    return byte >= 0x80 || byte == ' ' || VorCharacters::isDigit(static_cast<char>(byte)) ||
           (byte >= 'A' && byte <= 'Z') || (byte >= 'a' && byte <= 'z');
}

void appendByNumber(std::string& style, unsigned char byte)
{
    char digits[2];
    const std::to_chars_result end = std::to_chars(digits, digits + sizeof(digits), byte, 16);
    style.append("\\").append(digits, end.ptr).append(" ");
}
}

void append(std::string& page, std::string_view text)
{
    while (!text.empty())
    {
        std::size_t plain = 0;
        while (plain < text.size() && !needsCare(text[plain]))
            ++plain;
        page.append(text.substr(0, plain));
        text.remove_prefix(plain);
        if (!text.empty())
            appendCodePoint(page, Utf8::takeCodePoint(text));
    }
}

std::string inStyle(std::string_view text)
{
    std::string style = "\"";
    for (const char c : text)
    {
        const auto byte = static_cast<unsigned char>(c);
        if (standsForItself(byte))
            style += c;
        else
            appendByNumber(style, byte);
    }
    return style + "\"";
}
}
