// Counts the values of one datum in the rows of a group, and finds the smallest, the greatest and the mean of those that are
// numbers.
//
//   rows of the group    %Length 2000, %Quantity 3    %Length 6000, %Quantity 1    no %Length
//
//   ValueTally lengths(L"%Length");
//   for (const VorBomDataRow& row : rows)
//       lengths.add(row);
//   lengths.totalOf(ColumnTotal::kCount).number      ->  2
//   lengths.totalOf(ColumnTotal::kGreatest).number   ->  6000
//   lengths.totalOf(ColumnTotal::kMean).number       ->  3000: of four pieces
//
// A row's length is that of one piece, so that the mean does not depend on how the pieces are spread over rows. Of what
// grows with the pieces, "%Quantity" itself or "%Formula:%Weight*%Quantity", it is the mean of the rows.
#pragma once

#include "ColumnTotal.h"
#include "DatumFinder.h"
#include "ExactSum.h"

#include "VorBomDataRow.h"
#include "VorBomTypedValue.h"

#include "MekRoots/Exp/VorString.h"

namespace mekbom
{
class ValueTally
{
public:
    explicit ValueTally(const VorString& datum);

    // Whether the mean is that of the pieces, and not of the rows.
    static bool isMeanOfPieces(const VorString& datum);

    void add(const VorBomDataRow& row);

    // Forgets all rows.
    void clear() { m_values = Values(); }

    // Of type kUnknownData where there is none: no row has a number, or the mean is over no pieces at all. The unit type
    // is left open.
    VorBomTypedValue totalOf(ColumnTotal::eKind kind) const;

private:
    struct Values
    {
        int count = 0;      // texts among them
        int numNumbers = 0; // and those without
        bool areWhole = true;
        double least = 0;
        double greatest = 0;
        ExactSum sum;     // each value as often as its row has pieces, for the mean of pieces
        ExactSum divisor; // how many these are
    };

    DatumFinder m_datum;
    DatumFinder m_pieces;
    bool m_isOfPieces;
    Values m_values;
};
}
