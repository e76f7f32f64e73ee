// What a user says of how parts lists are to be read. What is left empty is found in the file.
#pragma once

#include "HeadingChoices.h"

#include <string>
#include <vector>

namespace mekbom
{
struct InputChoices
{
    std::vector<HeadingMapping> headings; // that the columns' tokens are known by
    std::string sheet;                    // of a workbook
};
}
