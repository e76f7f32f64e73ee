// How arrays and their policies report misuse: under one source path and, whatever header they stand in, under the
// lines by which callers have always told these reports apart.
//
//   VorArrayMisuse::report(L"isValid( index )", VorArrayMisuse::kModifiableElementLine);
//   VorAssert::reports()  ->  one entry { "isValid( index )", "MekRoots/Exp/VorArray", 516, count 1 }
#pragma once

#include "VorAssert.h"

namespace VorArrayMisuse
{
// On purpose: fixed numbers, and no lines of a file. Pinned by VorArrayMisuseTest.
constexpr int kElementsToAppendLine = 103;
constexpr int kElementsToDestroyLine = 115;
constexpr int kFirstElementLine = 474;
constexpr int kLastElementLine = 494;
constexpr int kModifiableElementLine = 516;
constexpr int kConstantElementLine = 526;
constexpr int kLogicalLengthLine = 606;
constexpr int kPhysicalLengthLine = 657;
constexpr int kSwapLine = 1058;

inline void report(const wchar_t* expression, int line)
{
    VorAssert::vorAssert(expression, L"MekRoots/Exp/VorArray", line);
}
}
