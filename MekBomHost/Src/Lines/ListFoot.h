// What a list is made of, for its end: nothing that goes missing on the way from the file to the paper does so silently.
//
//   for (const std::string& line : report.foot().lines())
//       sink.write(line + "\n");
//
//   417 rows read, 12 filtered out by "%Material = 'S355'", 5 merged into equal lines, 400 listed
//   Merged rows are in no total: Weight 37.5 kg
//   Weight: 120 of 400 rows
//   Length: totals show the largest %Length
//   Lengths and weights without a unit were read as mm and kg
//   2 warnings
//
// Says only what there is to say: of a plain list "417 rows read, 417 listed". Formats that have a place for data take
// the numbers instead. A value; all texts are UTF-8.
#pragma once

#include "FilteredRows.h"
#include "ListFacts.h"
#include "ReportLayout.h"
#include "ReportTemplate.h"

#include <cstddef>
#include <string>
#include <vector>

namespace mekbom
{
struct ListFoot
{
    // What merged rows have taken out of one total.
    struct Loss
    {
        std::string label;  // the heading of the total's column, without a unit: "Weight"
        std::string amount; // in the reader's unit: "37.5 kg"
    };

    // How many of the listed rows a total is about.
    struct Total
    {
        std::string label; // as above
        int numRows = 0;   // that have the value
    };

    // What totals show that are no sums.
    struct Other
    {
        std::string label; // as above
        std::string what;  // "the mean %Length of all pieces"
    };

    // An empty foot, of which there are no lines: nobody has counted.
    ListFoot() = default;

    // `layout` is that of `reportTemplate`, which still has the number formats that its report was made with.
    ListFoot(const ListFacts& facts, const ReportTemplate& reportTemplate, const ReportLayout& layout);

    std::vector<std::string> lines() const;

    // "Weight 37.5 kg, Pieces 4": all losses in one text.
    std::string lossText() const;

    bool isKnown = false; // somebody has counted
    int numRead = 0;
    int numParents = 0;                 // rows whose parts are listed in their place
    int numSets = 1;                    // that the pieces are for
    std::vector<FilteredRows> filtered; // by each filter
    int numMerged = 0;                  // rows whose line was merged into one that reads alike, and count in no total
    int numLosing = 0;                  // of these the ones with a value that a printed total would have counted
    std::vector<Loss> losses;
    int numListed = 0;               // rows that have a line, their own or one that counts them
    int numLines = 0;                // these lines, whether they are printed or not
    std::vector<Total> totals;       // of the outermost footer that prints any
    std::vector<Other> otherTotals;  // columns whose totals are no sums
    int numEmptyRows = 0;            // passed over, and not among those read
    bool countsRowsAsPieces = false; // the data say of no row how many pieces it stands for, and totals are printed
    bool areUnitsAssumed = false;
    std::size_t numWarnings = 0;
    std::vector<std::string> statements; // whole sentences, in place of all this

private:
    void addOtherTotals(const ReportTemplate& reportTemplate, const ReportLayout& layout);
    std::string rowsLine() const;
};
}
