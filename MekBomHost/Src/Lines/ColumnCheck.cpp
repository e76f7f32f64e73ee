// A column is asked what it shows once the layout knows it, since a template tells that of no column directly: what
// stands in it follows from the tuples of all sections. A column of lengths with the label "Cut [m]" and the unit
// "m/2":
//   unit      every kind of quantity in the column must have it: lengths have metres
//   label     the brackets must not name another unit than the numbers are in: they are in metres
//   result    there is none, and none would be right: %Length is no formula
#include "ColumnCheck.h"

#include "ColumnUnit.h"
#include "FindingCodes.h"
#include "InQuotes.h"
#include "MistakeCodes.h"
#include "TotalTokens.h"
#include "UnitChoice.h"
#include "Utf8.h"

#include "VorBomDataToken.h"

#include <algorithm>
#include <optional>
#include <string>

namespace mekbom::ColumnCheck
{
namespace
{
Finding hasNone(const char* key, const std::string& value, const char* what)
{
    return Finding::stating(FindingCodes::kColumnHasNoSuch, std::string("the ").append(key) + " " + inQuotes(value) +
                                                                " is for " + what + ", of which the column has none");
}

// All kinds of quantity that the column shows must have the unit.
std::optional<Finding> errorOfUnit(const ReportColumn& column, const ColumnStyle& style,
                                   const TokenQuantities& quantities)
{
    bool hasKind = false;
    for (const VorString& token : column.shownTokens)
        if (const UnitKind* const pKind = quantities.kindOf(token))
        {
            hasKind = true;
            if (!ColumnUnit::ownOf(style, *pKind))
                return UnitChoice::unitUnknown(style.unit, *pKind);
        }
    if (hasKind)
        return std::nullopt;
    return hasNone("unit", style.unit, "quantities");
}

bool showsOtherTotal(const ReportColumn& column)
{
    return std::any_of(column.shownTokens.begin(), column.shownTokens.end(),
                       [](const VorString& token) { return TotalTokens::kindOf(token) != ColumnTotal::kSum; });
}

bool showsFormula(const ReportColumn& column)
{
    return std::any_of(column.shownTokens.begin(), column.shownTokens.end(),
                       [](const VorString& token)
                       {
                           return TotalTokens::kindOf(token) == ColumnTotal::kCalculated ||
                                  VorBomDataToken::isFormula(TotalTokens::datumOf(token)) == 1;
                       });
}

// The heading would name two units: "Cost [EUR] [kg]", or "Cost [EUR] [USD]". Numbers of the data may have words such as "[net]" in brackets;
// those of a formula would be taken for what the brackets call them.
std::optional<Finding> errorOfLabel(const ReportColumn& column)
{
    const std::string named = column.otherBrackets();
    const bool isOfFormula = showsFormula(column);
    const bool isUnit = VorUnitsTransformArray::findUnit(Utf8::toWide(named)) != nullptr;
    if (named.empty() || (!isOfFormula && !isUnit))
        return std::nullopt;
    const std::string shown = column.pUnitKind != nullptr ? "the numbers are " + std::string(column.pUnitKind->name)
                                                          : "\"result\" says " + column.unitSymbol;
    Finding finding = Finding::stating(MistakeCodes::kResultUndeclared,
                                       "the label " + inQuotes(column.label) + " names " + named + ", but " + shown);
    finding.remedy = isOfFormula && !isUnit
                         ? "say \"result\": " + inQuotes(named) + " in the column, or leave the brackets out"
                         : "leave the brackets out: the heading names the unit";
    return finding;
}

// The finding is placed at the column's object as a whole, and its path names the key.
void add(std::vector<Finding>& findings, Finding finding, const ColumnStyle& style, const char* key)
{
    finding.begin = style.place.span.begin;
    finding.end = style.place.span.end;
    finding.path = style.place.path + "/" + key;
    findings.push_back(finding);
}
}

// Hidden columns are in no layout, and a column that the template does not describe says nothing that could be wrong.
std::vector<Finding> errorsOf(const ReportTemplate& reportTemplate, const ReportLayout& layout,
                              const TokenQuantities& quantities)
{
    std::vector<Finding> findings;
    for (const ReportColumn& column : layout.columns())
    {
        const ColumnStyle* const pStyle = reportTemplate.columnStyleOf(column.token);
        if (pStyle == nullptr)
            continue;
        const auto error = pStyle->unit.empty() ? std::optional<Finding>() : errorOfUnit(column, *pStyle, quantities);
        if (error)
            add(findings, *error, *pStyle, "unit");
        if (const auto labelError = errorOfLabel(column))
            add(findings, *labelError, *pStyle, "label");
        if (!pStyle->result.empty() && !showsFormula(column))
            add(findings, hasNone("result", pStyle->result, "formulas"), *pStyle, "result");
        if (pStyle->total.kind != ColumnTotal::kSum && !showsOtherTotal(column))
            add(findings, hasNone("total", ColumnTotal::nameOf(pStyle->total.kind), "columns with a total in a footer"),
                *pStyle, "total");
    }
    return findings;
}
}
