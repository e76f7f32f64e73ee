// Texts from UTF-8 bytes and to them, whatever the locale and the width of wchar_t: where that has 16 bits, characters
// beyond them are pairs of surrogates.
//
//   VorUtf8::toText("Tr\xC3\xA4ger")         ->  L"Tr\u00E4ger"
//   VorUtf8::toBytes(L"Tr\u00E4ger")         ->  "Tr\xC3\xA4ger"
//   VorUtf8::toText("Tr\xE4ger")             ->  L"Tr\uFFFDger": a byte that belongs to no character
//
// Nothing fails: what is invalid becomes U+FFFD, in both directions, each byte that belongs to no sequence and each
// lone surrogate. A text that was valid comes back as it was. std::bad_alloc passes through.
#pragma once

#include "MekExport.h"
#include "VorString.h"

#include <cstddef>
#include <string>
#include <string_view>

namespace VorUtf8
{
constexpr int kReplacement = 0xFFFD;
constexpr int kMostBytes = 4; // of one character

// The code point that starts at `pBytes`, which has `length` bytes, at least 1. Answers how many of these it takes; 0
// with `codePoint` kReplacement where none starts that is valid: neither overlong, nor a surrogate, nor beyond
// U+10FFFF.
MEK_ROOTS_API int decode(const char* pBytes, std::size_t length, int& codePoint);

// Writes a valid code point to `pOut`, which has room for kMostBytes, and answers how many bytes it takes.
MEK_ROOTS_API int encode(int codePoint, char* pOut);

// Text of `length` bytes, zero bytes included. At most 2^31 - 1 characters: what is behind them is cut off.
MEK_ROOTS_API VorString toText(const char* pBytes, std::size_t length);
inline VorString toText(std::string_view bytes)
{
    return toText(bytes.data(), bytes.size());
}

// How many bytes the text takes, and the bytes themselves, without a terminating zero, to room for as many.
MEK_ROOTS_API std::size_t numBytes(const VorString& text);
MEK_ROOTS_API void write(const VorString& text, char* pOut);
inline std::string toBytes(const VorString& text)
{
    std::string bytes(numBytes(text), '\0');
    write(text, bytes.data());
    return bytes;
}
}
