// One thing that is to be said of a template or of an evaluation: what it is, where it stands, and about which rows.
//
//   "%Formula:%Weight/%Quantity" in the details, for a row without pieces
//     kind       kFormulaFailed
//     pSection   the details of the template, tuple 2 of it
//     token      "%Formula:%Weight/%Quantity"
//     message    "Division by zero"
//     position   7: the '/', counted from behind "%Formula:"
//     pRow       that row
//
// Owns its two texts. Neither section nor rows are owned.
#pragma once

#include "VorBomDataRow.h"
#include "VorBomTemplateItem.h"

#include "MekRoots/Exp/MekExport.h"
#include "MekRoots/Exp/VorString.h"

struct MEK_BOM_API VorBomFinding
{
    enum eKind : int
    {
        // Of the template, whatever its data. `pSection` is set, and `tuple` unless a whole section is meant.
        kSectionNotEvaluated = 1,   // behind a level's footer, or under one
        kRequestsNotFound = 2,      // asks to group or sort, but findUsedTokens() has not run since: it will do neither
        kGroupingWithoutEffect = 3, // on the deepest level, which has a line for every row
        kFormulaUnreadable = 4,     // its parentheses do not balance; `message`, `position`
        kFormulaNotComputed = 5,    // fewer than four characters, or no operator: shows the template's value
        kFormulaOfNoLine = 6,       // a footer shows or adds up a formula that no header and no line computes
        kTokenNotInCatalogue = 7,   // nor among the host's own; told by VorBomTemplateCheck::checkTokens alone

        // Of the rows, before they are evaluated.
        kNoRows = 100,          // so that no level is evaluated
        kPartsNotRead = 101,    // rows have sub-rows, which no report reads; `pRow` is the first of them
        kTokenInNoRow = 102,    // asked for by `tuple`; for a name in a formula `position` is its place there
        kTokenOfTwoKinds = 103, // an int in `pRow`, a double or a text in `pOtherRow`, or the like
        kTextInTotal = 104,     // `pRow` has a text under a token that a footer adds up: it replaces the total

        // Of one row, as it is placed.
        kFormulaFailed = 200, // `message`, and `position` where the formula's error has one
        kRowMerged = 201      // the line of `pRow` reads as that of `pOtherRow` and was merged into it
    };
    static constexpr int kNone = -1;

    // What the kind means, in a few English words, zero-terminated: "no row has the token".
    const wchar_t* text() const;

    eKind kind = kNoRows;
    const VorBomTemplateItem* pSection = nullptr; // of the template; null where none is meant
    int tuple = kNone;                            // of the section, from 0
    VorString token;                              // that is meant, without the request that it stands in
    VorString message;                            // of a formula that fails
    int position = kNone;                         // in the formula, in characters from behind "%Formula:"
    const VorBomDataRow* pRow = nullptr;
    const VorBomDataRow* pOtherRow = nullptr;
};
