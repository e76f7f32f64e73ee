// The orders of texts as function objects, for the standard library's sorting and ordered containers.
//
//   std::map<VorString, int, VorStringLess> settings;
//   std::sort(tokens.begin(), tokens.end(), VorStringLess());
#pragma once

#include "VorString.h"

// As VorString::compare says: by the numeric value of the characters.
struct VorStringLess
{
    bool operator()(const VorString& a, const VorString& b) const { return VorString::compare(a, b) < 0; }
};

// As VorString::strCompareNoCase says: the same with A-Z folded to a-z.
struct VorStringLessNoCase
{
    bool operator()(const VorString& a, const VorString& b) const { return VorString::strCompareNoCase(&a, &b) < 0; }
};
