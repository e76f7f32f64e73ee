// The reader that suits a parts list, by what its first bytes are.
//
//   const std::unique_ptr<RecordSource> pRecords = PartsFormats::open(source, InputChoices(), notes);
//   PartsList parts(*pRecords);
//
// A new format is a folder beside Input/Csv and a line in readerFor().
#pragma once

#include "ByteSource.h"
#include "FindingList.h"
#include "InputChoices.h"
#include "RecordSource.h"

#include <memory>
#include <vector>

namespace mekbom::PartsFormats
{
// `source` is not owned and outlives the records. What a user should know of how it is read is added to `notes`. Throws a
// Fault where the bytes are of no known format or not as `choices` say.
std::unique_ptr<RecordSource> open(ByteSource& source, const InputChoices& choices, FindingList& notes);

// The records of all sources and then the `others`, at least one of all, as those of one list (JoinedRecords), whose header
// row will be read by `headings`. Otherwise as open().
std::unique_ptr<RecordSource> openAll(const std::vector<std::unique_ptr<ByteSource>>& sources,
                                      std::vector<std::unique_ptr<RecordSource>> others, const InputChoices& choices,
                                      const HeadingChoices& headings, FindingList& notes);
}
