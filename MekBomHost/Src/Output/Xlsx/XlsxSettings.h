// How a list is written as a workbook, where there is a choice.
#pragma once

#include "OutputChoices.h"
#include "WorkbookLimits.h"

#include <cstdint>

namespace mekbom
{
struct XlsxSettings
{
    bool hasNumbersBeside = false; // feet and inches, fractions, degrees and minutes also in decimals
    ePaper paper = kA4Paper;       // that pages are set up for

    // Rows of a sheet before the list goes on in a further one; there must be some for more than what stands above the
    // list.
    std::uint32_t mostRows = WorkbookLimits::kMostRows;
};
}
