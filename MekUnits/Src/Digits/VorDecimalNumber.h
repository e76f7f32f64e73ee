// The decimal number that a person sees for a double, with the arithmetic that units need, on its digits.
//
//   VorDecimalNumber number(0.680388555);  // kilograms: 6 8 0 3 8 8 5 5 5, none of them before the point
//   number.multiply(100000000);
//   number.divide(45359237);               // pounds: 1 5 and zeros, one before the point
//   number.toDouble()                  ->  1.5
//
// Doubles are kept apart by their shortest text; a division of doubles would give 1.4999999999999998 here and round the
// half pound down. Has no sign.
//
// Invariants: at least one digit; the value is 0.d1d2d3... times ten to m_nPointPosition.
#pragma once

#include "VorRoundedNumber.h"

#include <cstdint>

class VorDecimalNumber
{
public:
    // The shortest decimal text that identifies the size of `value`, which must be finite.
    explicit VorDecimalNumber(double value);

    // Exact. The factor is at most VorUnitDefinition::kLargestFactor. A number has room for one such product, so it is
    // multiplied once, and before anything else.
    void multiply(std::uint64_t factor);

    // Exact, or cut off after kQuotientDigits digits, far more than tell two doubles apart. The divisor is at most
    // VorUnitDefinition::kLargestFactor.
    void divide(std::uint64_t divisor);

    // Keeps the first `numDigits` digits, rounded half up.
    void roundToDigits(int numDigits);

    // Rounds half up to parts of one; 0 with `rounded` untouched when more than VorRoundedNumber::kMostDigits digits
    // would stand before the point. `numParts` is at most a thousand million.
    int roundToParts(unsigned int numParts, VorRoundedNumber& rounded) const;

    // The double next to this number; infinite when it is too large.
    double toDouble() const;

    int numDigits() const { return m_nNumDigits; }
    int digit(int index) const { return m_digits[index]; }
    int pointPosition() const { return m_nPointPosition; }

private:
    static constexpr int kQuotientDigits = 40;
    static constexpr int kMostDigits = 64; // 17 of a double, 19 of a factor, 10 of a number of parts, one of a carry

    void putInFront(std::uint64_t number);
    void dropLastZeros();
    VorDecimalNumber fraction() const;
    std::uint64_t wholePart() const;

    unsigned char m_digits[kMostDigits]; // 0 to 9
    int m_nNumDigits = 0;
    int m_nPointPosition = 0; // digits before the point; negative for zeros after it
};
