// A column of a report: what stands in it, and how the template wants it to look.
//
//   token "%Length", label "Cut", unit "mm", numeric       ->   heading()  "Cut [mm]"
//   token "%Name", label "Profile", no unit                ->   heading()  "Profile"
#pragma once

#include "ColumnNumbers.h"
#include "ColumnTotal.h"
#include "LabelUnit.h"
#include "UnitKinds.h"

#include "MekRoots/Exp/VorString.h"

#include <string>
#include <vector>

namespace mekbom
{
struct ReportColumn
{
    // The label with the unit in brackets; the label as it is without a unit, and when it names the unit itself. A label
    // that names another unit of the kind, which the list does not show, gets the one that it shows:
    //   "Weight [kg]" in a list in pounds  ->  "Weight [lb]"
    //   "Weight (kg)" in a list in pounds  ->  "Weight (lb)"
    std::string heading() const { return headingIn(unitSymbol); }

    // The heading of the same numbers in another unit of their kind: "Length [ft]" of what is shown in feet and inches.
    std::string headingIn(const std::string& symbol) const;

    // The heading of what `numbers` gives, the numbers behind the texts.
    std::string headingOfNumbers() const { return headingIn(unitOfNumbers()); }

    // The unit that all of these are in, in UTF-8; empty where they have none, or several.
    const std::string& unitOfNumbers() const;

    // What the label has in brackets at its end beside the unit that the heading adds: "EUR" of "Cost [EUR] [kg]". Empty
    // where the heading has one pair of brackets, or none. Parentheses count where a unit stands in them.
    std::string otherBrackets() const;

    VorString token;                    // the column's name: no other column has it unless a section shows it twice
    std::vector<VorString> shownTokens; // of the tuples that are shown in it, as the sections come

    ColumnTotal::eKind total = ColumnTotal::kSum; // what its totals are, other than sums

    std::string label;                   // UTF-8: the template's, else the token's name or formula
    const UnitKind* pUnitKind = nullptr; // of its numbers; null where they have no unit or not all the same
    std::string unitSymbol;              // UTF-8: the unit that they are shown in, or what the template calls that of
                                         // numbers without a kind; empty where the heading can name none
    bool hasMixedUnits = false;          // its numbers have several units, each behind its number
    bool hasDecimals = true;             // else quantities are shown in feet and inches, fractions or minutes
    ColumnNumbers numbers;               // what its numbers are in these units
    bool hasNumbers = false;             // it shows some, be it a total below texts
    bool isNumeric = false;              // it shows numbers: half of one would be another number
    bool isAlignedRight = false;         // as the template says, else numbers right and texts left
    int width = 0;                       // in characters on a terminal; 0 where the template leaves it open

private:
    // Whether what the label names is the unit that the numbers are shown in, or another one of their kind.
    bool isOfNumbers(const LabelUnit& named) const;
};
}
