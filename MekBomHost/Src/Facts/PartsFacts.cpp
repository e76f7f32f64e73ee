#include "PartsFacts.h"

#include <algorithm>

namespace mekbom
{
const ColumnFacts* PartsFacts::find(const std::string& token) const
{
    const auto found = std::find_if(columns.begin(), columns.end(),
                                    [&token](const ColumnFacts& column) { return column.token == token; });
    return found == columns.end() ? nullptr : &*found;
}
}
