// A character is looked up in the table, and what is not there is taken apart as Unicode says:
//
//   ä   in the table                                        ae
//   é   e and an accent, which goes                         e
//   ½   1, a slash for fractions, 2; the slash is in the table   1/2
//   柱  is its own only part                                 ?
#include "AsciiText.h"

#include "Utf8.h"

#include <utf8proc.h>

#include <algorithm>
#include <iterator>

namespace mekbom::AsciiText
{
namespace
{
const int kMostParts = 32; // more than any character has

struct Form
{
    int codePoint;
    const char* text;
};

const Form kForms[] = {
    { 0xC4, "Ae" },   { 0xD6, "Oe" },   { 0xDC, "Ue" },  { 0xE4, "ae" },   { 0xF6, "oe" },    { 0xFC, "ue" },
    { 0xDF, "ss" },   { 0xC6, "AE" },   { 0xE6, "ae" },  { 0xD8, "O" },    { 0xF8, "o" },     { 0x152, "OE" },
    { 0x153, "oe" },  { 0x141, "L" },   { 0x142, "l" },  { 0x110, "D" },   { 0x111, "d" },    { 0xB0, "deg" },
    { 0xD7, "x" },    { 0xF7, "/" },    { 0xB1, "+-" },  { 0xB7, "." },    { 0x3BC, "u" },    { 0x2044, "/" },
    { 0x2010, "-" },  { 0x2013, "-" },  { 0x2014, "-" }, { 0x2212, "-" },  { 0x2018, "'" },   { 0x2019, "'" },
    { 0x201C, "\"" }, { 0x201D, "\"" }, { 0x2032, "'" }, { 0x2033, "\"" }, { 0x20AC, "EUR" }, { 0x2300, "O" },
};

const char* formOf(int codePoint)
{
    const auto* const pFound = std::find_if(std::begin(kForms), std::end(kForms),
                                            [codePoint](const Form& form) { return form.codePoint == codePoint; });
    return pFound == std::end(kForms) ? nullptr : pFound->text;
}

bool isLayout(int codePoint)
{
    return codePoint == '\t' || codePoint == '\n' || codePoint == '\r';
}

// False for a character that is neither in the table nor ASCII that one sees.
bool append(std::string& ascii, int codePoint)
{
    const char* const pForm = formOf(codePoint);
    const bool isAscii = (codePoint >= ' ' && codePoint <= '~') || isLayout(codePoint);
    if (pForm != nullptr)
        ascii += pForm;
    else if (isAscii)
        ascii += static_cast<char>(codePoint);
    return pForm != nullptr || isAscii;
}

// A mark that stands alone leaves nothing behind.
void appendParts(std::string& ascii, int codePoint)
{
    utf8proc_int32_t parts[kMostParts];
    int boundClass = 0;
    const auto options = static_cast<utf8proc_option_t>(UTF8PROC_COMPAT | UTF8PROC_DECOMPOSE | UTF8PROC_STRIPMARK);
    const utf8proc_ssize_t numParts = utf8proc_decompose_char(codePoint, parts, kMostParts, options, &boundClass);
    for (utf8proc_ssize_t i = 0; i < std::min<utf8proc_ssize_t>(numParts, kMostParts); ++i)
        if (!append(ascii, parts[i]))
            ascii += '?';
}
}

std::string of(std::string_view text)
{
    std::string ascii;
    while (!text.empty())
    {
        const int codePoint = Utf8::takeCodePoint(text);
        if (!append(ascii, codePoint))
            appendParts(ascii, codePoint);
    }
    return ascii;
}
}
