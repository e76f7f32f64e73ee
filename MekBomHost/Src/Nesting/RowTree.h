// Rows that are parts of other rows, and how many pieces of each that makes.
//
//   Handle  %Parent  %Quantity       for 1 set             for 10
//   T1               2               goes, as a parent     goes
//   A1      T1       4               goes                  goes
//   P1      A1       3               24   "2 × 4 × 3"      240   "10 × 2 × 4 × 3"
//   P2               5               5    "5"              50    "10 × 5"
//
//   RowTree tree(data);
//   const std::optional<Finding> mistake = tree.multiply({ true, 10 }, true);
//   const int numParents = mistake ? 0 : tree.removeParents();     // P1 and P2 are left, with their pieces
//
// A row says how many of it belong to one piece of its parent, and rows without a parent how many there are of them.
// What a parent weighs is what its parts weigh, and would count twice: so parents go, and weighingElse() tells where
// that loses something. Rows stand in any order, nested to any depth. They are counted from 1, as they hang in the data.
#pragma once

#include "Finding.h"
#include "PieceChoices.h"

#include "VorBomData.h"
#include "VorBomDataRow.h"

#include "MekRoots/Exp/VorString.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace mekbom
{
class RowTree
{
public:
    // `data` is not owned and outlives this; its rows stay as they are until one of the functions below changes them.
    explicit RowTree(VorBomData& data);

    // That rows are parts of others, for a list that does not multiply their pieces; none if no row is.
    std::optional<Finding> nesting() const;

    // Sets "%Quantity" of all rows that are no parents to the pieces that they make, and, where `showsFactors`, their
    // "%QuantityFactors" to what was multiplied. Rows must have a "%Quantity". Gives what is wrong, without a place,
    // and then has changed nothing: a parent that there is none of or several, parents in a circle, more pieces than a
    // whole number holds, or less than none of a parent.
    std::optional<Finding> multiply(const PieceChoices& choices, bool showsFactors);

    // Warns of parents that do not weigh what their parts do, be it that these are not all: by more than 5 %, which
    // leaves room for welds and rounding. Knows nothing of parents without a "%Weight". Behind multiply().
    std::optional<Finding> weighingElse() const;

    // Takes the parents out of the data, and returns how many there were. To be called last: nothing else is left to do.
    int removeParents();

private:
    static constexpr std::size_t kNone = static_cast<std::size_t>(-1);

    struct Row
    {
        VorBomDataRow* pRow;
        std::size_t parent = kNone;
        std::size_t multiplier = kNone; // the next row upwards that does not stand for one piece
        std::int64_t pieces = 0;
        int piecesEach = 1; // in one piece of the parent
        bool isParent = false;
        bool isOrdered = false;
    };

    // Handles that some row names as its parent, and the row of each: kNone for a handle of no row.
    using Parents = std::unordered_map<std::wstring_view, std::size_t>;

    void findParents();
    void findRowsOf(Parents& parents);
    std::optional<Finding> checkParents() const;
    std::optional<Finding> order();
    std::optional<Finding> orderUpFrom(std::size_t row);
    std::optional<Finding> count(int numSets);
    void setPieces(int numSets, bool showsFactors);
    VorString factorsOf(const Row& row, int numSets) const;
    std::optional<double> weightOf(const VorBomDataRow& row) const;
    std::string nameOf(std::size_t row) const;

    VorBomData& m_data;
    VorString m_weightToken;
    std::vector<Row> m_rows;
    std::vector<std::size_t> m_order;  // of rows: parents in front of their parts
    std::vector<std::size_t> m_path;   // of orderUpFrom(), kept for its memory
    std::vector<std::size_t> m_strays; // rows whose parent is the handle of no row
    std::size_t m_firstTwin = kNone;   // a row whose handle is named as parent and is that of an earlier row, too
};
}
