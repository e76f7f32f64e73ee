#include "DescriptionText.h"

#include "AlignedTable.h"
#include "InQuotes.h"

#include <cstddef>

namespace mekbom::DescriptionText
{
namespace
{
// Beside each other, so that nobody takes what the rows add up to for what the pieces do.
const char* const kSumNotes =
    "Sum of rows adds up the cells as they stand, Sum of pieces each as often as its row has pieces.\n";

std::string counted(std::size_t number, const std::string& noun)
{
    return std::to_string(number) + " " + noun + (number == 1 ? "" : "s");
}

std::string titleOf(const PartsDescription& description)
{
    std::string text = description.name + ": " + counted(description.numRows, "row") + ", " +
                       counted(description.columns.size(), "column");
    if (description.numEmptyRows > 0)
        text += "; " + counted(description.numEmptyRows, "empty row") + " passed over";
    return text + "\n\n";
}

AlignedTable::Row rowOf(const ColumnDescription& column, const PartsDescription& description)
{
    AlignedTable::Row row = { harmless(column.heading),
                              harmless(column.token),
                              column.kind,
                              harmless(column.unit),
                              std::to_string(column.numFilled) + " of " + std::to_string(description.numRows),
                              column.numDistinct,
                              column.smallest,
                              column.largest,
                              column.sumOfRows };
    if (description.hasPieces)
        row.push_back(column.sumOfPieces);
    return row;
}

// Where no row has pieces its sums are of rows and of pieces.
std::string columnsText(const PartsDescription& description)
{
    AlignedTable::Row headings = { "Heading",  "Token",    "Kind",    "Unit",       "Filled",
                                   "Distinct", "Smallest", "Largest", "Sum of rows" };
    const std::size_t firstNumber = 4;
    if (description.hasPieces)
        headings.push_back("Sum of pieces");
    AlignedTable table(headings);
    for (std::size_t i = firstNumber; i < headings.size(); ++i)
        table.alignRight(i);
    for (const ColumnDescription& column : description.columns)
        table.add(rowOf(column, description));
    return table.text() + (description.hasPieces ? std::string("\n") + kSumNotes : std::string());
}

std::string oddText(const PartsDescription& description)
{
    std::string text;
    for (const std::string& oddity : description.oddities)
        text += "  " + oddity + "\n";
    return text.empty() ? text : "\nOdd\n" + text;
}

std::string lackedBy(const TemplateCover& cover, const PartsDescription& description)
{
    std::string text;
    for (const std::string& token : cover.missing)
        text += (text.empty() ? "" : ", ") + token + (description.doubtfulTokens.count(token) > 0 ? " (in doubt)" : "");
    if (!cover.canRowsPass)
        text += (text.empty() ? "" : "; ") + ("rows where " + cover.filter);
    return text;
}

std::string listsText(const PartsDescription& description, const std::vector<TemplateCover>& covers)
{
    if (covers.empty())
        return std::string();
    AlignedTable table({ "List", "Suits", "Finds", "Lacks" });
    for (const TemplateCover& cover : covers)
        table.add({ cover.name, cover.suits() ? "yes" : "no",
                    std::to_string(cover.numFound()) + " of " + std::to_string(cover.numTokens),
                    lackedBy(cover, description) });
    return "\n" + table.text() + "\n" +
           (covers.front().suits() ? "Without --template mekbom report takes " + covers.front().name + ".\n"
                                   : "Without --template mekbom report prints every column as it is.\n");
}
}

std::string of(const PartsDescription& description, const std::vector<TemplateCover>& covers)
{
    return titleOf(description) + columnsText(description) + oddText(description) + listsText(description, covers);
}
}
