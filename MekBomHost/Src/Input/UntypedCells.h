// The cells of a column that the catalogue of tokens does not know, kept as texts until all have been seen and their
// one type is clear:
//
//   "4", "12"            ->  whole numbers
//   "4", "12.5"          ->  numbers
//   "4", "12.5", "M16"   ->  texts
//   "0417", "12"         ->  texts, as are whole numbers beyond 32 bits: articles and orders are numbered so, and would
//                            not be shown as they are written
#pragma once

#include "TextPool.h"

#include "VorBomDataValue.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace mekbom
{
class UntypedCells
{
public:
    // `cell` is not empty.
    void add(std::string_view cell);

    // The one type that all cells added have: kIntData, kDoubleData or kStringData; kStringData when there are none.
    VorBomDataValue::eBomDataValueType type() const;

    // The value of the first cell that has not been taken yet. To be called once for each cell, after the last add().
    VorBomDataValue takeNext();

private:
    std::string m_bytes; // the cells one after the other
    std::vector<std::size_t> m_ends;
    std::size_t m_next = 0; // the cell to be taken next
    bool m_allAreInts = true;
    bool m_allAreWhole = true;
    bool m_allAreNumbers = true;
    TextPool m_texts;
};
}
