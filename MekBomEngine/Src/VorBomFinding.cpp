#include "VorBomFinding.h"

const wchar_t* VorBomFinding::text() const
{
    switch (kind)
    {
        case kSectionNotEvaluated: return L"section is not evaluated";
        case kRequestsNotFound: return L"requests to group or sort were not looked for";
        case kGroupingWithoutEffect: return L"grouping has no effect on the deepest level";
        case kFormulaUnreadable: return L"formula cannot be read";
        case kFormulaNotComputed: return L"formula is too short or has no operator";
        case kFormulaOfNoLine: return L"no header or line computes the formula";
        case kTokenNotInCatalogue: return L"token is not known";
        case kNoRows: return L"there are no rows";
        case kPartsNotRead: return L"sub-rows are not read";
        case kTokenInNoRow: return L"no row has the token";
        case kTokenOfTwoKinds: return L"rows have values of two kinds under the token";
        case kTextInTotal: return L"a text stands where numbers are added up";
        case kFormulaFailed: return L"formula could not be computed";
        case kRowMerged: return L"row was merged into an equal line";
    }
    return L"";
}
