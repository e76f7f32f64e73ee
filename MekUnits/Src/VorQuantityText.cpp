#include "VorQuantityText.h"

#include "VorDecimalNumber.h"

#include <cstdlib>
#include <numeric>

namespace
{
bool isLetter(wchar_t character)
{
    return (character >= L'a' && character <= L'z') || (character >= L'A' && character <= L'Z');
}

// Writes `number` into the `numDigits` characters before `end`, with zeros in front.
void writeDigits(std::uint64_t number, int numDigits, wchar_t* end)
{
    for (int i = 0; i < numDigits; ++i, number /= 10)
        *--end = static_cast<wchar_t>(L'0' + number % 10);
}

// Writes `number` before `end`, and at least `numDigits` digits of it; where the digits begin.
wchar_t* writeBackwards(std::uint64_t number, int numDigits, wchar_t* end)
{
    wchar_t* const pLatest = end - numDigits;
    for (; number > 0 || end > pLatest; number /= 10)
        *--end = static_cast<wchar_t>(L'0' + number % 10);
    return end;
}

int countDigits(std::uint64_t number)
{
    int numDigits = 1;
    for (; number >= 10; number /= 10)
        ++numDigits;
    return numDigits;
}
}

VorString VorQuantityText::ofDecimal(bool isNegative, std::uint64_t parts, int numDecimals, int suppressLastZeros)
{
    constexpr int kDecimalRoom = 24; // sign, point and the digits of 64 bits
    wchar_t text[kDecimalRoom];
    wchar_t* pEnd = text + kDecimalRoom;
    wchar_t* pFirst = writeBackwards(parts, numDecimals + 1, pEnd);
    wchar_t* const pFirstDecimal = pEnd - numDecimals;
    if (suppressLastZeros != 0)
        while (pEnd != pFirstDecimal && pEnd[-1] == L'0')
            --pEnd;
    if (pEnd != pFirstDecimal)
    {
        --pFirst;
        for (wchar_t* pDigit = pFirst; pDigit != pFirstDecimal - 1; ++pDigit)
            pDigit[0] = pDigit[1];
        pFirstDecimal[-1] = L'.';
    }
    if (isNegative)
        *--pFirst = L'-';
    return VorString(pFirst, static_cast<int>(pEnd - pFirst));
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
    if (isLetter(*symbol))
        addCharacter(L' ');
    for (; *symbol != 0; ++symbol)
        addCharacter(*symbol);
}
