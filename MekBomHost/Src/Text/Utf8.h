// UTF-8 bytes, as files hold them, to the wide text of the libraries and back; and how wide a text stands on a
// terminal. Independent of the locale and of the width of wchar_t.
//
//   Utf8::toWide("Tr\xC3\xA4ger")           ->  L"Tr\u00E4ger"
//   Utf8::findInvalid("Tr\xE4ger")          ->  2
//   Utf8::countCharacters("Tr\xC3\xA4ger")  ->  6
//   Utf8::displayWidth("\xE6\xA2\x81")      ->  2: a wide character
#pragma once

#include "MekRoots/Exp/VorString.h"

#include <cstddef>
#include <string>
#include <string_view>

namespace mekbom::Utf8
{
// The offset of the first byte that belongs to no valid UTF-8 sequence; bytes.size() when there is none.
std::size_t findInvalid(std::string_view bytes);

// Whether a character starts with the byte: all others of one are 10xxxxxx. For valid text.
inline bool startsCharacter(char byte)
{
    return (static_cast<unsigned char>(byte) & 0xC0) != 0x80;
}

// Characters (code points), not bytes. For valid text.
std::size_t countCharacters(std::string_view bytes);

// Without the mark that some programs put in front of a file: "\xEF\xBB\xBFName" -> "Name".
std::string_view withoutByteOrderMark(std::string_view bytes);

// From UTF-8 and to it; append() adds to what `bytes` holds. Anything invalid becomes U+FFFD, in both directions: each
// byte that belongs to no sequence, each lone surrogate.
VorString toWide(std::string_view bytes);
std::string toBytes(const VorString& text);
void append(std::string& bytes, const VorString& text);

// Columns that a code point, or a text, takes on a terminal: 0 for combining marks, 2 for wide East Asian characters,
// else 1.
int displayWidth(int codePoint);
int displayWidth(std::string_view bytes);

// Removes the code point at the start of `bytes`, which must not be empty, and returns it; where no valid one starts,
// removes one byte and returns U+FFFD.
int takeCodePoint(std::string_view& bytes);

// The reverse, for a valid code point.
void appendCodePoint(std::string& bytes, int codePoint);
}
