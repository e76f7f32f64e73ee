// How the list shows the numbers of one tuple, and what somebody takes them for who reads them there.
//
//   const ListNumbers weights(explained, section, 3, shown, column);     of a list in pounds
//   weights.textOf(260.61)              ->  "574.55"
//   weights.withUnit("574.55")          ->  "574.55 lb"
//   *weights.valueOf("574.55")          ->  260.61...  kg, not quite what was shown
#pragma once

#include "ExplainedReport.h"

#include "VorBomTemplateItem.h"
#include "VorBomTypedValue.h"

#include "MekRoots/Exp/MEKUnit.h"

#include <optional>
#include <string>

namespace mekbom
{
class ListNumbers
{
public:
    // For the numbers that are shown as `shown` is, which stands under the `tuple`-th token of `section`, from 0, in
    // `column`. Nothing of `report` is copied; it must outlive this object, as the section does.
    ListNumbers(const ExplainedReport& report, const VorBomTemplateItem& section, int tuple,
                const VorBomTypedValue& shown, const ReportColumn& column);

    // The text that the list would show for a number, which is in the model's unit.
    std::string textOf(double number) const;

    // A text with the symbol of its unit behind it, where it needs one: not feet and inches, and not twice.
    std::string withUnit(const std::string& text) const;

    // The number, in the model's unit, that somebody reads in a text; nothing for a text that no number is read from.
    std::optional<double> valueOf(const std::string& text) const;

private:
    const ExplainedReport& m_report;
    const VorBomTemplateItem& m_section;
    int m_tuple;
    VorBomTypedValue m_shown;
    std::optional<MEKUnit> m_unit; // the column's; none for numbers that have no unit
    std::string m_symbol;          // its symbol, such as "kg"; empty without a unit
};
}
