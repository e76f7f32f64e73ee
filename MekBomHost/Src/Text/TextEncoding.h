// The encodings that parts lists come in, and which of them a file is in.
//
//   TextEncoding::recognise("\xFF\xFEN\0", true)             ->  kUtf16LittleEndian, by its byte order mark
//   TextEncoding::recognise("L\xC3\xA4nge;Menge\n", true)    ->  kUtf8
//   TextEncoding::recognise("L\xE4nge;Menge\n", true)        ->  kWindows1252: bytes beyond ASCII, and none is UTF-8
//   TextEncoding::nameOf(TextEncoding::kWindows1252)         ->  "windows-1252"
#pragma once

#include <string_view>
#include <utility>
#include <vector>

namespace mekbom::TextEncoding
{
enum eEncoding
{
    kUtf8,
    kUtf16LittleEndian,
    kUtf16BigEndian,
    kWindows1252
};

// Each with its name.
const std::vector<std::pair<const char*, eEncoding>>& all();
const char* nameOf(eEncoding encoding);

// By the first bytes of a file, or all of them. Bytes that are text in neither, and those that are partly UTF-8, are
// taken for kUtf8: who reads them so finds the place where they are none.
eEncoding recognise(std::string_view head, bool isWholeFile);

// The character that a byte of Windows-1252 stands for; 0 for the five bytes that stand for none.
int codePointOfWindows1252(char byte);
}
