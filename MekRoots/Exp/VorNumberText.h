// Numbers to wide text and back, with the characters that the C library gives in the C locale, whatever locale the host
// has set, and without its printf and scanf.
//
//   wchar_t text[VorNumberText::fixedRoom(6)];
//   VorNumberText::writeGeneral(1234567.0, text)      ->  11, text begins with "1.23457e+06", as "%g" has it
//   VorNumberText::writeFixed(2.5, 6, text)           ->  8, text begins with "2.500000", as "%.6f" has it
//   const wchar_t* pEnd = nullptr;
//   VorNumberText::scanDouble(L" 12.5abc", pEnd, 0)   ->  12.5, pEnd is at "abc"
//
// The writers append no terminating zero and return the number of characters written. The caller provides the room.
#pragma once

#include "MekExport.h"

namespace VorNumberText
{
constexpr int kIntegerRoom = 20;    // characters of any long long, sign included
constexpr int kGeneralRoom = 16;    // "-1.23457e+308" and its like
constexpr int kLargestDouble = 310; // sign and whole digits of the largest double
constexpr int kMostDecimals = 100;

// Room that writeFixed needs for any double: sign, digits, point and decimals.
constexpr int fixedRoom(int decimals)
{
    return kLargestDouble + 1 + decimals;
}

MEK_ROOTS_API int writeInteger(long long value, wchar_t* out);

// As "%g": six significant digits, trailing zeros dropped. Needs kGeneralRoom characters.
MEK_ROOTS_API int writeGeneral(double value, wchar_t* out);

// As "%.*f", the exact decimal expansion correctly rounded; decimals from 0 to kMostDecimals. Needs
// fixedRoom(decimals).
MEK_ROOTS_API int writeFixed(double value, int decimals, wchar_t* out);

// What a scan found at the start of a text.
enum eScanResult
{
    kEndOfText = -1, // the text ended before any character of a number
    kNoNumber = 0,   // something else stands there
    kNumber = 1
};

// Reads the longest number at the start of zero-terminated `text`, after white space, as wcstod does in the C locale:
// decimal and hexadecimal forms, "inf", "infinity", "nan" and "nan(...)" in any case. Too large is infinite, too small
// zero. A nonzero `decimalComma` takes a comma for the point as well. `end` is set to the first character not read, or
// to `text` when there is no number; 0.0 then.
MEK_ROOTS_API double scanDouble(const wchar_t* text, const wchar_t*& end, int decimalComma);

// Reads a single-precision number from [text, textEnd) as the GNU C library's swscanf does with "%f": as scanDouble,
// but a text that stops inside "0x...", "inf..." or "nan" is no number ("0x." alone reads as 0), "infinity" must be
// whole once it goes past "inf", an incomplete exponent is dropped, and the result says whether the text ended before
// anything was met. A zero character ends the text. `value` is written for kNumber only.
MEK_ROOTS_API eScanResult scanFloat(const wchar_t* text, const wchar_t* textEnd, float& value);
}
