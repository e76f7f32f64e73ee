#include "HeaderRow.h"

#include "Fault.h"
#include "FindingCodes.h"
#include "InputLimits.h"

#include <string>

namespace mekbom::HeaderRow
{
namespace
{
std::string fieldCount(std::size_t numFields)
{
    return std::to_string(numFields) + (numFields == 1 ? " field" : " fields");
}

[[noreturn]] void failWithoutHeader(const RecordSource& source)
{
    Finding finding = Finding::of(FindingCodes::kNoHeaderRow, "nothing", "a header row with column names");
    finding.source = source.name();
    throw Fault(kInvalidInput, finding);
}
}

const Record& read(RecordSource& source)
{
    const Record* const pHeader = source.next();
    if (pHeader == nullptr)
        failWithoutHeader(source);
    if (pHeader->size() > InputLimits::kMostColumns)
    {
        Finding finding = tooManyColumns(pHeader->size());
        source.placeRecord(finding);
        throw Fault(kInvalidInput, finding);
    }
    return *pHeader;
}

Finding wrongNumberOfFields(std::size_t numFields, std::size_t numColumns)
{
    return Finding::of(FindingCodes::kWrongNumberOfFields, fieldCount(numFields),
                       std::to_string(numColumns) + " as in the header row");
}

Finding tooManyColumns(std::size_t numColumns)
{
    return Finding::of(FindingCodes::kRecordTooLarge, std::to_string(numColumns) + " columns",
                       std::to_string(InputLimits::kMostColumns) + " at most");
}
}
