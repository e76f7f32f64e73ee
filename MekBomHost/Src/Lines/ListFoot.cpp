#include "ListFoot.h"

#include "InQuotes.h"
#include "NumberText.h"
#include "TokenQuantities.h"
#include "Utf8.h"

#include <cctype>

namespace mekbom
{
namespace
{
const ReportColumn& columnOf(const TotalCount& total, const ReportLayout& layout)
{
    const std::vector<int>& columns = layout.section({ total.level, true }).columns;
    return layout.columns()[static_cast<std::size_t>(columns[total.shownIndex])];
}

// "37.5 kg". Feet and inches, and degrees with minutes, carry their marks with them and need no symbol behind them.
std::string amountOf(const TotalCount& total, const VorBomTemplateUnits& tokenUnits, const TokenQuantities& quantities)
{
    const UnitKind* const pKind = quantities.kindOf(total.datum);
    if (total.isWhole || pKind == nullptr)
        return numberText(total.lost);
    const std::string text = Utf8::toBytes(tokenUnits.getDisplayString(quantities.unitTypeOf(total.datum), total.lost));
    const bool hasMarks = text.empty() || std::isdigit(static_cast<unsigned char>(text.back())) == 0;
    return hasMarks ? text : text + " " + quantities.symbolOf(*pKind);
}

std::string counted(std::size_t number, const std::string& thing)
{
    return std::to_string(number) + " " + thing + (number == 1 ? "" : "s");
}

std::string rowsText(int number)
{
    return counted(static_cast<std::size_t>(number), "row");
}
}

ListFoot::ListFoot(const ListFacts& facts, const ReportTemplate& reportTemplate, const VorUnitsManager& units,
                   const ReportLayout& layout)
    : isKnown(true),
      numRead(facts.numRowsRead),
      filtered(facts.filtered),
      numMerged(facts.rows.numMerged),
      numLosing(facts.rows.numLosing),
      numListed(facts.rows.numListed),
      numLines(facts.rows.numListed - facts.numRowsInOtherLines),
      areUnitsAssumed(facts.areUnitsAssumed),
      numWarnings(facts.numWarnings)
{
    const VorBomTemplateUnits& tokenUnits = *reportTemplate.pTemplate->getBomTemplateUnits();
    const TokenQuantities quantities(*reportTemplate.pTemplate->getBomData(), tokenUnits, units);
    for (const TotalCount& total : facts.rows.totals)
    {
        const std::string& label = columnOf(total, layout).label;
        if (total.numRowsLost > 0)
            losses.push_back({ label, amountOf(total, tokenUnits, quantities) });
        if (total.isOutermost)
            totals.push_back({ label, total.numRows });
    }
}

std::vector<std::string> ListFoot::lines() const
{
    std::vector<std::string> all;
    if (!isKnown)
        return all;
    all.push_back(rowsLine());
    if (!losses.empty())
        all.push_back("Merged rows are in no total: " + lossText());
    for (const Total& total : totals)
        if (total.numRows < numListed)
            all.push_back(total.label + ": " + std::to_string(total.numRows) + " of " + rowsText(numListed));
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
