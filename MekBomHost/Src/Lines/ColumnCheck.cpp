#include "ColumnCheck.h"

#include "ColumnUnit.h"
#include "FindingCodes.h"
#include "InQuotes.h"
#include "UnitChoice.h"

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

bool showsFormula(const ReportColumn& column)
{
    return std::any_of(column.shownTokens.begin(), column.shownTokens.end(),
                       [](const VorString& token)
                       { return VorBomDataToken::isFormula(TokenQuantities::datumOf(token)) == 1; });
}

void add(std::vector<Finding>& findings, Finding finding, const ColumnStyle& style, const char* key)
{
    finding.begin = style.place.span.begin;
    finding.end = style.place.span.end;
    finding.path = style.place.path + "/" + key;
    findings.push_back(finding);
}
}

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
        if (!pStyle->result.empty() && !showsFormula(column))
            add(findings, hasNone("result", pStyle->result, "formulas"), *pStyle, "result");
    }
    return findings;
}
}
