#include "PartsFormats.h"

#include "CsvFile.h"

namespace mekbom::PartsFormats
{
std::unique_ptr<RecordSource> open(ByteSource& source, const InputChoices& choices, FindingList& notes)
{
    return std::make_unique<CsvFile>(source, choices, notes);
}
}
