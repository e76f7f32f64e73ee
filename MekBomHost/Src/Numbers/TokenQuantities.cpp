// Told on "%SumBy:%Formula:%Weight*2":
//     datum       %Formula:%Weight*2        formulas give doubles
//     kind        weight                    what the formula gives, FormulaResults tell
//   and on "%Cut", a token of the user's own:
//     type        that of the first row which has it
//     kind        the one that the template registers for it; none for texts and whole numbers
#include "TokenQuantities.h"

#include "TotalTokens.h"

#include "VorBomDataToken.h"
#include "VorBomDataTuple.h"
#include "VorBomTokenCatalogue.h"

namespace mekbom
{
using Units = VorBomTemplateUnits;

TokenQuantities::TokenQuantities(const VorBomData& data, const VorBomTemplateUnits& tokenUnits,
                                 const FormulaResults& formulas)
    : m_data(data), m_tokenUnits(tokenUnits), m_formulas(formulas)
{
    if (data.child() == nullptr)
        return;
    bool isFirst = false; // of equal tokens in the row
    for (const VorBomDataTuple& tuple : data.child()->getData())
        m_typesInFirstRow.findOrInsert(tuple.token().token(), tuple.value().type(), isFirst);
}

VorBomDataValue::eBomDataValueType TokenQuantities::typeOf(const VorString& token) const
{
    const ColumnTotal::eKind total = TotalTokens::kindOf(token);
    if (total == ColumnTotal::kCount)
        return VorBomDataValue::kIntData;
    const VorString datum = TotalTokens::datumOf(token);
    if (total == ColumnTotal::kMean || total == ColumnTotal::kCalculated || VorBomDataToken::isFormula(datum) == 1)
        return VorBomDataValue::kDoubleData;
    const VorBomTokenCatalogue::Entry* const pEntry = VorBomTokenCatalogue::find(datum);
    return pEntry != nullptr ? pEntry->type : typeOfDatum(datum);
}

// Most columns are those of the first row, of which there may be thousands. What it lacks is looked for in all rows.
VorBomDataValue::eBomDataValueType TokenQuantities::typeOfDatum(const VorString& datum) const
{
    const auto* const pType = m_typesInFirstRow.find(datum);
    return pType != nullptr ? pType->value : typeInRows(m_data, datum);
}

bool TokenQuantities::isNumeric(const VorString& token) const
{
    const VorBomDataValue::eBomDataValueType type = typeOf(token);
    return type == VorBomDataValue::kIntData || type == VorBomDataValue::kDoubleData;
}

Units::eTokenUnitType TokenQuantities::unitTypeOf(const VorString& token) const
{
    if (TotalTokens::kindOf(token) == ColumnTotal::kCount)
        return Units::kNoUnit;
    const FormulaResult* const pResult = m_formulas.find(token);
    return pResult != nullptr ? pResult->kind : m_tokenUnits.getUnitType(TotalTokens::datumOf(token));
}

// A token that no row has may have a unit all the same.
const UnitKind* TokenQuantities::kindOf(const VorString& token) const
{
    const VorBomDataValue::eBomDataValueType type = typeOf(token);
    const bool hasUnits = type == VorBomDataValue::kDoubleData || type == VorBomDataValue::kUnknownData;
    return hasUnits ? UnitKinds::find(unitTypeOf(token)) : nullptr;
}

Measure TokenQuantities::measureOf(const VorString& token) const
{
    const FormulaResult* const pResult =
        TotalTokens::kindOf(token) == ColumnTotal::kCount ? nullptr : m_formulas.find(token);
    return { kindOf(token), pResult != nullptr ? pResult->label : std::string() };
}

Measure TokenQuantities::commonMeasureOf(const std::vector<VorString>& tokens) const
{
    Measure first = tokens.empty() ? Measure() : measureOf(tokens.front());
    for (const VorString& token : tokens)
        if (isNumeric(token) && !(measureOf(token) == first))
            return {};
    return first;
}

// For a datum that no row has, this looks at all of them, once for each question about a token that the catalogue does
// not know: for a column of the report, not for its lines.
VorBomDataValue::eBomDataValueType TokenQuantities::typeInRows(const VorBomData& data, const VorString& datum)
{
    for (const VorBomItemBase* pRow = data.child(); pRow != nullptr; pRow = pRow->next())
        if (const VorBomDataTuple* const pTuple = pRow->getTupleAt(datum))
            return pTuple->value().type();
    return VorBomDataValue::kUnknownData;
}
}
