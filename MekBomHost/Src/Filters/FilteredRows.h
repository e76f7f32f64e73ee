// What a filter has left out of a list.
#pragma once

#include <string>

namespace mekbom
{
struct FilteredRows
{
    std::string condition;       // UTF-8, as the user wrote it: "%Material = 'S355'"
    bool isFromTemplate = false; // else it was given for this one list
    int numRows = 0;             // that went; no filter before it had taken them
};
}
