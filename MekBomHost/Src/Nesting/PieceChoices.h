// How many of everything a list is about, beside what its rows say.
#pragma once

namespace mekbom
{
struct PieceChoices
{
    bool isFlattened = false; // rows are parts of the rows that they name as their parents
    int numSets = 1;          // all of it is made that often; at least 1

    bool changePieces() const { return isFlattened || numSets > 1; }
};
}
