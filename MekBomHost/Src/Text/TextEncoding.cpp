// In Windows-1252 "Gr\xF6\xDF" "e" has two bytes beyond ASCII, neither of which begins a sequence of UTF-8. Nearly no
// word of a western language in that encoding is UTF-8 by chance, and no text in UTF-8 lacks valid sequences: so a file
// of which no byte beyond ASCII belongs to a valid sequence is in Windows-1252. One that has some of each is broken, and
// no guess mends it.
#include "TextEncoding.h"

#include "Utf8.h"

#include <algorithm>
#include <cstddef>

namespace mekbom::TextEncoding
{
namespace
{
const std::size_t kLongestSequence = 4;

// 0x80 to 0x9F, as the WHATWG encoding standard and Microsoft's code page have them; 0 for bytes without a character.
const int kHighCodePoints[] = { 0x20AC, 0,      0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
                                0x2039, 0x0152, 0,      0x017D, 0,      0,      0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
                                0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0,      0x017E, 0x0178 };

bool isAscii(char byte)
{
    return static_cast<unsigned char>(byte) < 0x80;
}

bool hasSequence(std::string_view bytes)
{
    while (!bytes.empty())
    {
        const std::size_t sizeBefore = bytes.size();
        Utf8::takeCodePoint(bytes);
        if (sizeBefore - bytes.size() > 1)
            return true;
    }
    return false;
}

bool isWindows1252(std::string_view bytes)
{
    const bool hasCharacters =
        std::all_of(bytes.begin(), bytes.end(), [](char byte) { return codePointOfWindows1252(byte) != 0; });
    return hasCharacters && !hasSequence(bytes);
}

// Without the sequence at the end that the bytes behind the head complete.
std::string_view withoutCutSequence(std::string_view head)
{
    const std::size_t invalid = Utf8::findInvalid(head);
    return head.size() - invalid < kLongestSequence ? head.substr(0, invalid) : head;
}
}

const std::vector<std::pair<const char*, eEncoding>>& all()
{
    static const std::vector<std::pair<const char*, eEncoding>> encodings = { { "utf-8", kUtf8 },
                                                                              { "utf-16le", kUtf16LittleEndian },
                                                                              { "utf-16be", kUtf16BigEndian },
                                                                              { "windows-1252", kWindows1252 } };
    return encodings;
}

const char* nameOf(eEncoding encoding)
{
    return all()[static_cast<std::size_t>(encoding)].first;
}

eEncoding recognise(std::string_view head, bool isWholeFile)
{
    if (head.substr(0, 2) == "\xFF\xFE")
        return kUtf16LittleEndian;
    if (head.substr(0, 2) == "\xFE\xFF")
        return kUtf16BigEndian;
    if (!isWholeFile)
        head = withoutCutSequence(head);
    return Utf8::findInvalid(head) < head.size() && isWindows1252(head) ? kWindows1252 : kUtf8;
}

int codePointOfWindows1252(char byte)
{
    const auto value = static_cast<unsigned char>(byte);
    return !isAscii(byte) && value < 0xA0 ? kHighCodePoints[value - 0x80] : value;
}
}
