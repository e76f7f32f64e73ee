// The reader that suits a parts list, by what its first bytes are.
//
//   PeekedSource bytes(source, PartsFormats::kHeadSize);
//   const std::unique_ptr<RecordSource> pRecords = PartsFormats::open(bytes, InputChoices(), notes);
//   PartsList parts(*pRecords);
//
// A new format is a folder beside Input/Csv and a line in open().
#pragma once

#include "FindingList.h"
#include "InputChoices.h"
#include "PeekedSource.h"
#include "RecordSource.h"

#include <cstddef>
#include <memory>

namespace mekbom::PartsFormats
{
constexpr std::size_t kHeadSize = 8; // as many bytes tell the formats apart

// `source` shows at least kHeadSize bytes; it is not owned and outlives the records. What a user should know of how it
// is read is added to `notes`. Throws a Fault where the bytes are of no known format or not as `choices` say.
std::unique_ptr<RecordSource> open(PeekedSource& source, const InputChoices& choices, FindingList& notes);
}
