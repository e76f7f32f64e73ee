// The one type of the cells of a column that the catalogue of tokens does not know, narrowed down while they come in:
//
//   "4", "12"               ->  whole numbers
//   "4", "12.5"             ->  numbers, as are whole numbers beyond 32 bits
//   "4", "12.5", "M16"      ->  texts
//   "0417", "12"            ->  texts, as is whatever else would not be shown as it is written (NumberReader::isPlain):
//                               articles and orders are numbered so
//
// Of a column that must be numbers the cells have been checked by whoever adds them; then "0417" is a number, too. No
// cell is kept.
#pragma once

#include "NumberNotation.h"

#include "VorBomDataValue.h"

#include <string>
#include <string_view>

namespace mekbom
{
class TypeOfCells
{
public:
    // From here on all cells are numbers, in whatever form NumberReader reads. To be called before the first add().
    void takeNumbersAlone() { m_mustBeNumbers = true; }

    // How their numbers are written, else the plain way: with a decimal comma "12,5" is one. Digits in groups stay texts,
    // since their number would not be shown as it is written. To be called before the first add().
    void setNotation(const NumberNotation& notation) { m_notation = notation; }

    // `cell` is not empty.
    void add(std::string_view cell);

    // The one type that all cells added have: kIntData, kDoubleData or kStringData; kStringData when there are none.
    VorBomDataValue::eBomDataValueType type() const;

    // The most decimals that a cell is written with, 0 to 15. Only where the cells are numbers.
    int numDecimals() const { return m_numDecimals; }

    // The cell as NumberReader has numbers; empty for what is none as it stands. Good until the next call.
    std::string_view numberIn(std::string_view cell);

private:
    NumberNotation m_notation;
    std::string m_plain; // what numberIn() gave last, where the notation is not the plain one
    bool m_mustBeNumbers = false;
    bool m_isEmpty = true;
    bool m_allAreInts = true;
    bool m_allAreNumbers = true;
    int m_numDecimals = 0;
};
}
