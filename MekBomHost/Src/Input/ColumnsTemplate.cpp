// The text is put together of lines, not of JSON values: an author reads it, and comments stand where a group or a
// title would go. The comments around the details are JSON themselves, so that taking the slashes away makes the group.
// Of columns %Name, %Quantity and %Weight it says
//   columns            %Name, %Quantity, %Weight and, as a formula, the weight of all pieces of a row
//   details            sorted by %Name; the same four
//   report footer      the sums of %Quantity and of that formula
#include "ColumnsTemplate.h"

#include "DataTokens.h"
#include "InputUnits.h"
#include "JsonText.h"
#include "TokenNames.h"
#include "UnitKinds.h"

#include "VorBomTokenCatalogue.h"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <optional>

namespace mekbom::ColumnsTemplate
{
namespace
{
using Columns = std::vector<InputColumn>;

const char* const kWeight = "%Weight";
const char* const kTotalWeight = "%Formula:%Weight*%Quantity";

const VorBomTokenCatalogue::Entry* entryOf(const InputColumn& column)
{
    return VorBomTokenCatalogue::find(column.tupleToken);
}

// A column of the user's own, which is not one that the catalogue knows: the template has to say what it holds.
bool isOwn(const InputColumn& column)
{
    return !column.isHandle && entryOf(column) == nullptr;
}

bool isDatum(const InputColumn& column)
{
    return DataTokens::isDatum(column.tupleToken) || entryOf(column) != nullptr;
}

bool has(const Columns& columns, const std::string& token)
{
    return std::any_of(columns.begin(), columns.end(),
                       [&token](const InputColumn& column) { return column.token == token; });
}

// A request takes its tokens apart at commas and drops blanks.
bool canBeSortedBy(const InputColumn& column)
{
    return !column.isHandle && column.token.find_first_of(", \t") == std::string::npos;
}

// The first column of texts that the catalogue knows; without one the first that may hold texts, which is one of the
// user's own without a unit. Null when there is none.
const InputColumn* sortColumnOf(const Columns& columns)
{
    const InputColumn* pOwn = nullptr;
    for (const InputColumn& column : columns)
    {
        const VorBomTokenCatalogue::Entry* const pEntry = entryOf(column);
        if (!canBeSortedBy(column))
            continue;
        if (pEntry != nullptr && pEntry->type == VorBomDataValue::kStringData)
            return &column;
        if (pOwn == nullptr && isOwn(column) && column.unitSymbol.empty())
            pOwn = &column;
    }
    return pOwn;
}

// Whether rows are sorted by the column with 2 before 10 as it is; the column has to say it otherwise.
bool isNaturalByCatalogue(const InputColumn& column)
{
    const VorBomTokenCatalogue::Entry* const pEntry = entryOf(column);
    return pEntry != nullptr && pEntry->sort == VorBomDataToken::kSortAlphanumeric;
}

std::string tuple(const std::string& token)
{
    return "{ \"token\": " + jsonText(token) + " }";
}

// The elements of an array or object, each on a line of its own, indented by `numBlanks`.
std::string lines(const std::vector<std::string>& elements, std::size_t numBlanks)
{
    std::string text;
    for (const std::string& element : elements)
        text += (text.empty() ? "" : ",\n") + std::string(numBlanks, ' ') + element;
    return text;
}

std::string joined(const std::vector<std::string>& elements)
{
    std::string text;
    for (const std::string& element : elements)
        text += (text.empty() ? "" : ", ") + element;
    return text;
}

// A column is headed as the file has it, "Profil", and "%Length" as "Length"; its unit follows of itself. What was of
// all pieces in the file is of one here.
std::string labelOf(const InputColumn& column)
{
    return column.origin == ColumnName::kWritten || column.isRowTotal ? column.token.substr(1) : column.label;
}

std::vector<std::string> columnElements(const Columns& columns, const InputColumn* pSort)
{
    std::vector<std::string> elements;
    for (const InputColumn& column : columns)
        elements.push_back("{ \"token\": " + jsonText(column.token) + ", \"label\": " + jsonText(labelOf(column)) +
                           (&column == pSort && !isNaturalByCatalogue(column) ? ", \"order\": \"natural\" }" : " }"));
    if (has(columns, kWeight) && has(columns, TokenNames::kPieces))
        elements.push_back("{ \"token\": " + jsonText(kTotalWeight) + ", \"label\": \"Total weight\" }");
    return elements;
}

// Of a column whose content is not known yet nothing is said: a template that called texts numbers would refuse the
// very data that it was made for.
std::vector<std::string> ownTokens(const Columns& columns)
{
    std::vector<std::string> members;
    for (const InputColumn& column : columns)
    {
        const bool isKnown = column.type != VorBomDataValue::kUnknownData || !column.unitSymbol.empty();
        if (isOwn(column) && isKnown)
            members.push_back(jsonText(column.token) +
                              (column.type == VorBomDataValue::kStringData ? ": \"text\"" : ": \"number\""));
    }
    return members;
}

// A column of the user's own is shown in the reader's units when the template names its kind, and its heading has told
// that: "Gap [in]" is a length.
std::vector<std::string> tokenUnits(const Columns& columns)
{
    std::vector<std::string> members;
    for (const InputColumn& column : columns)
    {
        const std::optional<MEKUnit> unit = InputUnits::find(column.unitSymbol, VorBomTemplateUnits::kNoUnit);
        if (!isOwn(column) || !unit)
            continue;
        const VorBomTemplateUnits::eTokenUnitType type =
            VorBomTemplateUnits::unitTypeOf(unit->getVorUnitTransform().system());
        members.push_back(jsonText(column.token) + ": " +
                          jsonText(UnitKinds::typeNames()[static_cast<std::size_t>(type)]));
    }
    return members;
}

// What the user had to say of the file's headings, so that the list needs no more options than its data.
std::vector<std::string> headings(const Columns& columns)
{
    std::vector<std::string> members;
    for (const InputColumn& column : columns)
        if (column.origin == ColumnName::kMapped)
            members.push_back(jsonText(column.label) + ": " + jsonText(column.token));
    return members;
}

std::string object(const std::string& key, const std::vector<std::string>& members)
{
    return members.empty() ? "" : "  \"" + key + "\": {\n" + lines(members, 4) + "\n  },\n";
}

// The sorting request goes first, and steers; the tuples behind it are the columns, one each.
std::vector<std::string> details(const Columns& columns, const InputColumn* pSort)
{
    std::vector<std::string> tuples;
    if (pSort != nullptr)
        tuples.push_back(tuple("%SortAscBy:" + pSort->token));
    for (const InputColumn& column : columns)
        tuples.push_back(tuple(column.token));
    if (has(columns, kWeight) && has(columns, TokenNames::kPieces))
        tuples.push_back(tuple(kTotalWeight));
    return tuples;
}

// A row's weight is that of one piece.
std::vector<std::string> totals(const Columns& columns)
{
    std::vector<std::string> tuples;
    if (has(columns, TokenNames::kPieces))
        tuples.push_back(tuple(std::string("%SumBy:") + TokenNames::kPieces));
    if (has(columns, kWeight))
        tuples.push_back(tuple(std::string("%SumBy:") + (has(columns, TokenNames::kPieces) ? kTotalWeight : kWeight)));
    return tuples;
}

std::string footer(const std::string& type, const std::string& label, const std::vector<std::string>& tuples)
{
    return "{ \"type\": \"" + type + "\", \"label\": \"" + label + "\", \"tuples\": [ " + joined(tuples) + " ] }";
}

// The lines as they would stand with their slashes taken away. The group sorts as well: a list that is grouped by what
// it is not sorted by splits its groups.
std::string groupBegin(const InputColumn& column)
{
    return "        // Groups: take away the slashes before the next two lines, and before the one below the details.\n"
           "        // { \"type\": \"kGroupHeader\", \"tuples\": [ " +
           joined({ tuple("%GroupBy:" + column.token), tuple("%SortAscBy:" + column.token), tuple(column.token) }) +
           " ],\n        //   \"children\": [\n";
}

std::string groupEnd(const std::vector<std::string>& totals)
{
    return "\n        // ] }" + (totals.empty() ? "" : ", " + footer("kGroupFooter", "Sum", totals));
}

std::string columnsMember(const Columns& columns, const InputColumn* pSort)
{
    return "  // In the order in which they are printed; \"unit\": \"m/2\" or \"width\": 20 say how.\n"
           "  \"columns\": [\n" +
           lines(columnElements(columns, pSort), 4) + "\n  ],\n";
}

// The details alone below the report's header, between the comments that make a group; below them the totals, where
// there is anything to total.
std::string sectionsMember(const Columns& columns, const InputColumn* pSort)
{
    const std::vector<std::string> sums = totals(columns);
    std::string text = "  \"sections\": [\n"
                       "    {\n"
                       "      \"type\": \"kReportHeader\",\n"
                       "      \"children\": [\n";
    if (pSort != nullptr)
        text += groupBegin(*pSort);
    text += "        {\n"
            "          \"type\": \"kDetails\",\n"
            "          \"tuples\": [\n" +
            lines(details(columns, pSort), 12) +
            "\n          ]\n"
            "        }";
    if (pSort != nullptr)
        text += groupEnd(sums);
    text += "\n      ]\n    }";
    if (!sums.empty())
        text += ",\n    " + footer("kReportFooter", "Total", sums);
    return text + "\n  ]\n";
}
}

std::string textOf(const Columns& allColumns)
{
    Columns columns;
    std::copy_if(allColumns.begin(), allColumns.end(), std::back_inserter(columns), isDatum);
    const InputColumn* const pSort = sortColumnOf(columns);
    return "// A list with every column of its data: mekbom report --data DATA --template THIS-FILE prints it.\n"
           "// Take out columns that you do not need, in \"columns\" and in \"tuples\", and rename others.\n"
           "{\n"
           "  \"$schema\": \"mekbom-template.schema.json\", // beside this file it makes editors check it\n"
           "  // \"title\": \"My list\",\n"
           "  \"equalLines\": \"keep\", // or \"count\": one line for all rows that read alike\n" +
           object("headings", headings(columns)) + object("tokens", ownTokens(columns)) +
           object("tokenUnits", tokenUnits(columns)) + columnsMember(columns, pSort) + sectionsMember(columns, pSort) +
           "}\n";
}
}
