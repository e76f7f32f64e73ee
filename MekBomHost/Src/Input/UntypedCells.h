// The cells of a column that the catalogue of tokens does not know, kept as texts until all have been seen and their
// one type is clear (TypeOfCells):
//
//   UntypedCells cells;
//   cells.add("4");
//   cells.add("M16");
//   cells.takeNext()   ->  the text "4", and not the number
#pragma once

#include "TextPool.h"
#include "TypeOfCells.h"

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
    // As of TypeOfCells. To be called before the first add().
    void takeNumbersAlone() { m_type.takeNumbersAlone(); }
    void setNotation(const NumberNotation& notation) { m_type.setNotation(notation); }

    // `cell` is not empty.
    void add(std::string_view cell);

    // What is known of all cells added.
    VorBomDataValue::eBomDataValueType type() const { return m_type.type(); }
    int numDecimals() const { return m_type.numDecimals(); }

    // The value of the first cell that has not been taken yet. To be called once for each cell, after the last add().
    VorBomDataValue takeNext();

private:
    TypeOfCells m_type;
    std::string m_bytes; // the cells one after the other
    std::vector<std::size_t> m_ends;
    std::size_t m_next = 0; // the cell to be taken next
    TextPool m_texts;
};
}
