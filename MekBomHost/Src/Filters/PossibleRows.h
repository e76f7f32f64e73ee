// Whether rows of given columns could pass a filter, before any row is read: a list that is about rows with a profile
// suits no data without a column of profiles.
//
//   columns %Mark, %Weight      "%Name"                                  ->  false
//                               "not %BoltName and (%Name or %Mark)"     ->  true
#pragma once

#include "RowFilter.h"

#include <functional>
#include <string>

namespace mekbom::PossibleRows
{
// `hasColumn` answers for a token such as "%Name". Conditions are taken one by one: "%A and not %A" could be passed.
bool canPass(const RowFilter& filter, const std::function<bool(const std::string&)>& hasColumn);
}
