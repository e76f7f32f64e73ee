// UTF-8 bytes, as files hold them, to the wide text of the libraries and back; and how wide a text stands on a
// terminal. Independent of the locale and of the width of wchar_t.
#pragma once

#include "MekRoots/Exp/VorString.h"

#include <cstddef>
#include <string>
#include <string_view>

namespace mekbom::Utf8
{
// The offset of the first byte that belongs to no valid UTF-8 sequence; bytes.size() when there is none.
std::size_t findInvalid(std::string_view bytes);

// Characters (code points), not bytes. For valid text.
std::size_t countCharacters(std::string_view bytes);

// Without the mark that some programs put in front of a file: "\xEF\xBB\xBFName" -> "Name".
std::string_view withoutByteOrderMark(std::string_view bytes);

// Anything invalid becomes U+FFFD, in both directions.
VorString toWide(std::string_view bytes);
std::string toBytes(const VorString& text);
void append(std::string& bytes, const VorString& text);

// Columns that one code point takes on a terminal: 0 for combining marks, 2 for wide East Asian characters, else 1.
int displayWidth(int codePoint);
int displayWidth(std::string_view bytes);

// Reads the code point at the start of `bytes`, which is not empty, and removes it; U+FFFD, one byte removed, where
// none is.
int takeCodePoint(std::string_view& bytes);
void appendCodePoint(std::string& bytes, int codePoint);
}
