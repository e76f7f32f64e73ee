#include "MistakeCodes.h"

#include <algorithm>

namespace mekbom::MistakeCodes
{
const std::vector<FindingCode>& all()
{
    static const std::vector<FindingCode> codes = {
        kPageHeaderFirst,
        kThirdSection,
        kFooterOfOtherType,
        kGroupHeaderDeepest,
        kDetailsEmpty,
        kDetailsWithoutMark,
        kSectionBelowDetails,
        kChildrenOfFooter,
        kFooterBesideDetails,
        kRoundedAlike,
        kGroupNotSorted,
        kRequestWithoutPercent,
        kGroupingWithoutEffect,
        kSortingWithoutEffect,
        kListMalformed,
        kRequestWithinRequest,
        kGroupingByFormula,
        kDescendingGoesOn,
        kGroupingByFloat,
        kPlainOrder,
        kSortingByUnknown,
        kMarksNearlyEqual,
        kGroupedTwice,
        kFilterWithoutEffect,
        kTextsDifferInBlanks,
        kSumOutsideFooter,
        kSumOfTexts,
        kSumOfList,
        kSumStartsElsewhere,
        kFooterWithoutSum,
        kSumOfMissingFormula,
        kTotalsLoseRows,
        kPiecesNotCounted,
        kSumOfRequest,
        kTotalNotCalculated,
        kFormulaTooShort,
        kFormulaWithoutOperator,
        kFormulaOnlyInFooter,
        kFormulaReadsOtherwise,
        kFactorDisappears,
        kStatementEndsInName,
        kAssignedTokenGluedToName,
        kNumberCutShort,
        kExponentIsDifference,
        kOperandMissing,
        kAssignmentAsTest,
        kTextInFormula,
        kOperandMissingInRows,
        kDivisorTooSmall,
        kPrecisionLost,
        kFormulaWithinFormula,
        kLengthOrAreaPerLength,
        kOperatorForgotten,
        kNameReadsAsNumber,
        kParenthesesCrossed,
        kResultUndeclared,
        kFormulaFails,
        kTokenUnknown,
        kColumnTokenMalformed,
        kTokenVariesInGroup,
        kNumberWithoutUnit,
        kNumberAsData,
        kWholeNumberUnderUnit,
        kOtherKindThanCatalogue,
        kKindsMixed,
        kTokenTwiceInRow,
        kSubRows,
        kNotANumber,
        kMarksOfEarlierReport,
        kHandleNotUnique,
        kNoNumberLeft,
    };
    return codes;
}

bool has(std::string_view code)
{
    const std::vector<FindingCode>& codes = all();
    return std::any_of(codes.begin(), codes.end(), [code](const FindingCode& mistake) { return code == mistake.name; });
}
}
