#include "FindingCodes.h"

#include <algorithm>

namespace mekbom::FindingCodes
{
const std::vector<FindingCode>& all()
{
    static const std::vector<FindingCode> codes = {
        kNoHeaderRow,
        kColumnWithoutName,
        kColumnTwice,
        kOtherSeparator,
        kQuoteWithinField,
        kTextBehindQuote,
        kQuoteNotClosed,
        kWrongNumberOfFields,
        kCellIsNotWhole,
        kCellIsNoNumber,
        kCellIsTooLarge,
        kUnitOfNoQuantity,
        kColumnUnitUnknown,
        kUnitOfMissingColumn,
        kUnitGivenTwice,
        kColumnMissing,
        kRowsMerged,
        kNoSuitableTemplate,
        kNoJson,
        kKeyTwice,
        kKeyUnknown,
        kKeyMissing,
        kWrongKindOfValue,
        kTextIsEmpty,
        kNumberOutOfRange,
        kNameUnknown,
        kNoQueryFilter,
        kNoSection,
        kColumnDescribedTwice,
        kColumnNotShown,
        kSectionNotEvaluated,
        kChildrenNotEvaluated,
        kNestedTooDeep,
        kFileUnreadable,
        kTextIsNotUtf8,
        kTextHasZeroByte,
        kShippedFileMissing,
        kOutputNotWritten,
        kOutputIsInput,
        kWrongArguments,
        kOptionIsNoPair,
        kOptionWithoutUse,
        kKindUnknown,
        kUnitUnknown,
        kBaseUnknown,
        kNoQuantity,
        kEntryMalformed,
        kSettingUnknown,
        kSettingIsNoNumber,
        kSettingUnused,
    };
    return codes;
}

const FindingCode* find(std::string_view name)
{
    const auto found =
        std::find_if(all().begin(), all().end(), [name](const FindingCode& code) { return name == code.name; });
    return found == all().end() ? nullptr : &*found;
}
}
