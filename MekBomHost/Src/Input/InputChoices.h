// What a user says of how parts lists are to be read. What is left empty is found in the file.
#pragma once

#include <string>

namespace mekbom
{
struct InputChoices
{
    std::string sheet; // of a workbook
};
}
