#include "RowNames.h"

#include "Utf8.h"
#include "WordList.h"

namespace mekbom
{
namespace
{
const std::size_t kMostNamed = 20; // arbitrary: enough to look rows up, and still one paragraph
}

std::string RowNames::name(const VorBomDataRow& row) const
{
    const std::string handle = Utf8::toBytes(row.objectHandle());
    return "row " + std::to_string(m_numbers.numberOf(row)) + (handle.empty() ? "" : " (" + handle + ")");
}

std::string RowNames::names(const RowList& rows) const
{
    std::vector<std::string> names;
    for (const VorBomDataRow* const pRow : rows)
        names.push_back(names.size() < kMostNamed ? name(*pRow) : std::string()); // the others are only counted
    return WordList::firstOf(names, kMostNamed);
}
}
