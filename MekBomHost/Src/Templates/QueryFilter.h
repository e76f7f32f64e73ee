// Which rows of the data a list is about, by the data they have. The engine keeps a template's query filter as text;
// this is how the program reads it.
//
//   ""                       all rows
//   "%BoltName"              rows that have a bolt name
//   "!%BoltName"             rows that have none
//   "%Weight, !%BoltName"    rows for which all of this holds
//
//   QueryFilter filter;
//   QueryFilter::parse("%Weight, !%BoltName", filter)   ->  1
//   filter.names(L"%BoltName")                          ->  true: rows must be read with it
//   QueryFilter::parse("Weight", filter)                ->  0: tokens begin with a percent sign
//
// Without conditions, as it starts, it accepts all rows. Copies are independent.
#pragma once

#include "VorBomData.h"

#include "MekRoots/Exp/VorString.h"

#include <string_view>
#include <vector>

namespace mekbom
{
class QueryFilter
{
public:
    struct Condition
    {
        VorString token;  // "%BoltName"
        bool mustBeThere; // false for "!%BoltName"
    };

    // Sets `filter` to what `text`, UTF-8, says; 0 with `filter` untouched when that is no filter.
    static int parse(std::string_view text, QueryFilter& filter);

    const std::vector<Condition>& conditions() const { return m_conditions; }

    // Whether a condition is about this datum.
    bool names(const VorString& token) const;

    // Removes and destroys the top-level rows of `data` that the list is not about; the others keep their order.
    void apply(VorBomData& data) const;

private:
    bool accepts(const VorBomDataRow& row) const;

    std::vector<Condition> m_conditions;
};
}
