#include "VorQuantityText.h"

#include "MekRoots/Exp/VorCharacters.h"
#include "MekRoots/Exp/VorPowersOfTen.h"
#include "VorDecimalNumber.h"

#include <numeric>

namespace
{
// Writes `number` into the `numDigits` characters before `end`, with zeros in front.
void writeDigits(std::uint64_t number, int numDigits, wchar_t* end)
{
    for (int i = 0; i < numDigits; ++i, number /= 10)
        *--end = static_cast<wchar_t>(L'0' + number % 10);
}

// The digits of `number`, which has 8 at most, as numbers in the bytes of a word: the first in the lowest byte, with zeros
// in front. Halves the stretches of digits three times, all of them at once; the products divide exactly in these ranges.
std::uint64_t eightDigits(std::uint32_t number)
{
    const std::uint64_t fours = number / 10000 + (std::uint64_t{ number % 10000 } << 32);
    const std::uint64_t hundreds = (fours * 10486 >> 20) & 0x0000007F0000007F;
    const std::uint64_t twos = hundreds + ((fours - hundreds * 100) << 16);
    const std::uint64_t tens = (twos * 103 >> 10) & 0x000F000F000F000F;
    return tens + ((twos - tens * 10) << 8);
}

// How many bytes at the low or at the high end of a word, which is not 0, are 0.
#if defined(__GNUC__)
int countLowZeroBytes(std::uint64_t word)
{
    return __builtin_ctzll(word) / 8;
}

int countHighZeroBytes(std::uint64_t word)
{
    return __builtin_ctzll(__builtin_bswap64(word)) / 8; // many processors count from below in fewer steps
}
#else
int countLowZeroBytes(std::uint64_t word)
{
    int numBytes = 0;
    for (; (word & 255) == 0; word >>= 8)
        ++numBytes;
    return numBytes;
}

int countHighZeroBytes(std::uint64_t word)
{
    int numBytes = 0;
    for (; word >> 56 == 0; word <<= 8)
        ++numBytes;
    return numBytes;
}
#endif

// Writes the lowest four bytes of `word` as characters.
void writeFour(std::uint64_t word, wchar_t* pOut)
{
    for (int i = 0; i < 4; ++i, word >>= 8)
        pOut[i] = static_cast<wchar_t>(word & 255);
}

// The same with as many bytes as asked for, 8 at most; the first four and the last four may overlap.
void writeBytes(std::uint64_t word, int numBytes, wchar_t* pOut)
{
    if (numBytes >= 4)
    {
        writeFour(word, pOut);
        writeFour(word >> 8 * (numBytes - 4), pOut + numBytes - 4);
        return;
    }
    for (int i = 0; i < numBytes; ++i, word >>= 8)
        pOut[i] = static_cast<wchar_t>(word & 255);
}

int countDigits(std::uint64_t number)
{
    int numDigits = 1;
    for (; number >= 10; number /= 10)
        ++numDigits;
    return numDigits;
}
}

// All characters but the sign fit a word, one in each byte. 1250 of two decimals, the lowest byte to the left:
//   00 00 00 01 02 05 00          seven digits
//               -----             the last whole digit, where zeros end at the latest that are dropped from either end
//   '0' '0' '0' '1' '2' '.' '5' '0'
//               '1' '2' '.' '5'   what is written
VorString VorQuantityText::ofDecimal(bool isNegative, std::uint64_t parts, int numDecimals, int suppressLastZeros)
{
    constexpr int kMostDigits = 7; // beside the point
    constexpr std::uint64_t kTooManyParts = 10000000;
    constexpr std::uint64_t kZeroDigits = 0x3030303030303030;
    constexpr std::uint64_t kPoint = L'.';
    if (parts >= kTooManyParts || numDecimals >= kMostDigits)
        return ofLongDecimal(isNegative, parts, numDecimals, suppressLastZeros);

    const std::uint64_t digits = eightDigits(static_cast<std::uint32_t>(parts)) >> 8;
    const int numWhole = kMostDigits - numDecimals;
    const std::uint64_t lastWhole = std::uint64_t{ 1 } << 8 * (numWhole - 1);
    const int numLeading = countLowZeroBytes(digits | lastWhole);
    std::uint64_t characters = digits + kZeroDigits;
    int length = numWhole - numLeading;
    if (numDecimals > 0)
    {
        const std::uint64_t point = lastWhole << 8;
        const std::uint64_t whole = characters & (point - 1);
        characters = whole + kPoint * point + ((characters - whole) << 8);
        const int numShown = numDecimals - (suppressLastZeros != 0 ? countHighZeroBytes((digits | lastWhole) << 8) : 0);
        length += numShown > 0 ? 1 + numShown : 0;
    }

    wchar_t* pOut = nullptr;
    VorString text = VorString::ofLength(length + (isNegative ? 1 : 0), pOut);
    if (isNegative)
        *pOut++ = L'-';
    writeBytes(characters >> 8 * numLeading, length, pOut);
    return text;
}

VorString VorQuantityText::ofLongDecimal(bool isNegative, std::uint64_t parts, int numDecimals, int suppressLastZeros)
{
    const std::uint64_t partsOfOne = VorPowersOfTen::kAll<std::uint64_t>[static_cast<std::size_t>(numDecimals)];
    VorQuantityText text;
    if (isNegative)
        text.addCharacter(L'-');
    text.addInteger(parts / partsOfOne);
    text.addDecimals(parts % partsOfOne, numDecimals, suppressLastZeros);
    return text.text();
}

void VorQuantityText::addInteger(std::uint64_t number)
{
    const int numDigits = countDigits(number);
    m_nLength += numDigits;
    writeDigits(number, numDigits, m_text + m_nLength);
}

void VorQuantityText::addDecimals(std::uint64_t part, int numDecimals, int suppressLastZeros)
{
    if (suppressLastZeros != 0)
        for (; numDecimals > 0 && part % 10 == 0; --numDecimals)
            part /= 10;
    if (numDecimals == 0)
        return;
    addCharacter(L'.');
    m_nLength += numDecimals;
    writeDigits(part, numDecimals, m_text + m_nLength);
}

void VorQuantityText::addFraction(std::uint64_t part, std::uint64_t numParts)
{
    const std::uint64_t divisor = std::gcd(part, numParts);
    addInteger(part / divisor);
    addCharacter(L'/');
    addInteger(numParts / divisor);
}

void VorQuantityText::addWithExponent(VorDecimalNumber number)
{
    number.roundToDigits(VorRoundedNumber::kMostDigits);
    for (int i = 0; i < number.numDigits(); ++i)
    {
        if (i == 1)
            addCharacter(L'.');
        addCharacter(static_cast<wchar_t>(L'0' + number.digit(i)));
    }
    addCharacter(L'e');
    addCharacter(L'+');
    addInteger(static_cast<std::uint64_t>(number.pointPosition() - 1));
}

void VorQuantityText::addSymbol(const wchar_t* symbol)
{
    if (VorCharacters::isLetter(*symbol))
        addCharacter(L' ');
    for (; *symbol != 0; ++symbol)
        addCharacter(*symbol);
}
