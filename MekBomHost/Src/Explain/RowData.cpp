// Words about a row show its data as a list without columns of its own would: in the unit that the report has for their
// kind, with the symbol behind it. A column may show the same datum otherwise (ListNumbers); a row has no columns.
#include "RowData.h"

#include "ColumnUnit.h"
#include "InQuotes.h"
#include "InputUnits.h"
#include "NumberInValue.h"
#include "UnitKinds.h"
#include "Utf8.h"
#include "WordList.h"

#include "VorBomDataToken.h"
#include "VorBomDataTuple.h"

#include <algorithm>

namespace mekbom
{
std::optional<double> RowData::numberIn(const VorBomDataRow& row, const VorString& token)
{
    const VorBomDataTuple* const pTuple = row.getTupleAt(token);
    return pTuple != nullptr ? mekbom::numberIn(pTuple->value()) : std::nullopt;
}

std::string RowData::textOf(const VorBomDataRow& row, const VorString& token) const
{
    return textOf(row.getTupleAt(token), token);
}

std::string RowData::textOf(const VorBomDataTuple* pTuple, const VorString& token) const
{
    if (pTuple == nullptr)
        return "none";
    if (pTuple->value().type() == VorBomDataValue::kDoubleData)
        return quantity(token, *mekbom::numberIn(pTuple->value()));
    const std::string text = Utf8::toBytes(pTuple->value().asString());
    return pTuple->value().type() == VorBomDataValue::kStringData ? inQuotes(text) : text;
}

// The engine looks in the row first and in the section then, and a formula may name a datum twice: "%A*%A" has one.
std::string RowData::operandsOf(const VorBomDataRow& row, const VorString& formula,
                                const VorBomTemplateItem& section) const
{
    std::vector<std::string> operands;
    for (const VorString& token : VorBomDataToken::getTokensFromFormula(formula))
    {
        const VorBomDataTuple* const pOfSection = section.getTupleAt(token);
        const bool isTemplates = row.getTupleAt(token) == nullptr && pOfSection != nullptr;
        const std::string operand =
            Utf8::toBytes(token) + " " +
            (isTemplates ? textOf(pOfSection, token) + " (the template's)" : textOf(row, token));
        if (std::find(operands.begin(), operands.end(), operand) == operands.end())
            operands.push_back(operand);
    }
    return WordList::joined(operands);
}

// Feet and inches have their marks and degrees their signs; all other numbers need a symbol to be understood.
std::string RowData::quantity(const VorString& token, double number) const
{
    const VorBomTemplateUnits& tokenUnits = *m_report.reportTemplate.pTemplate->getBomTemplateUnits();
    std::string text = Utf8::toBytes(tokenUnits.getDisplayString(token, number));
    const UnitKind* const pKind = UnitKinds::find(tokenUnits.getUnitType(token));
    if (pKind == nullptr)
        return text;
    const MEKUnit& unit = m_report.units.getUnit(pKind->system);
    const bool hasSymbol = !InputUnits::takesPlainNumbers(unit);
    return hasSymbol ? text : text + " " + ColumnUnit::symbolOf(unit);
}
}
