// One row of the parts list, packed into two cache lines. Texts longer than seven characters do not fit.
#pragma once

#include "LimitText.h"

#include <string>
#include <vector>

struct alignas(64) LimitRow
{
    LimitText handle, position, mark, material, profile, phase, type, coating;
    double length;    // mm
    double weight;    // kg
    double paint;     // mm²
    double thickness; // mm
    double width;     // mm
    int quantity;
};
static_assert(sizeof(LimitRow) == 128);

// Ends the program with a message when a text is too long, or a mark is not a 'B' and a number without leading zeros,
// by which LimitOrder sorts it.
std::vector<LimitRow> readLimitRows(const std::string& path);
