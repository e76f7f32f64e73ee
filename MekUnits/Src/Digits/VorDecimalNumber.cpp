// 0.680388555 kg in pounds of 45359237 / 100000000 kg, step by step:
//   read         digits 680388555, the point before them            0.680388555
//   multiply     by 100000000: every digit times that, with carry   68038855.5, the point behind 8 digits
//   divide       by 45359237: 68038855 holds it once, the rest and the next digit, 22679618 and 5, five times, no rest
//                                                                   1.5
// Every step keeps at most 64 digits on the stack; nothing is allocated.
#include "VorDecimalNumber.h"

#include <charconv>
#include <cmath>
#include <cstring>
#include <limits>
#include <system_error>

VorDecimalNumber::VorDecimalNumber(double value)
{
    char text[32]; // "1.7976931348623157e+308"
    const std::to_chars_result end =
        std::to_chars(text, text + sizeof(text), std::fabs(value), std::chars_format::scientific);
    const char* p = text;
    for (; *p != 'e'; ++p)
        if (*p != '.')
            m_digits[m_nNumDigits++] = static_cast<unsigned char>(*p - '0');

    int exponent = 0;
    // The plus that std::to_chars writes is none that std::from_chars reads.
    std::from_chars(p[1] == '+' ? p + 2 : p + 1, end.ptr, exponent);
    m_nPointPosition = exponent + 1;
}

// From the last digit to the first, as on paper; the carry is a number of many digits. It stays below the factor, so
// that what is added up in a step stays below ten times the factor, within 64 bits.
void VorDecimalNumber::multiply(std::uint64_t factor)
{
    std::uint64_t carry = 0;
    for (int i = m_nNumDigits - 1; i >= 0; --i)
    {
        carry += m_digits[i] * factor;
        m_digits[i] = static_cast<unsigned char>(carry % 10);
        carry /= 10;
    }
    putInFront(carry);
}

// Sets the digits of `number` before the first one; those of zero are none.
void VorDecimalNumber::putInFront(std::uint64_t number)
{
    int numNewDigits = 0;
    for (std::uint64_t rest = number; rest > 0; rest /= 10)
        ++numNewDigits;
    std::memmove(m_digits + numNewDigits, m_digits, static_cast<std::size_t>(m_nNumDigits));
    m_nNumDigits += numNewDigits;
    m_nPointPosition += numNewDigits;
    for (int i = numNewDigits - 1; i >= 0; --i, number /= 10)
        m_digits[i] = static_cast<unsigned char>(number % 10);
}

// Long division, digit by digit, as on paper. Zeros at the front of the quotient are not kept; the point moves instead.
void VorDecimalNumber::divide(std::uint64_t divisor)
{
    const VorDecimalNumber dividend = *this;
    std::uint64_t remainder = 0;
    m_nNumDigits = 0;
    for (int i = 0; (i < dividend.m_nNumDigits || remainder > 0) && m_nNumDigits < kQuotientDigits; ++i)
    {
        remainder = remainder * 10 + (i < dividend.m_nNumDigits ? dividend.m_digits[i] : 0U);
        const std::uint64_t quotient = remainder / divisor;
        remainder %= divisor;
        if (m_nNumDigits == 0 && quotient == 0)
            --m_nPointPosition;
        else
            m_digits[m_nNumDigits++] = static_cast<unsigned char>(quotient);
    }
    if (m_nNumDigits == 0)
        m_digits[m_nNumDigits++] = 0;
}

// 9.96 to two digits: the 6 rounds up, both nines become zeros, and a 1 is put before them. Without the zeros that is
// 1, with two digits before the point: 10.
void VorDecimalNumber::roundToDigits(int numDigits)
{
    if (numDigits >= m_nNumDigits)
        return;
    const bool roundsUp = m_digits[numDigits] >= 5;
    m_nNumDigits = numDigits;
    if (roundsUp)
    {
        int i = numDigits - 1;
        for (; i >= 0 && m_digits[i] == 9; --i)
            m_digits[i] = 0;
        if (i >= 0)
            ++m_digits[i];
        else
            putInFront(1);
    }
    dropLastZeros();
}

void VorDecimalNumber::dropLastZeros()
{
    while (m_nNumDigits > 1 && m_digits[m_nNumDigits - 1] == 0)
        --m_nNumDigits;
}

// The whole part and the fraction are rounded apart: of 11.96875 in sixteenths, 0.96875 is 15.5 parts, rounded 16,
// which is one more whole: 12 and no parts. Parts such as 0.03 begin with a zero behind the point, which is no digit of
// theirs (lastDigit is negative); they are rounded down.
int VorDecimalNumber::roundToParts(unsigned int numParts, VorRoundedNumber& rounded) const
{
    if (m_nPointPosition > VorRoundedNumber::kMostDigits)
        return 0;

    VorDecimalNumber parts = fraction();
    parts.multiply(numParts);
    const int lastDigit = parts.m_nPointPosition; // the first one behind the whole parts
    const bool roundsUp = lastDigit >= 0 && lastDigit < parts.m_nNumDigits && parts.m_digits[lastDigit] >= 5;

    std::uint64_t whole = wholePart();
    std::uint64_t part = parts.wholePart() + (roundsUp ? 1 : 0);
    if (part == numParts)
    {
        part = 0;
        ++whole;
    }
    if (whole >= VorRoundedNumber::kWholeLimit)
        return 0;
    rounded.whole = whole;
    rounded.part = part;
    return 1;
}

// What stands behind the point: of 12.34 it is 0.34, of 0.0012 the number itself. Where nothing does, it is the digit
// 0, as a number has at least one.
VorDecimalNumber VorDecimalNumber::fraction() const
{
    VorDecimalNumber result(0.0);
    const int numBefore = m_nPointPosition > 0 ? m_nPointPosition : 0;
    if (numBefore >= m_nNumDigits)
        return result;
    result.m_nNumDigits = m_nNumDigits - numBefore;
    result.m_nPointPosition = m_nPointPosition - numBefore;
    std::memcpy(result.m_digits, m_digits + numBefore, static_cast<std::size_t>(result.m_nNumDigits));
    return result;
}

// What stands before the point, which is at most 15 digits here. Zeros at the end may not be among the digits: 1200 can
// be the digits 1 and 2 with the point behind four.
std::uint64_t VorDecimalNumber::wholePart() const
{
    std::uint64_t whole = 0;
    for (int i = 0; i < m_nPointPosition; ++i)
        whole = whole * 10 + (i < m_nNumDigits ? m_digits[i] : 0U);
    return whole;
}

// As text without a point, "15e-1", which std::from_chars turns into the nearest double.
double VorDecimalNumber::toDouble() const
{
    char text[kMostDigits + 16];
    char* p = text;
    for (int i = 0; i < m_nNumDigits; ++i)
        *p++ = static_cast<char>('0' + m_digits[i]);
    *p++ = 'e';
    p = std::to_chars(p, text + sizeof(text), m_nPointPosition - m_nNumDigits).ptr;

    double value = 0;
    if (std::from_chars(text, p, value).ec == std::errc::result_out_of_range)
        return m_nPointPosition > 0 ? std::numeric_limits<double>::infinity() : 0.0;
    return value;
}
