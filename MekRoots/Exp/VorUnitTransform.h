// Turns a value of the model into one unit and into the text that a list shows, and back.
//
//   const VorUnitTransform feet(13, 1016);             // feet and inches to 1/16"
//   feet.toDisplayUnits(2286.0)                        ->  90.0, in inches
//   feet.formatValue(2286.0, 1, 0, 1, 1, L'-')         ->  7'-6"
//   feet.formatValue(-31.75, 1, 0, 1, 1, L'-')         ->  -1 1/4"
//
//   const VorUnitTransform area(3003, 2);              // m² to two decimals
//   area.formatValue(167876533.0, 1, 0, 1, 1, L' ')    ->  167.88
//   area.formatValue(2500000.0, 1, 1, 1, 1, L' ')      ->  2.5 m²
//
// How a number is shown:
//   1. The number is the value converted to the unit, taken as the shortest decimal text that identifies the double:
//      2.675 is 2.675, although its bits are a little below.
//   2. It is rounded half away from zero to the decimals, or to the fraction, of the unit's format: 2.675 is "2.68" at
//      two decimals. Rounding carries: 11 31/32" is 1' at sixteenths.
//   3. A negative number has one leading minus; what rounds to zero has none.
//   4. Up to 15 digits stand before the point. A number with more is written with an exponent and as many of 15 digits
//      as are not trailing zeros ("1.5e+20"); in feet and inches it is that number of inches, in degrees, minutes and
//      seconds that of seconds. Small numbers round to zero and never need an exponent.
//   5. Infinite and undefined values are "inf", "-inf" and "nan", without a symbol. So is a number that is too large
//      for a double in this unit.
// The characters are the same in every locale. Only the resulting text is allocated.
//
// Objects are small, immutable and may be used from every thread at once.
#pragma once

#include "MekExport.h"
#include "VorString.h"
#include "VorUnitsTransformArray.h"

struct VorUnitDefinition;

class MEK_UNITS_API VorUnitTransform
{
public:
    // `unit` is a number of the catalogue (VorUnitsTransformArray). Reports "isUnit( unit )" for any other and
    // then shows the model's own numbers, without a symbol.
    // `format` is how precisely values are shown:
    //   0...999      decimals, as many as the last digit says: 2, 112 and 552 are two, 81 is one. The other digits
    //                have no effect. A negative format is 0.
    //   1000 + d     a whole number and a fraction, reduced, with denominator d from 1 (whole numbers alone) to 256:
    //                1016 is to the sixteenth. 1000 counts as 1001, anything past 1256 as 1256.
    // In feet and inches both are parts of an inch: 2286.127 mm is 7'-6.01" with format 2 and 7'-6" with 1016. In
    // degrees, minutes and seconds they are parts of a second.
    VorUnitTransform(int unit, int format);
    VorUnitTransform(const VorUnitTransform&) = default;
    VorUnitTransform& operator=(const VorUnitTransform&) = default;

    // The operations' order is fixed: clients call the formatting one as the fourth.
    virtual ~VorUnitTransform() = default;

    // The double next to the exact quotient of the value's shortest decimal text and the unit's exact factor; of the
    // neighbours the one with at most 15 digits, if toInternalUnits gives the very same value for it: what was read as
    // 1 13/32" or as 0.25 lb/ft is 1.40625 and 0.25 again. Feet and inches convert to inches; degrees, minutes and
    // seconds to seconds. Infinite and undefined values stay.
    virtual double toDisplayUnits(double internalValue) const;

    // The double next to the exact product of the value's shortest decimal text and the unit's exact factor: 1.005 m²
    // is 1005000 mm². Feet and inches convert from inches, degrees, minutes and seconds from seconds. Infinite and
    // undefined values stay.
    virtual double toInternalUnits(double displayValue) const;

    // The text of a value of the model. All flags are 0 or 1.
    //   suppressLastZeros   drops trailing zeros of decimals, and the point after them: "7.50" is "7.5", "7.00" is "7";
    //                       and of angles the seconds, then the minutes, that are zero: 12°30'0" is 12°30'
    //   showUnitSymbol      appends the symbol: "2286 mm", "90°". Feet and inches, degrees, minutes and seconds carry
    //                       their marks anyway.
    //   suppressZeroFeet    0'-6" is 6", 0'-0 1/2" is 1/2"
    //   suppressZeroInch    7'-0" is 7'; inches with a fraction stay: 7'-0 1/2"
    //   feetInchSeparator   stands between feet and inches: 7'-6", 7' 6"; nothing does when it is a zero character
    // Zero still shows: 0'-0", suppressing feet (or both) 0", suppressing inches alone 0'.
    virtual VorString formatValue(double internalValue, int suppressLastZeros, int showUnitSymbol, int suppressZeroFeet,
                                  int suppressZeroInch, wchar_t feetInchSeparator) const;

    // The kind of quantity that the unit measures; kDistance for a number that is not in the catalogue.
    VorUnitsTransformArray::eSystems system() const;

private:
    VorString formatInPieces(double internalValue, int suppressLastZeros, int showUnitSymbol, int suppressZeroFeet,
                             int suppressZeroInch, wchar_t feetInchSeparator) const;

    const VorUnitDefinition* m_pUnit; // a row of the catalogue, never null
    int m_nDecimals;                  // -1 for fractions
    unsigned int m_nParts;            // parts of one that are shown: 10 to the decimals, or the fraction's denominator
    double m_dPartsPerInternalUnit;   // to about 15 digits
};
