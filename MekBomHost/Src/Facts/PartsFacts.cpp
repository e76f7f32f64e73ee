#include "PartsFacts.h"

#include <algorithm>

namespace mekbom
{
// Asked for a few columns of a few dozen, once for each line of a foot, so no index is worth its while.
const ColumnFacts* PartsFacts::find(const std::string& token) const
{
    const auto found = std::find_if(columns.begin(), columns.end(),
                                    [&token](const ColumnFacts& column) { return column.token == token; });
    return found == columns.end() ? nullptr : &*found;
}
}
