#include "PartsFormats.h"

#include "CsvReader.h"

namespace mekbom::PartsFormats
{
std::unique_ptr<RecordSource> open(ByteSource& source, const InputChoices&, FindingList&)
{
    return std::make_unique<CsvReader>(source);
}
}
