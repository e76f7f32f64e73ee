// Digits are made from the last to the first, as a remainder by ten gives them. Told on 7 feet 6 8/16 inches:
//   addInteger(7), addCharacter(')     7'
//   addInteger(6), addCharacter( )     7'6 and a blank
//   addFraction(8, 16)                 7'6 1/2: eight is their greatest common divisor
// Nothing is checked against the room, which is enough for the longest quantity that VorUnitTransform puts together.
#include "VorQuantityText.h"

#include "MekRoots/Exp/VorCharacters.h"
#include "MekRoots/Exp/VorPowersOfTen.h"
#include "VorDecimalNumber.h"

#include <cstddef>
#include <numeric>

namespace
{
// The last digit of `number`.
wchar_t digitOf(std::uint64_t number)
{
    return static_cast<wchar_t>(L'0' + number % 10);
}

// Writes `number` into the `numDigits` characters before `end`, with zeros in front.
void writeDigits(std::uint64_t number, int numDigits, wchar_t* end)
{
    for (int i = 0; i < numDigits; ++i, number /= 10)
        *--end = digitOf(number);
}

// From 1 on: a zero is a digit too.
int countDigits(std::uint64_t number)
{
    const auto& powers = VorPowersOfTen::kAll<std::uint64_t>;
    std::size_t numDigits = 1;
    while (numDigits < powers.size() && number >= powers[numDigits])
        ++numDigits;
    return static_cast<int>(numDigits);
}
}

// Written from the last character to the first, so that nothing need be counted before.
VorString VorQuantityText::ofDecimal(bool isNegative, std::uint64_t parts, int numDecimals, int suppressLastZeros)
{
    if (suppressLastZeros != 0)
        for (; numDecimals > 0 && parts % 10 == 0; --numDecimals)
            parts /= 10;

    wchar_t text[kRoom];
    wchar_t* const pEnd = text + kRoom;
    wchar_t* pFirst = pEnd;
    if (numDecimals > 0)
    {
        for (; numDecimals > 0; --numDecimals, parts /= 10)
            *--pFirst = digitOf(parts);
        *--pFirst = L'.';
    }
    do
        *--pFirst = digitOf(parts);
    while ((parts /= 10) > 0);
    if (isNegative)
        *--pFirst = L'-';
    return VorString(pFirst, static_cast<int>(pEnd - pFirst));
}

// The length is moved on first, as digits are written from their end.
void VorQuantityText::addInteger(std::uint64_t number)
{
    const int numDigits = countDigits(number);
    m_nLength += numDigits;
    writeDigits(number, numDigits, m_text + m_nLength);
}

// 50 of hundred parts is ".50", or ".5" without last zeros; 5 of hundred is ".05", and 0 without last zeros is nothing.
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

// 8 of 16 parts are "1/2".
void VorQuantityText::addFraction(std::uint64_t part, std::uint64_t numParts)
{
    const std::uint64_t divisor = std::gcd(part, numParts);
    addInteger(part / divisor);
    addCharacter(L'/');
    addInteger(numParts / divisor);
}

// Comes only with numbers too large for kMostDigits digits before the point, so that the exponent is never negative.
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
