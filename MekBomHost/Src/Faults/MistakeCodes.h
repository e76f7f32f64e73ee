// The codes of the mistakes of those who write lists: what a template says that will not print what its author means, and
// what data do to it. MB1xx are about the structure of sections, MB2xx grouping and sorting, MB3xx totals, MB4xx
// formulas, MB5xx tokens and columns, MB6xx data.
//
//   MistakeCodes::kSumOutsideFooter.name           ->  "MB301"
//   FindingCodes::find("MB301")->sentence          ->  "A total stands in a header or in the details."
#pragma once

#include "FindingCodes.h"

namespace mekbom::MistakeCodes
{
inline constexpr FindingCode kPageHeaderFirst = {
    "MB101", Finding::kError,
    "A page header is the first child of the root, so that it heads every row and no details are printed."
};
inline constexpr FindingCode kThirdSection = {
    "MB102", Finding::kError, "A section stands behind the header and footer of its level, where nothing is evaluated."
};
inline constexpr FindingCode kFooterOfOtherType = {
    "MB103", Finding::kWarning, "A header and the footer behind it are of types that do not belong together."
};
inline constexpr FindingCode kGroupHeaderDeepest = {
    "MB104", Finding::kError, "A group header is the deepest level, which opens and closes for every row."
};
inline constexpr FindingCode kDetailsEmpty = {
    "MB105", Finding::kError, "A details section shows nothing, so that all lines but the first of a group are merged."
};
inline constexpr FindingCode kDetailsWithoutMark = {
    "MB106", Finding::kWarning, "No column of the details tells their lines apart, so that lines may be merged."
};
inline constexpr FindingCode kSectionBelowDetails = { "MB107", Finding::kWarning,
                                                      "A details section has sections below it." };
inline constexpr FindingCode kChildrenOfFooter = { "MB108", Finding::kWarning,
                                                   "A footer has sections below it, which are never evaluated." };
inline constexpr FindingCode kFooterBesideDetails = {
    "MB109", Finding::kWarning, "A footer stands beside the details, and is printed after every row."
};
inline constexpr FindingCode kRoundedAlike = {
    "MB110", Finding::kWarning, "Lines that are counted as one read alike only because their numbers are rounded."
};
inline constexpr FindingCode kGroupNotSorted = {
    "MB201", Finding::kError, "A list is grouped by what it is not sorted by, so that groups split."
};
inline constexpr FindingCode kRequestWithoutPercent = {
    "MB202", Finding::kError, "A grouping or sorting request names a token without its percent sign."
};
inline constexpr FindingCode kGroupingWithoutEffect = { "MB203", Finding::kWarning,
                                                        "A grouping request stands where none is read." };
inline constexpr FindingCode kSortingWithoutEffect = { "MB204", Finding::kWarning,
                                                       "A sorting request stands in a footer, where none is read." };
inline constexpr FindingCode kListMalformed = {
    "MB205", Finding::kWarning, "A list of tokens has an empty element, or another separator than commas."
};
inline constexpr FindingCode kRequestWithinRequest = { "MB206", Finding::kError,
                                                       "A grouping request holds a sorting request." };
inline constexpr FindingCode kGroupingByFormula = { "MB207", Finding::kError,
                                                    "A list is grouped or sorted by a formula." };
inline constexpr FindingCode kDescendingGoesOn = { "MB208", Finding::kNote,
                                                   "A descending order holds for the tokens behind it, too." };
inline constexpr FindingCode kGroupingByFloat = { "MB209", Finding::kWarning,
                                                  "A list is grouped by a number with decimals." };
inline constexpr FindingCode kPlainOrder = { "MB210", Finding::kNote, "A token is sorted as plain text, 10 before 2." };
inline constexpr FindingCode kSortingByUnknown = { "MB211", Finding::kWarning,
                                                   "A list is sorted by a token that the catalogue does not know." };
inline constexpr FindingCode kMarksNearlyEqual = { "MB212", Finding::kNote, "Marks differ by leading zeros alone." };
inline constexpr FindingCode kGroupedTwice = { "MB213", Finding::kWarning,
                                               "Two levels are grouped by the same token." };
inline constexpr FindingCode kFilterWithoutEffect = { "MB214", Finding::kWarning,
                                                      "A filtering request filters no row." };
inline constexpr FindingCode kTextsDifferInBlanks = {
    "MB215", Finding::kWarning, "Texts that a list is grouped by differ in blanks at their ends alone."
};
inline constexpr FindingCode kSumOutsideFooter = { "MB301", Finding::kError,
                                                   "A total stands in a header or in the details." };
inline constexpr FindingCode kSumOfTexts = { "MB302", Finding::kError, "A total is one of texts." };
inline constexpr FindingCode kSumOfList = { "MB303", Finding::kError,
                                            "A total names a token with blanks, or several tokens." };
inline constexpr FindingCode kSumStartsElsewhere = { "MB304", Finding::kWarning,
                                                     "A total starts with another value than a zero of its kind." };
inline constexpr FindingCode kFooterWithoutSum = {
    "MB305", Finding::kWarning, "A footer shows a number of its last row where a total is expected."
};
inline constexpr FindingCode kSumOfMissingFormula = { "MB306", Finding::kError,
                                                      "A total sums a formula that the details do not compute." };
inline constexpr FindingCode kTotalsLoseRows = { "MB307", Finding::kError,
                                                 "Lines that read alike are merged, and totals lose their rows." };
inline constexpr FindingCode kPiecesNotCounted = {
    "MB308", Finding::kWarning, "A total adds once per row what is of one piece, or of a whole assembly."
};
inline constexpr FindingCode kSumOfRequest = { "MB309", Finding::kWarning, "A total sums what is a request itself." };
inline constexpr FindingCode kTotalNotCalculated = {
    "MB310", Finding::kWarning, "A total cannot be calculated from others: they are of unlike rows, or one is 0."
};
inline constexpr FindingCode kFormulaTooShort = { "MB401", Finding::kError,
                                                  "A formula of three characters or fewer is never computed." };
inline constexpr FindingCode kFormulaWithoutOperator = { "MB402", Finding::kError,
                                                         "A formula without an operator is never computed." };
inline constexpr FindingCode kFormulaOnlyInFooter = { "MB403", Finding::kError,
                                                      "A formula stands in a footer alone, where none is computed." };
inline constexpr FindingCode kFormulaReadsOtherwise = {
    "MB404", Finding::kError, "A formula gives another value than the usual rules of arithmetic would."
};
inline constexpr FindingCode kFactorDisappears = { "MB405", Finding::kError,
                                                   "A word or factor before a parenthesis disappears." };
inline constexpr FindingCode kStatementEndsInName = {
    "MB406", Finding::kError, "A statement behind a semicolon ends in a name without one behind it."
};
inline constexpr FindingCode kAssignedTokenGluedToName = {
    "MB407", Finding::kError, "A token runs on into what follows the semicolon behind it."
};
inline constexpr FindingCode kNumberCutShort = { "MB408", Finding::kError,
                                                 "A number is cut short at a character that is no part of one." };
inline constexpr FindingCode kExponentIsDifference = { "MB409", Finding::kError,
                                                       "A number with a signed exponent reads as a difference." };
inline constexpr FindingCode kOperandMissing = { "MB410", Finding::kWarning, "An operator lacks an operand." };
inline constexpr FindingCode kAssignmentAsTest = { "MB411", Finding::kWarning,
                                                   "An equals sign assigns, and compares nothing." };
inline constexpr FindingCode kTextInFormula = { "MB412", Finding::kError, "A formula computes with a text." };
inline constexpr FindingCode kOperandMissingInRows = { "MB413", Finding::kWarning,
                                                       "Some rows lack a token that a formula computes with." };
inline constexpr FindingCode kDivisorTooSmall = { "MB414", Finding::kError,
                                                  "A divisor is so small that it counts as zero." };
inline constexpr FindingCode kPrecisionLost = {
    "MB415", Finding::kWarning,
    "A formula has more digits than single precision keeps, or a result too small for six decimals."
};
inline constexpr FindingCode kFormulaWithinFormula = {
    "MB416", Finding::kError, "A formula holds another formula, or a token that formulas cannot name."
};
inline constexpr FindingCode kLengthOrAreaPerLength = {
    "MB417", Finding::kWarning, "An area divided by a length may be a length or an area per length."
};
inline constexpr FindingCode kOperatorForgotten = { "MB418", Finding::kWarning,
                                                    "Two operands stand side by side without an operator." };
inline constexpr FindingCode kNameReadsAsNumber = { "MB419", Finding::kWarning,
                                                    "A name begins as a number does, and is read as one." };
inline constexpr FindingCode kParenthesesCrossed = { "MB420", Finding::kWarning,
                                                     "A parenthesis closes before it opens." };
inline constexpr FindingCode kResultUndeclared = {
    "MB421", Finding::kError, "What a formula's result measures does not follow from its tokens, and no column says it."
};
inline constexpr FindingCode kFormulaFails = { "MB422", Finding::kError, "A formula always ends in an error." };
inline constexpr FindingCode kTokenUnknown = { "MB501", Finding::kError,
                                               "Neither the catalogue nor the template knows a token." };
inline constexpr FindingCode kColumnTokenMalformed = { "MB502", Finding::kError,
                                                       "A column has no percent sign, or two of them." };
inline constexpr FindingCode kTokenVariesInGroup = {
    "MB503", Finding::kWarning, "A header or footer shows a token that may vary within its group."
};
inline constexpr FindingCode kNumberWithoutUnit = { "MB504", Finding::kNote,
                                                    "A number of the user's own has no unit." };
inline constexpr FindingCode kNumberAsData = {
    "MB505", Finding::kWarning, "A column starts with a number, which is printed like data where a row lacks its own."
};
inline constexpr FindingCode kWholeNumberUnderUnit = {
    "MB506", Finding::kWarning, "A whole number stands under a token with a unit, and is printed without it."
};
inline constexpr FindingCode kOtherKindThanCatalogue = {
    "MB507", Finding::kError, "\"tokenUnits\" gives a token of the catalogue another kind than it has."
};
inline constexpr FindingCode kKindsMixed = { "MB601", Finding::kError, "One token has values of several kinds." };
inline constexpr FindingCode kTokenTwiceInRow = { "MB602", Finding::kWarning, "A row has the same token twice." };
inline constexpr FindingCode kSubRows = { "MB603", Finding::kError, "Rows below rows are in no list." };
inline constexpr FindingCode kNotANumber = { "MB604", Finding::kError,
                                             "A value is no number: it compares as equal to all others." };
inline constexpr FindingCode kMarksOfEarlierReport = { "MB605", Finding::kWarning,
                                                       "Rows carry the marks of an earlier report." };
inline constexpr FindingCode kHandleNotUnique = { "MB606", Finding::kWarning,
                                                  "An object handle is empty or stands in several rows." };
inline constexpr FindingCode kNoNumberLeft = { "MB607", Finding::kError,
                                               "A total or the result of a formula is too large to be a number." };

// All of the above, in the order of their numbers.
const std::vector<FindingCode>& all();

// Whether a code is one of MB1xx to MB6xx: those findings can be excused, and are printed in a form of their own.
//   MistakeCodes::has("MB105")   ->  true
//   MistakeCodes::has("MB805")   ->  false
bool has(std::string_view code);
}
