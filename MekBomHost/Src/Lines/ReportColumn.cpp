// A heading never names a unit that the numbers below it are not in. Told on a column of weights, shown in pounds:
//   "Mass"          has no brackets                              ->  "Mass [lb]"
//   "Mass [kg]"     brackets with another unit of weights        ->  "Mass [lb]"
//   "Mass (kg)"     the same in parentheses                      ->  "Mass (lb)"
//   "Mass [net]"    brackets with no unit                        ->  "Mass [net] [lb]"
//   "Mass [lb]"     brackets with the unit itself                ->  as it is
#include "ReportColumn.h"

namespace mekbom
{
std::string ReportColumn::headingIn(const std::string& symbol) const
{
    if (symbol.empty() || label == symbol)
        return label;
    const LabelUnit named = LabelUnit::of(label);
    if (!isOfNumbers(named))
        return label + " [" + symbol + "]";
    return label.substr(0, named.begin + 1) + symbol + label.back();
}

const std::string& ReportColumn::unitOfNumbers() const
{
    return pUnitKind == nullptr ? unitSymbol : numbers.unitOf(VorBomTemplateUnits::unitTypeOf(pUnitKind->system));
}

// Words in parentheses are a remark.
std::string ReportColumn::otherBrackets() const
{
    const LabelUnit named = LabelUnit::of(label);
    const bool isRemark = named.pUnit == nullptr && !label.empty() && label.back() == ')';
    return unitSymbol.empty() || isOfNumbers(named) || isRemark ? std::string() : named.text;
}

bool ReportColumn::isOfNumbers(const LabelUnit& named) const
{
    const bool isOfKind = named.pUnit != nullptr && pUnitKind != nullptr && named.pUnit->system == pUnitKind->system;
    return isOfKind || (named.begin != std::string::npos && named.text == unitSymbol);
}
}
