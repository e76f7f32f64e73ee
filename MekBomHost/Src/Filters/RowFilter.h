// Which rows of the data a list is about, by what they have.
//
//   ""                                            all rows
//   "%BoltName"                                   rows that have a bolt name
//   "%Weight, !%BoltName"                         rows with a weight and no bolt name
//   "%Material = 'S355' and %Length > 6 m"        rows of that grade that are longer than six metres
//   "%Phase < 10 or not (%Role = 'Plate')"        "and" binds tighter than "or", "not" tighter than both
//
// A comparison is a token, one of = != <> < <= > >=, and what the datum is compared with:
//   1. Numbers with the unit of their kind: 6 m, 6000, 7'-6", 250 lb. Lengths, weights and angles without a unit are in
//      mm, kg and rad; other quantities must name theirs. Two numbers closer than 1e-6 in these units are equal.
//   2. Texts, in quotes of either kind or, where no comma, parenthesis or "and" is in them, without: 'S355', S355. They
//      are equal when all their characters are; before and behind are in natural order, P2 before P10.
// A row that lacks the datum meets no comparison but !=. A comma is "and", an exclamation mark is "not", <> is !=;
// words may be in capitals. A name with blanks stands in braces: %{Cost code}.
//
//   RowFilter filter;
//   RowFilter::parse("%Length > 6 m", filter)    ->  nothing wrong
//   filter.settle(units, typeOf)                 ->  nothing wrong: %Length is a length, 6 m are 6000 mm
//   filter.apply(data)                           ->  3, as many rows were removed
//
// Without a condition, as it starts, a filter accepts all rows. Copies are independent.
#pragma once

#include "Finding.h"
#include "RowCondition.h"

#include "VorBomData.h"
#include "VorBomDataValue.h"
#include "VorBomTemplateUnits.h"

#include "MekRoots/Exp/VorString.h"

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace mekbom
{
class RowFilter
{
public:
    // Answers of what type the values of a token are; kUnknownData when no row has any.
    using TypeOf = std::function<VorBomDataValue::eBomDataValueType(const VorString&)>;

    // Sets `filter` to what `text`, UTF-8, says. When that is no filter: what is wrong with it, still without a place,
    // and `filter` untouched.
    static std::optional<Finding> parse(std::string_view text, RowFilter& filter);

    // The text as it was given, without blanks around it; empty for the filter without conditions.
    const std::string& text() const { return m_text; }

    // The conditions in their order, and how their answers are joined; both empty for the filter without conditions.
    const std::vector<RowCondition>& conditions() const { return m_conditions; }
    const std::vector<FilterStep>& steps() const { return m_steps; }

    // The tokens that conditions are about, in their order, each as often as it is named.
    std::vector<VorString> tokens() const;
    bool names(const VorString& token) const;

    // Takes what comparisons compare with as quantities of the kind that `units` give their token, and as numbers or
    // texts as the token's values are. To be called before apply(). Answers what is wrong, still without a place:
    //   found "6 kg", expected a length such as 6 m or 6000
    std::optional<Finding> settle(const VorBomTemplateUnits& units, const TypeOf& typeOf);

    // Removes and destroys the top-level rows of `data` that the list is not about; the others keep their order.
    // Answers how many went.
    int apply(VorBomData& data) const;

private:
    bool accepts(const VorBomDataRow& row, std::vector<bool>& answers) const;

    std::string m_text;
    std::vector<RowCondition> m_conditions;
    std::vector<FilterStep> m_steps; // how they are joined
};
}
