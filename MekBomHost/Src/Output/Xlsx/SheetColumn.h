// A column of a list as a sheet has it: what its heading says, and whether its cells hold numbers or texts.
//
//   "Weight [kg]", 8.5744 printed "8.57"            ->  the number 8.5744 as "0.00"
//   "Length [ft-in]", 2293.9 mm printed 7' 6 5/16"  ->  the text; on request, 7.526 in a column "Length [ft]" beside it
//   "Mark", the text "0417"                         ->  the text
//
// A column has numbers or texts, and not both by turns, since its sum would leave the texts out: where lengths are shown
// in fractions, 7 in is a text like 7 1/2.
#pragma once

#include "ReportColumn.h"
#include "SheetNumber.h"
#include "ShownText.h"

#include "VorBomTypedValue.h"

#include <optional>
#include <string>

namespace mekbom
{
class SheetColumn
{
public:
    // `column` is not owned and outlives this object.
    explicit SheetColumn(const ReportColumn& column);

    const std::string& heading() const { return m_heading; }
    bool isAlignedRight() const { return m_column.isAlignedRight; }

    // How wide a text may be before it goes on in a further line; numbers are not bound by it.
    int textLimit() const { return m_textLimit; }

    // The number that a cell holds which prints `text` for `value`; none where it holds the text.
    std::optional<SheetNumber> numberIn(const ShownText& text, const VorBomTypedValue& value) const;

    // Whether the list prints quantities here in a way that no number shows, so that a second column can have them in
    // decimals.
    bool hasNumbersBeside() const { return !m_column.hasDecimals; }

    // Of a column that has them: the heading of the second column, and the number in it.
    //   "Length [ft-in]"  ->  "Length [ft]"      "Length [in]", in fractions  ->  "Length [in] (decimal)"
    std::string besideHeading() const;
    std::optional<SheetNumber> numberBeside(const VorBomTypedValue& value) const;

private:
    const ReportColumn& m_column;
    std::string m_heading;
    int m_textLimit;
};
}
