// One field of a parts list's header row: the token that the column carries and, in brackets, the unit it is given in.
//
//   "%Weight"       ->  %Weight
//   "Length [ft]"   ->  %Length in ft
//
// The leading '%' may be left out; blanks around the name and within the brackets do not count.
#pragma once

#include <string>
#include <string_view>

namespace mekbom
{
struct ColumnHeading
{
    std::string token; // with its '%'; only "%" when the field has no name
    std::string unit;  // as written between the brackets, empty without them

    static ColumnHeading parse(std::string_view field);

    // `name` with a '%' in front unless it starts with one.
    static std::string tokenOf(std::string_view name);
};
}
