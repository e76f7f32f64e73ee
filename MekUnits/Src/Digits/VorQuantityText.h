// The text of one quantity while it is put together, piece by piece, in room of its own.
//
//   VorQuantityText text;
//   text.addInteger(7);
//   text.addCharacter(L'\'');
//   text.addFraction(8, 16);
//   text.text()                ->  7'1/2
#pragma once

#include "MekRoots/Exp/VorString.h"

#include <cstdint>

class VorDecimalNumber;

class VorQuantityText
{
public:
    // "-12.5" for 1250 parts and two decimals, of which there are 9 at most. What most numbers of a report need, in one
    // go: the same text as a sign, addInteger and addDecimals make.
    static VorString ofDecimal(bool isNegative, std::uint64_t parts, int numDecimals, int suppressLastZeros);

    void addCharacter(wchar_t character) { m_text[m_nLength++] = character; }
    void addInteger(std::uint64_t number);

    // "." and the digits of `part` of ten to `numDecimals`; with `suppressLastZeros` without trailing zeros, and
    // nothing when there are only those.
    void addDecimals(std::uint64_t part, int numDecimals, int suppressLastZeros);

    // "5/16": `part` of `numParts`, reduced.
    void addFraction(std::uint64_t part, std::uint64_t numParts);

    // "1.5e+20": with as many of VorRoundedNumber::kMostDigits digits as are not trailing zeros.
    void addWithExponent(VorDecimalNumber number);

    // A symbol that starts with a letter gets a blank before it. An empty one adds nothing.
    void addSymbol(const wchar_t* symbol);

    VorString text() const { return VorString(m_text, m_nLength); }

private:
    static constexpr int kRoom = 80; // the longest are feet and inches: sign, 14 digits, marks, 2 digits and 9 decimals

    wchar_t m_text[kRoom];
    int m_nLength = 0;
};
