// The number is taken apart and kept as text. Told on three numbers, up to the blank or letter behind them:
//   "6 1/2 in"    no fraction at the front, as no slash follows the 6; whole "6", then the fraction 1/2
//   "1/2 in"      a fraction at once: whole "0", numerator 1, denominator 2
//   "7.5e3mm"     whole "7", and the rest ".5e3" for the general scan of numbers
#include "VorQuantityNumber.h"

#include "MekRoots/Exp/VorCharacters.h"
#include "MekRoots/Exp/VorNumberText.h"

namespace
{
using VorCharacters::isDigit;

// Moves `pText` behind the digits at its front, which may be none.
std::wstring takeDigits(const wchar_t*& pText)
{
    const wchar_t* const pBegin = pText;
    while (isDigit(*pText))
        ++pText;
    return std::wstring(pBegin, pText);
}

// The caller has seen to it that there are at most kMostDigits of them, which 64 bits hold.
std::uint64_t numberOf(const std::wstring& digits)
{
    std::uint64_t number = 0;
    for (const wchar_t digit : digits)
        number = number * 10 + static_cast<std::uint64_t>(digit - L'0');
    return number;
}
}

// A fraction is tried first, since its numerator alone would be taken for a whole number.
bool VorQuantityNumber::scan(const wchar_t*& pText)
{
    const wchar_t* p = pText;
    if (!scanFraction(p))
    {
        m_whole = takeDigits(p);
        if (m_whole.empty() && (*p != L'.' || !isDigit(p[1])))
            return false;
        if (!scanFractionBehindWhole(p))
            scanRest(p);
    }
    pText = p;
    return true;
}

// A fraction without a whole number in front: "1/2" is 0 and 1/2. Any size will do, "3/2" too.
bool VorQuantityNumber::scanFraction(const wchar_t*& pText)
{
    const wchar_t* p = pText;
    const std::wstring numerator = takeDigits(p);
    if (*p != L'/')
        return false;
    const std::wstring denominator = takeDigits(++p);
    if (numerator.empty() || numerator.size() > kMostDigits || denominator.size() > kMostDigits ||
        numberOf(denominator) == 0)
        return false;
    m_whole = L"0";
    m_numerator = numberOf(numerator);
    m_denominator = numberOf(denominator);
    pText = p;
    return true;
}

// "6 1/2" and "6-1/2", behind the 6. What looks like a fraction but is not smaller than one is left where it stands.
bool VorQuantityNumber::scanFractionBehindWhole(const wchar_t*& pText)
{
    const wchar_t* p = pText;
    if (*p == L'-')
        ++p;
    else
        while (*p == L' ')
            ++p;
    VorQuantityNumber fraction;
    if (p == pText || m_whole.empty() || m_whole.size() > kMostDigits || !fraction.scanFraction(p) ||
        fraction.m_numerator >= fraction.m_denominator)
        return false;
    m_numerator = fraction.m_numerator;
    m_denominator = fraction.m_denominator;
    pText = p;
    return true;
}

// Point, decimals and exponent; an exponent without digits is left where it stands, as "7.5 e" is "7.5" and a letter.
void VorQuantityNumber::scanRest(const wchar_t*& pText)
{
    const wchar_t* const pBegin = pText;
    if (*pText == L'.')
        takeDigits(++pText);
    if (*pText == L'e' || *pText == L'E')
    {
        const wchar_t* p = pText + 1;
        if (*p == L'+' || *p == L'-')
            ++p;
        if (!takeDigits(p).empty())
            pText = p;
    }
    m_rest.assign(pBegin, pText);
}

std::uint64_t VorQuantityNumber::wholeNumber() const
{
    return numberOf(m_whole);
}

// 1'-0.274" is 12 carried and the number 0.274. They are put together as text, "12.274", and read at once: the sum of
// the two doubles is 12.274000000000001.
double VorQuantityNumber::toDouble(std::uint64_t carried) const
{
    if (m_denominator != 0)
        return static_cast<double>(carried + wholeNumber()) +
               static_cast<double>(m_numerator) / static_cast<double>(m_denominator);
    const bool isCarriedTo = carried > 0 && m_whole.size() <= kMostDigits;
    const std::wstring text = (isCarriedTo ? std::to_wstring(carried + wholeNumber()) : m_whole) + m_rest;
    const wchar_t* pEnd = nullptr;
    return VorNumberText::scanDouble(text.c_str(), pEnd, 0);
}
