// Reads quantities as lists and drawings show them, and as people type them.
//
//   VorQuantityReader lengths(3);                        // plain numbers are millimetres
//   double value = 0;
//   lengths.read(L"2286", value)                    ->   1, value is 2286
//   lengths.read(L"7'-6 1/2\"", value)              ->   1, value is 2298.7
//   lengths.read(L"7.5 ft", value)                  ->   1, value is 2286
//   lengths.read(L"1,234.5", value)                 ->   0, value untouched
//   lengths.explain(L"1,234.5")                     ->   digits are not grouped, and the decimal sign is a point
//
// A quantity is
//   1. a number in the reader's unit, or with a unit of its kind behind it, by symbol or name: "2286", "7.5 ft",
//      "7.5ft", "6 1/2 in". Units that carry marks (feet and inches; degrees, minutes and seconds) have no plain
//      numbers: "90" alone is refused in them.
//   2. for lengths, feet and inches with their marks: "7'-6 1/2\"", "7' 6 1/2\"", "7'6.5\"", "6\"", "7.5'", "1/2\"".
//   3. for angles, degrees, minutes and seconds with theirs: "12°30'", "12° 30' 15.5\"", "12.5°".
// Several parts stand with a blank, a minus or nothing between them; only the last may have decimals or a fraction, and
// inches after feet stay below 12, minutes and seconds below 60. Printed marks (’ ” ′ ″) are taken as the typed ones.
// A number is decimal ("2286", "-.5", "1.5e+20") or has a fraction ("6 1/2", "6-1/2", "1/2"); one sign stands in front
// of the whole quantity. Blanks around it do not count. "inf" and "nan" are no quantities.
//
// The same in every locale. Objects are small, immutable and may be used from every thread at once.
#pragma once

#include "MekRoots/Exp/MekExport.h"
#include "MekRoots/Exp/VorString.h"

struct VorUnitDefinition;

class MEK_UNITS_API VorQuantityReader
{
public:
    // `unit` is a number of the catalogue: the unit of numbers that name none, and the kind of all quantities. Reports
    // "isUnit( unit )" for any other and reads millimetres then.
    explicit VorQuantityReader(int unit);

    // Sets `value` to the quantity in the model's unit; 0 with `value` untouched for a text that is none.
    int read(const VorString& text, double& value) const;

    // The same, and sets `namesUnit` to 1 where the quantity has a unit or marks of its own, and to 0 where it takes the
    // reader's: "6 1/2" does as "6.5" does. Untouched for a text that is no quantity.
    int read(const VorString& text, double& value, int& namesUnit) const;

    // What is wrong with a text that read() refuses, for the end of a message. Empty for a text that it takes, and for
    // one that has nothing of a quantity.
    VorString explain(const VorString& text) const;

private:
    const VorUnitDefinition* m_pUnit; // a row of the catalogue, never null
};
