// What a user says of how parts lists are to be read. What is left empty is found in the file.
#pragma once

#include "HeadingChoices.h"
#include "NumberNotation.h"
#include "TextEncoding.h"

#include <optional>
#include <string>
#include <vector>

namespace mekbom
{
struct InputChoices
{
    std::optional<char> delimiter;                               // between the fields of CSV
    std::optional<TextEncoding::eEncoding> encoding;             // of CSV
    NumberNotation::eSign decimalSign = NumberNotation::kNoSign; // of numbers that are texts
    std::vector<HeadingMapping> headings;                        // that the columns' tokens are known by
    std::string sheet;                                           // of a workbook
};
}
