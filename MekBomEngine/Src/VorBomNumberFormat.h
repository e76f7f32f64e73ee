// How a host shows the numbers under one tuple of a section, in place of the template's units: with a fixed number of
// decimals, say, or in a unit that no other column has.
//
//   class Cents : public VorBomNumberFormat
//   {
//   public:
//       VorString textOf(int value) const override { return VorString(std::to_wstring(value * 100LL).c_str()); }
//       VorString textOf(double value) const override { return VorString(std::to_wstring(std::llround(value * 100)).c_str()); }
//   };
//   const Cents cents;
//   reportTemplate.setNumberFormat(details, 2, &cents);   // the third tuple of these details
//
// One number must always give the same text: texts are kept and shown again. Lines merge when these texts are equal, as
// with any others.
#pragma once

#include "MekRoots/Exp/VorString.h"

class VorBomNumberFormat
{
public:
    virtual ~VorBomNumberFormat() = default;

    virtual VorString textOf(int value) const = 0;
    virtual VorString textOf(double value) const = 0; // in internal units
};
