// The report of the comparison, built through the engine's interface: its sections, and the rows of a parts list.
#pragma once

#include "MekBomEngine/Src/VorBomTemplate.h"

#include <memory>
#include <string>
#include <vector>

// Of what the details line's last column is made.
enum eLastColumn
{
    kFormulaColumn, // %Formula:%Length*%Quantity/1000, as all programs of the comparison have it
    kLengthColumn,  // the length a second time: a number that is shown but not computed
    kNoColumn
};

// What equal cells of a column have.
enum eTexts
{
    kSharedTexts, // one text, as a host makes them that remembers what it has read
    kOwnTexts     // a text each
};

// Sorted by material, mark and length; grouped by material and mark; a details line per row; sums of weights. Ready
// to be evaluated once it has rows.
std::unique_ptr<VorBomTemplate> createComparisonReport(eLastColumn lastColumn);

// Hangs the rows of the file under the report's data, in internal units.
void loadComparisonRows(VorBomTemplate& report, const std::string& path, eTexts texts);

// The rows as they were loaded. Takes off everything that an evaluation leaves in them, so that the next one does the
// same work again, for the same report or another.
class InputRows
{
public:
    // To be made before the first evaluation.
    explicit InputRows(VorBomTemplate& report);

    int count() const { return static_cast<int>(m_rows.size()); }

    // Restores the rows and hangs them under the data of `report`, which owns them from now on.
    void hangUnder(VorBomTemplate& report);

private:
    void restore();

    std::vector<VorBomDataRow*> m_rows; // in the order of the input
    VorBomData* m_pOwner;
};
