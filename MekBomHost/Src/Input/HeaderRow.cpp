#include "HeaderRow.h"

#include "Fault.h"
#include "FindingCodes.h"

#include <string>

namespace mekbom::HeaderRow
{
namespace
{
std::string fieldCount(std::size_t numFields)
{
    return std::to_string(numFields) + (numFields == 1 ? " field" : " fields");
}
}

const Record& read(RecordSource& source)
{
    if (const Record* const pHeader = source.next())
        return *pHeader;
    Finding finding = Finding::of(FindingCodes::kNoHeaderRow, "nothing", "a header row with column names");
    finding.source = source.name();
    throw Fault(kInvalidInput, finding);
}

Finding wrongNumberOfFields(std::size_t numFields, std::size_t numColumns)
{
    return Finding::of(FindingCodes::kWrongNumberOfFields, fieldCount(numFields),
                       std::to_string(numColumns) + " as in the header row");
}
}
