// The number that says how precisely a unit is shown, the third of a MEKUnit.
//
//   2, 112, 552   two decimals, by the last digit
//   1016          a fraction with sixteen parts
//   1000, -5      what makes no sense is taken as the nearest that does: whole numbers
//   1300          and 256 parts
#pragma once

#include <algorithm>

namespace VorUnitFormat
{
constexpr int kFirstFraction = 1000; // the format of no parts; existing hosts keep formats in their settings
constexpr int kMostParts = 256;      // of one, in a fraction

constexpr bool isFraction(int format)
{
    return format >= kFirstFraction;
}

// Of no fraction.
constexpr int decimalsOf(int format)
{
    return format > 0 ? format % 10 : 0;
}

// Of a fraction.
constexpr int denominatorOf(int format)
{
    return std::clamp(format - kFirstFraction, 1, kMostParts);
}
}
