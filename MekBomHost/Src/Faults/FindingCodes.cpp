#include "FindingCodes.h"

#include "MistakeCodes.h"

#include <iterator>

namespace mekbom::FindingCodes
{
namespace
{
// Constants of a namespace cannot be listed, so they are named once more. FindingCodesTest.NoneIsForgottenInTheList
// finds the one that is missing here.
const FindingCode kCodes[] = {
    kNoHeaderRow,
    kColumnWithoutName,
    kColumnTwice,
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
    kNoSuitableTemplate,
    kListChosen,
    kUnitLacking,
    kTotalOfNoPieces,
    kRowTotalOfMissingColumn,
    kRowTotalOfNoNumber,
    kOtherDelimiter,
    kDelimiterUnclear,
    kOtherEncoding,
    kTextNotOfEncoding,
    kDecimalComma,
    kUnitsOfFilesDiffer,
    kNoJsonParts,
    kPartsWithinParts,
    kAssemblyColumnMissing,
    kAssemblyTwice,
    kAssemblyUnknown,
    kGroupedDigits,
    kNumberUnclear,
    kOtherDecimalSign,
    kRecordTooLarge,
    kWorkbookDamaged,
    kWorkbookTooLarge,
    kWorkbookOfOtherKind,
    kSheetUnknown,
    kSheetChosen,
    kRowsAboveHeader,
    kCellWithoutHeading,
    kCellShownOtherwise,
    kCellWithoutValue,
    kCellsMerged,
    kHeadingAmbiguous,
    kHeadingsOfOneToken,
    kTotalWithoutPieces,
    kHeadingMissing,
    kMappedToNoToken,
    kHeadingsRead,
    kRowsWithinRows,
    kParentUnknown,
    kParentTwice,
    kParentsInCircle,
    kTooFewPieces,
    kTooManyPieces,
    kParentWeighsElse,
    kFactorsOfSeveralRows,
    kParentColumnMissing,
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
    kNestedTooDeep,
    kColumnHasNoSuch,
    kMistakeUnknown,
    kHeadingOfNoToken,
    kTotalOfNoSums,
    kOrderOfNoTotal,
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
    kListUnknown,
    kOutputOfOtherFormat,
    kNoSuchLine,
    kOutputTwice,
    kFormatContradicted,
    kFormatUnknown,
    kChoiceWithoutUse,
    kFootOfList,
    kNothingToSummarise,
    kWidthTooSmall,
    kListsUnlike,
    kConfiguredWordUnknown,
    kUnitsConfigured,
    kStopped,
    kSessionIncomplete,
};
}

const std::vector<FindingCode>& all()
{
    static const std::vector<FindingCode> codes(std::begin(kCodes), std::end(kCodes));
    return codes;
}

// The mistakes of authors come first, as their numbers do.
const FindingCode* find(std::string_view name)
{
    for (const std::vector<FindingCode>* const pCodes : { &MistakeCodes::all(), &all() })
        for (const FindingCode& code : *pCodes)
            if (name == code.name)
                return &code;
    return nullptr;
}
}
