// The bytes E6 A2 81 are one character: 1110xxxx says that two bytes of six bits follow, 0110 100010 000001 is U+6881.
// A character has one valid sequence, its shortest; C0 80, of two bytes for U+0000, is none and becomes two U+FFFD.
//
// Texts are gone through twice, to count and to write, so that memory is asked for once.
#include "VorUtf8.h"

#include <algorithm>
#include <limits>

namespace
{
constexpr int kFirstBeyond16Bits = 0x10000;
constexpr int kHighSurrogates = 0xD800; // the first of each; there are as many of either
constexpr int kLowSurrogates = 0xDC00;
constexpr int kBehindSurrogates = 0xE000;
constexpr int kBehindAll = 0x110000;

bool isValid(int codePoint)
{
    return codePoint >= 0 && codePoint < kBehindAll && (codePoint < kHighSurrogates || codePoint >= kBehindSurrogates);
}

// How many bytes a character that starts so has; 0 for a byte that starts none.
int numBytesFrom(unsigned char first)
{
    if (first < 0x80)
        return 1;
    if (first < 0xC0)
        return 0;
    if (first < 0xE0)
        return 2;
    return first < 0xF0 ? 3 : (first < 0xF8 ? 4 : 0);
}

// The shortest sequence that a character of so many bytes may have is for code points from here on.
int smallestIn(int numBytes)
{
    constexpr int kSmallest[] = { 0, 0, 0x80, 0x800, kFirstBeyond16Bits };
    return kSmallest[numBytes];
}

int numBytesOf(int codePoint)
{
    return codePoint < 0x80 ? 1 : (codePoint < 0x800 ? 2 : (codePoint < kFirstBeyond16Bits ? 3 : 4));
}

// The first code point of the bytes, which are then without it.
int take(std::string_view& bytes)
{
    int codePoint = VorUtf8::kReplacement;
    const int length = VorUtf8::decode(bytes.data(), bytes.size(), codePoint);
    bytes.remove_prefix(static_cast<std::size_t>(std::max(length, 1)));
    return codePoint;
}

bool isPair(int codePoint)
{
    return sizeof(wchar_t) == 2 && codePoint >= kFirstBeyond16Bits;
}

// The code point at `pText`, which moves behind it.
int take(const wchar_t*& pText, const wchar_t* pEnd)
{
    const auto unit = static_cast<unsigned>(*pText++); // NOLINT(bugprone-signed-char-misuse): a wchar_t is no char
    if (sizeof(wchar_t) == 2 && unit >= kHighSurrogates && unit < kLowSurrogates && pText != pEnd)
    {
        const auto low = static_cast<unsigned>(*pText); // NOLINT(bugprone-signed-char-misuse): as above
        if (low >= kLowSurrogates && low < kBehindSurrogates)
        {
            ++pText;
            return static_cast<int>(kFirstBeyond16Bits + ((unit - kHighSurrogates) << 10) + (low - kLowSurrogates));
        }
    }
    const auto codePoint = static_cast<int>(unit);
    return isValid(codePoint) ? codePoint : VorUtf8::kReplacement;
}

wchar_t* put(int codePoint, wchar_t* pOut)
{
    if (isPair(codePoint))
    {
        const int offset = codePoint - kFirstBeyond16Bits;
        *pOut++ = static_cast<wchar_t>(kHighSurrogates + (offset >> 10));
        *pOut++ = static_cast<wchar_t>(kLowSurrogates + (offset & 0x3FF));
        return pOut;
    }
    *pOut++ = static_cast<wchar_t>(codePoint);
    return pOut;
}
}

int VorUtf8::decode(const char* pBytes, std::size_t length, int& codePoint)
{
    const auto first = static_cast<unsigned char>(*pBytes);
    const int numBytes = numBytesFrom(first);
    codePoint = kReplacement;
    if (numBytes == 0 || static_cast<std::size_t>(numBytes) > length)
        return 0;
    int read = numBytes == 1 ? first : first & (0x7F >> numBytes);
    for (int i = 1; i < numBytes; ++i)
    {
        const auto byte = static_cast<unsigned char>(pBytes[i]);
        if ((byte & 0xC0) != 0x80)
            return 0;
        read = (read << 6) | (byte & 0x3F);
    }
    if (read < smallestIn(numBytes) || !isValid(read))
        return 0;
    codePoint = read;
    return numBytes;
}

// From the last byte to the first, six bits each; what is left goes into the first behind as many set bits as bytes.
int VorUtf8::encode(int codePoint, char* pOut)
{
    const int numBytes = numBytesOf(codePoint);
    if (numBytes == 1)
    {
        *pOut = static_cast<char>(codePoint);
        return 1;
    }
    for (int i = numBytes - 1; i > 0; --i)
    {
        pOut[i] = static_cast<char>(0x80 | (codePoint & 0x3F));
        codePoint >>= 6;
    }
    pOut[0] = static_cast<char>((0xF00 >> numBytes & 0xFF) | codePoint);
    return numBytes;
}

VorString VorUtf8::toText(const char* pBytes, std::size_t length)
{
    constexpr int kMost = std::numeric_limits<int>::max() - 1; // one behind may be a pair
    int numUnits = 0;
    std::string_view rest(pBytes, length);
    while (!rest.empty() && numUnits < kMost)
        numUnits += isPair(take(rest)) ? 2 : 1;
    if (numUnits == 0)
        return {};
    wchar_t* pOut = nullptr;
    VorString text = VorString::ofLength(numUnits, pOut);
    const wchar_t* const pEnd = pOut + numUnits;
    for (rest = { pBytes, length }; pOut != pEnd;)
        pOut = put(take(rest), pOut);
    return text;
}

std::size_t VorUtf8::numBytes(const VorString& text)
{
    std::size_t count = 0;
    const wchar_t* pText = text.getStringW();
    for (const wchar_t* const pEnd = pText + text.length(); pText != pEnd;)
        count += static_cast<std::size_t>(numBytesOf(take(pText, pEnd)));
    return count;
}

void VorUtf8::write(const VorString& text, char* pOut)
{
    const wchar_t* pText = text.getStringW();
    for (const wchar_t* const pEnd = pText + text.length(); pText != pEnd;)
        pOut += encode(take(pText, pEnd), pOut);
}
