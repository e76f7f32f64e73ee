#include "JsonColumn.h"

#include "JsonText.h"
#include "Utf8.h"

namespace mekbom::JsonColumn
{
namespace
{
// What the values of a column are. A column whose numbers have several units says of each which it has.
const char* kindOf(const ReportColumn& column)
{
    if (column.hasMixedUnits)
        return "mixed";
    if (column.pUnitKind != nullptr)
        return column.pUnitKind->name;
    return column.isNumeric ? "number" : "text";
}

// Of most columns totals are sums, which is not said.
std::string totalOf(const ReportColumn& column)
{
    return column.total == ColumnTotal::kSum
               ? std::string()
               : std::string(", \"total\": \"") + ColumnTotal::nameOf(column.total) + "\"";
}

std::string textOrNull(const std::string& text)
{
    return text.empty() ? "null" : jsonText(text);
}
}

std::string textOf(const ReportColumn& column)
{
    return "{\"token\": " + jsonText(Utf8::toBytes(column.token)) + ", \"label\": " + jsonText(column.label) +
           ", \"heading\": " + jsonText(column.heading()) + ", \"kind\": \"" + kindOf(column) +
           "\", \"unit\": " + textOrNull(column.unitOfNumbers()) + ", \"shownUnit\": " + textOrNull(column.unitSymbol) +
           totalOf(column) + "}";
}

std::string textOf(const std::vector<ReportColumn>& columns)
{
    std::string text = "[";
    for (const ReportColumn& column : columns)
        text += (&column == columns.data() ? "\n" : ",\n") + textOf(column);
    return text + "]";
}
}
