// Which shipped template suits a parts list whose user names none: the one the greatest part of whose data the list has
// as columns; of equals the first in ShippedFiles::templates(). A template that finds less than half of its data suits
// nothing.
//
//   columns %BoltName, %Standard, %Material, %Diameter, %Length, %Quantity   ->   bolt-list.json, all six of six
#pragma once

#include <functional>
#include <string>

namespace mekbom::TemplateChoice
{
// The path of that template. `hasColumn` answers for a token such as "%Name". Throws a Fault of status kInvalidInput in
// the name of `dataName` when none suits.
std::string choose(const std::string& dataName, const std::function<bool(const std::string&)>& hasColumn);
}
