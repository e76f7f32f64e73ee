// Nearly all texts are short and plain ASCII, and a parts list has one in each cell: so toWide() has three ways. "S355"
// fits into one word of eight bytes, whose high bits tell all at once that it is ASCII, and is widened without a loop
// that ends sooner or later. "HEA200-S355-L=4500" is up to kMostShort bytes long and copied through a buffer. Only
// others are decoded, character by character: "Tr\xC3\xA4ger" is 7 bytes and 6 characters.
#include "Utf8.h"

#include "ByteWord.h"

#include "MekRoots/Exp/VorUtf8.h"

#include <utf8proc.h>

#include <algorithm>
#include <cstdint>

namespace mekbom::Utf8
{
namespace
{
const int kReplacement = VorUtf8::kReplacement;
const std::size_t kMostShort = 64; // characters of texts as nearly all cells are; arbitrary
const std::uint64_t kHighBits = ByteWord::kEachByte * 0x80;

bool isAscii(char byte)
{
    return static_cast<unsigned char>(byte) < 0x80;
}

// Does not stop at the first other byte, so that the compiler looks at many bytes together.
bool isAllAscii(std::string_view bytes)
{
    unsigned char allBits = 0;
    for (const char byte : bytes)
        allBits = static_cast<unsigned char>(allBits | static_cast<unsigned char>(byte));
    return allBits < 0x80;
}

// How many bytes in front are ASCII. Looks no further than the word that the first other byte is in: it is asked anew
// behind each character beyond ASCII.
std::size_t asciiLength(std::string_view bytes)
{
    std::size_t length = 0;
    while (bytes.size() - length >= ByteWord::kSize &&
           (ByteWord::load<std::uint64_t>(bytes.data() + length) & kHighBits) == 0)
        length += ByteWord::kSize;
    while (length < bytes.size() && isAscii(bytes[length]))
        ++length;
    return length;
}

// The code point at the start of `bytes` and its length in bytes; length 0 where there is no valid one.
int decode(std::string_view bytes, std::size_t& length)
{
    int codePoint = kReplacement;
    length = static_cast<std::size_t>(VorUtf8::decode(bytes.data(), bytes.size(), codePoint));
    return codePoint;
}
}

// From one character beyond ASCII to the next; what is ASCII between them is passed over many bytes at a time.
std::size_t findInvalid(std::string_view bytes)
{
    std::size_t pos = asciiLength(bytes);
    while (pos < bytes.size())
    {
        std::size_t length = 0;
        decode(bytes.substr(pos), length);
        if (length == 0)
            return pos;
        pos += length;
        pos += asciiLength(bytes.substr(pos));
    }
    return pos;
}

std::size_t countCharacters(std::string_view bytes)
{
    return static_cast<std::size_t>(std::count_if(bytes.begin(), bytes.end(), startsCharacter));
}

std::string_view withoutByteOrderMark(std::string_view bytes)
{
    const std::string_view mark = "\xEF\xBB\xBF";
    return bytes.substr(0, mark.size()) == mark ? bytes.substr(mark.size()) : bytes;
}

// See the top for the three ways. The word of a text that is too long for it has all high bits set, and so takes one of
// the others. Of a short text all eight characters are written, zeros behind its end: the loop has no length to wait
// for.
VorString toWide(std::string_view bytes)
{
    wchar_t characters[kMostShort];
    const std::uint64_t word = bytes.size() <= ByteWord::kSize ? ByteWord::of(bytes) : kHighBits;
    if ((word & kHighBits) == 0)
    {
        for (std::size_t i = 0; i < ByteWord::kSize; ++i)
            characters[i] = static_cast<wchar_t>(word >> 8 * i & 0xFF);
        return VorString(characters, static_cast<int>(bytes.size()));
    }
    if (bytes.size() <= kMostShort && isAllAscii(bytes))
    {
        std::copy(bytes.begin(), bytes.end(), characters);
        return VorString(characters, static_cast<int>(bytes.size()));
    }
    return VorUtf8::toText(bytes);
}

std::string toBytes(const VorString& text)
{
    return VorUtf8::toBytes(text);
}

void append(std::string& bytes, const VorString& text)
{
    const std::size_t before = bytes.size();
    bytes.resize(before + VorUtf8::numBytes(text));
    VorUtf8::write(text, bytes.data() + before);
}

int displayWidth(int codePoint)
{
    return codePoint < 0x7F ? 1 : utf8proc_charwidth(codePoint);
}

// ASCII in front, which is nearly always all of a text, has as many columns as bytes.
int displayWidth(std::string_view bytes)
{
    const std::size_t numAscii = asciiLength(bytes);
    int width = static_cast<int>(numAscii);
    for (bytes.remove_prefix(numAscii); !bytes.empty();)
        width += displayWidth(takeCodePoint(bytes));
    return width;
}

int takeCodePoint(std::string_view& bytes)
{
    if (isAscii(bytes.front()))
    {
        const int codePoint = static_cast<unsigned char>(bytes.front());
        bytes.remove_prefix(1);
        return codePoint;
    }
    std::size_t length = 0;
    const int codePoint = decode(bytes, length);
    bytes.remove_prefix(std::max<std::size_t>(length, 1));
    return length == 0 ? kReplacement : codePoint;
}

// ASCII, a byte that is its own code point, needs no encoder.
void appendCodePoint(std::string& bytes, int codePoint)
{
    if (codePoint < 0x80)
    {
        bytes += static_cast<char>(codePoint);
        return;
    }
    char encoded[VorUtf8::kMostBytes];
    bytes.append(encoded, static_cast<std::size_t>(VorUtf8::encode(codePoint, encoded)));
}
}
