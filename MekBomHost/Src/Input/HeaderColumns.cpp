#include "HeaderColumns.h"

#include "Fault.h"
#include "FindingCodes.h"
#include "HeaderRow.h"
#include "InQuotes.h"
#include "NearestWord.h"
#include "TokenNames.h"
#include "Utf8.h"

#include <cstddef>
#include <string>
#include <unordered_map>
#include <utility>

namespace mekbom
{
namespace
{
// What is wrong with "--map HEADING=TOKEN".
[[noreturn]] void failInMapping(const HeadingMapping& mapping, Finding finding)
{
    finding.source = "--map " + mapping.heading + "=" + mapping.token;
    throw Fault(kWrongUsage, finding);
}

void checkMappings(const ColumnNames& names, const RecordSource& source)
{
    if (names.missing.empty())
        return;
    const HeadingMapping& mapping = names.missing.front();
    std::vector<std::string> labels;
    for (const ColumnName& column : names.columns)
        labels.push_back(column.label);
    Finding finding =
        Finding::stating(FindingCodes::kHeadingMissing, source.name() + " has no column " + inQuotes(mapping.heading));
    finding.remedy = NearestWord::question(mapping.heading, labels);
    failInMapping(mapping, finding);
}

InputColumn columnOf(const std::string& heading, const ColumnName& name)
{
    InputColumn column;
    column.name = heading;
    column.label = name.label;
    column.token = name.token;
    column.tupleToken = Utf8::toWide(name.token);
    column.unitSymbol = name.unit;
    column.isRowTotal = name.isRowTotal;
    column.origin = name.origin;
    column.doubt = name.doubt;
    column.isHandle = name.token == TokenNames::kHandle;
    column.isPieces = name.token == TokenNames::kPieces;
    return column;
}

// What is twice: a token that is written so, or one that two headings stand for.
std::string againIn(const InputColumn& first, const InputColumn& second)
{
    if (first.origin == ColumnName::kWritten && second.origin == ColumnName::kWritten)
        return "column " + inQuotes(second.token) + " a second time";
    return "column " + inQuotes(second.token) + " twice, as " + inQuotes(first.name) + " and " + inQuotes(second.name);
}

Finding withoutName(std::size_t column)
{
    return Finding::of(FindingCodes::kColumnWithoutName, "no name in field " + std::to_string(column + 1),
                       "a column name");
}
}

HeaderColumns HeaderColumns::read(RecordSource& source, const HeadingChoices& choices)
{
    const Record& record = HeaderRow::read(source);
    std::vector<std::string> headings;
    for (const RecordCell& cell : record)
        headings.push_back(cell.asText());
    const ColumnNames names = ColumnNames::of(headings, choices);
    checkMappings(names, source);

    HeaderColumns header;
    std::unordered_map<std::string, std::size_t> indices; // of the first column with each token
    const auto add = [&](Finding finding)
    {
        source.placeRecord(finding);
        header.mistakes.add(std::move(finding));
    };
    for (std::size_t i = 0; i < headings.size(); ++i)
    {
        header.columns.push_back(columnOf(headings[i], names.columns[i]));
        const InputColumn& column = header.columns[i];
        const std::size_t first = indices.emplace(column.token, i).first->second;
        if (record[i].isRefused())
        {
            Finding refusal = record[i].refusal();
            source.placeCell(i, refusal);
            header.mistakes.add(std::move(refusal));
        }
        else if (column.token == "%")
            add(withoutName(i));
        else if (first != i)
            add(Finding::of(FindingCodes::kColumnTwice, againIn(header.columns[first], column)));
    }
    return header;
}
}
