// A line is there only when it says something, so that a list of which all is as expected ends with one line. From 417
// rows, 12 of them filtered out, 5 merged, and a total over a weight that 120 of the 400 others have:
//   rowsLine()       417 rows read, 12 filtered out by "%Name", 5 merged into equal lines, 400 listed
//   losses           Merged rows are in no total: Weight 37.5 kg
//   totals           Weight: 120 of 400 rows; nothing where all 400 have one
#include "ListFoot.h"

#include "InQuotes.h"
#include "NumberText.h"
#include "TemplateLevels.h"
#include "TotalInWords.h"
#include "TotalTokens.h"
#include "Utf8.h"

#include "VorBomNumberFormat.h"

#include "MekRoots/Exp/VorCharacters.h"

#include <set>
#include <utility>

namespace mekbom
{
namespace
{
using Units = VorBomTemplateUnits;

// The layout has the columns of a section in the order of its shown tuples, as RowTally counted them.
const ReportColumn& columnOf(const TotalCount& total, const ReportLayout& layout)
{
    const std::vector<int>& columns = layout.section({ total.level, true }).columns;
    return layout.columns()[static_cast<std::size_t>(columns[total.shownIndex])];
}

// What merged rows have taken out of a total, as the total itself is shown: "37.5 kg". Feet and inches, and degrees
// with minutes, carry their marks with them and need no symbol behind them.
std::string amountOf(const TotalCount& total, const ReportTemplate& reportTemplate, const ReportColumn& column)
{
    const VorBomItemBase* pHeader = reportTemplate.pTemplate->child();
    for (int level = 0; level < total.level; ++level)
        pHeader = pHeader->child();
    const auto& footer = *static_cast<const VorBomTemplateItem*>(pHeader->next()); // children of sections are sections
    const int tuple = reportTemplate.shownTuplesOf(footer)[total.shownIndex];
    const VorBomNumberFormat* const pFormat = reportTemplate.pTemplate->numberFormat(footer, tuple);
    if (total.isWhole || (pFormat == nullptr && column.pUnitKind == nullptr))
        return numberText(total.lost);
    const VorBomTemplateUnits& units = *reportTemplate.pTemplate->getBomTemplateUnits();
    const std::string text = Utf8::toBytes(
        pFormat != nullptr ? pFormat->textOf(total.lost)
                           : units.getDisplayString(Units::unitTypeOf(column.pUnitKind->system), total.lost));
    const bool needsSymbol = !text.empty() && VorCharacters::isDigit(text.back()) && !column.unitSymbol.empty();
    return needsSymbol ? text + " " + column.unitSymbol : text;
}

// "1 row", "2 rows": all things that are counted here have a plural in s.
std::string counted(std::size_t number, const std::string& thing)
{
    return std::to_string(number) + " " + thing + (number == 1 ? "" : "s");
}

std::string rowsText(int number)
{
    return counted(static_cast<std::size_t>(number), "row");
}
}

// That rows count as pieces matters only to somebody who reads totals, so it is not told of a list without any.
ListFoot::ListFoot(const ListFacts& facts, const ReportTemplate& reportTemplate, const ReportLayout& layout)
    : isKnown(facts.statements.empty()),
      numRead(facts.numRowsRead),
      numParents(facts.numParents),
      numSets(facts.numSets),
      filtered(facts.filtered),
      numMerged(facts.rows.numMerged),
      numLosing(facts.rows.numLosing),
      numListed(facts.rows.numListed),
      numLines(facts.rows.numListed - facts.numRowsInOtherLines),
      numEmptyRows(facts.numEmptyRows),
      countsRowsAsPieces(facts.countsRowsAsPieces && !facts.rows.totals.empty()),
      areUnitsAssumed(facts.areUnitsAssumed),
      numWarnings(facts.numWarnings),
      statements(facts.statements)
{
    for (const TotalCount& total : facts.rows.totals)
    {
        const ReportColumn& column = columnOf(total, layout);
        if (total.numRowsLost > 0)
            losses.push_back({ column.label, amountOf(total, reportTemplate, column) });
        if (total.isOutermost)
            totals.push_back({ column.label, total.numRows });
    }
    addOtherTotals(reportTemplate, layout);
}

// Whoever sees a number in the line of totals takes it for a sum. What several levels show is told once.
void ListFoot::addOtherTotals(const ReportTemplate& reportTemplate, const ReportLayout& layout)
{
    std::set<std::pair<std::string, std::string>> told;
    const TemplateLevels levels(*reportTemplate.pTemplate);
    for (int level = 0; level < levels.count(); ++level)
    {
        const VorBomTemplateItem* const pFooter = levels.section({ level, true });
        const std::vector<int> tuples =
            pFooter == nullptr ? std::vector<int>() : reportTemplate.shownTuplesOf(*pFooter);
        for (std::size_t i = 0; i < tuples.size(); ++i)
        {
            const VorString shown = reportTemplate.shownTokenOf(*pFooter, tuples[i]);
            if (TotalTokens::kindOf(shown) == ColumnTotal::kSum)
                continue;
            const int column = layout.section({ level, true }).columns[i];
            const std::string& label = layout.columns()[static_cast<std::size_t>(column)].label;
            const ColumnTotal& total = reportTemplate.styleOfTuple(*pFooter, tuples[i])->total;
            const std::string what = totalInWords(total, TotalTokens::datumOf(shown));
            if (told.emplace(label, what).second)
                otherTotals.push_back({ label, what });
        }
    }
}

// What rows became comes first, then what is missing from totals, then what was assumed of the file: from what changes
// a number to what might.
std::vector<std::string> ListFoot::lines() const
{
    std::vector<std::string> all = statements;
    if (!isKnown)
        return all;
    all.push_back(rowsLine());
    if (numSets > 1)
        all.push_back("Pieces are those of " + std::to_string(numSets) + " sets");
    if (!losses.empty())
        all.push_back("Merged rows are in no total: " + lossText());
    for (const Total& total : totals)
        if (total.numRows < numListed)
            all.push_back(total.label + ": " + std::to_string(total.numRows) + " of " + rowsText(numListed));
    for (const Other& total : otherTotals)
        all.push_back(total.label + ": totals show " + total.what);
    if (numEmptyRows > 0)
        all.push_back(rowsText(numEmptyRows) + " without any cell passed over");
    if (countsRowsAsPieces)
        all.emplace_back("Each row counts as one piece: there is no column %Quantity");
    if (areUnitsAssumed)
        all.emplace_back("Lengths and weights without a unit were read as mm and kg");
    if (numWarnings > 0)
        all.push_back(counted(numWarnings, "warning"));
    return all;
}

std::string ListFoot::lossText() const
{
    std::string text;
    for (const Loss& loss : losses)
        text += (text.empty() ? "" : ", ") + loss.label + " " + loss.amount;
    return text;
}

// "417 rows read, 12 filtered out by \"%Name\", 5 merged into equal lines, 400 listed in 122 lines"
std::string ListFoot::rowsLine() const
{
    std::string line = rowsText(numRead) + " read";
    if (numParents > 0)
        line += ", " + std::to_string(numParents) + " replaced by their parts";
    for (const FilteredRows& filter : filtered)
        if (filter.numRows > 0)
            line += ", " + std::to_string(filter.numRows) + " filtered out by " + inQuotes(filter.condition);
    if (numMerged > 0)
        line += ", " + std::to_string(numMerged) + " merged into equal lines";
    line += ", " + std::to_string(numListed) + " listed";
    if (numLines < numListed)
        line += " in " + counted(static_cast<std::size_t>(numLines), "line");
    return line;
}
}
