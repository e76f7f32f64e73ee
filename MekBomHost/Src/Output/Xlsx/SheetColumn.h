// A column of a list as a sheet has it: what its heading says, and whether its cells hold numbers or texts.
//
//   "Weight [kg]", 8.5744 printed "8.57"            ->  the number 8.5744 as "0.00"
//   "Length", 1530.35 mm printed 5' 1/4"            ->  the text; on request, 60.25 in a column "Length [in]" beside it
//   "Mark", the text "0417"                         ->  the text
//
// A column has numbers or texts, and not both by turns, since its sum would leave the texts out: where lengths are shown
// in fractions, 7 in is a text like 7 1/2.
#pragma once

#include "CellNumber.h"
#include "ReportColumn.h"
#include "ShownText.h"

#include "VorBomTypedValue.h"

#include "MekRoots/Exp/MEKUnit.h"

#include <optional>
#include <string>

namespace mekbom
{
class SheetColumn
{
public:
    // `column` is read while this is constructed, and not looked at later.
    explicit SheetColumn(const ReportColumn& column);

    const std::string& heading() const { return m_heading; }
    bool isAlignedRight() const { return m_isAlignedRight; }

    // How wide a text may be before it goes on in a further line; numbers are not bound by it.
    int textLimit() const { return m_textLimit; }

    // The number that a cell holds which prints `text` for `value`; none where it holds the text.
    std::optional<CellNumber> numberIn(const ShownText& text, const VorBomTypedValue& value) const;

    // Whether the list prints quantities here in a way that no number shows, so that a second column can have them in
    // decimals.
    bool hasNumbersBeside() const { return m_besideUnit.has_value(); }

    // Of a column that has them.
    const std::string& besideHeading() const { return m_besideHeading; }
    std::optional<CellNumber> numberBeside(const VorBomTypedValue& value) const;

private:
    void addNumbersBeside(const ReportColumn& column);

    std::string m_heading;
    bool m_isAlignedRight;
    int m_textLimit;
    std::optional<MEKUnit> m_unit;       // of numbers that are not in the model's unit
    std::optional<MEKUnit> m_besideUnit; // of the column beside it
    std::string m_besideHeading;
};
}
