// Says of a token, before it is shown, what the engine will do with its numbers: the same look-ups in the same order.
//
//   "%SumBy:%Formula:%Weight*2"
//     datum       %Formula:%Weight*2        formulas give doubles
//     unit type   of "%Weight*2": none      so that of its first operand with one, "%Weight": kWeightUnit
//     kind        "weight", in pounds: "lb"
#include "TokenQuantities.h"

#include "Utf8.h"

#include "VorBomDataToken.h"
#include "VorBomDataTuple.h"
#include "VorBomTokenCatalogue.h"

#include "MekUnits/Src/VorUnitDefinition.h"

namespace mekbom
{
namespace
{
using Units = VorBomTemplateUnits;

// The type that `token` would have if it was registered now. The engine shows a formula as of its operand's kind only
// where no template has said otherwise: one that gave it to kNoUnit before has taken its unit away.
// Asked of a copy, on purpose: the template's own units stay as they are.
Units::eTokenUnitType registeredLast(Units units, const VorString& token, Units::eTokenUnitType type)
{
    units.AddTokenType(token, type);
    return units.getUnitType(token);
}
}

VorString TokenQuantities::datumOf(const VorString& token)
{
    VorString summed;
    return VorBomDataToken(token).getSummingRequest(summed) == 1 ? summed : token;
}

VorBomDataValue::eBomDataValueType TokenQuantities::typeOf(const VorString& token) const
{
    const VorString datum = datumOf(token);
    if (VorBomDataToken::isFormula(datum) == 1)
        return VorBomDataValue::kDoubleData;
    const VorBomTokenCatalogue::Entry* const pEntry = VorBomTokenCatalogue::find(datum);
    return pEntry != nullptr ? pEntry->type : typeInData(datum);
}

bool TokenQuantities::isNumeric(const VorString& token) const
{
    const VorBomDataValue::eBomDataValueType type = typeOf(token);
    return type == VorBomDataValue::kIntData || type == VorBomDataValue::kDoubleData;
}

Units::eTokenUnitType TokenQuantities::unitTypeOf(const VorString& token) const
{
    VorString name = datumOf(token);
    const int isFormula = VorBomDataToken::removeFormulaPrefix(name);
    Units::eTokenUnitType type = m_tokenUnits.getUnitType(name);
    if (isFormula == 0 || type != Units::kNoUnit)
        return type;
    for (const VorString& operand : VorBomDataToken::getTokensFromFormula(name))
        if (type == Units::kNoUnit)
            type = m_tokenUnits.getUnitType(operand);
    return registeredLast(m_tokenUnits, name, type);
}

const UnitKind* TokenQuantities::kindOf(const VorString& token) const
{
    return typeOf(token) == VorBomDataValue::kDoubleData ? UnitKinds::find(unitTypeOf(token)) : nullptr;
}

// What has no kind, a text or a count, does not disturb: no unit is printed beside it.
const UnitKind* TokenQuantities::commonKindOf(const std::vector<VorString>& tokens) const
{
    const UnitKind* const pFirst = tokens.empty() ? nullptr : kindOf(tokens.front());
    for (const VorString& token : tokens)
    {
        const UnitKind* const pKind = kindOf(token);
        if (pKind != nullptr && pKind != pFirst)
            return nullptr;
    }
    return pFirst;
}

std::string TokenQuantities::symbolOf(const UnitKind& kind) const
{
    return Utf8::toBytes(VorUnitsTransformArray::findUnit(m_units.getUnit(kind.system).unit())->symbol);
}

// The type that the datum has in the first row that has it; kUnknownData when none has.
// For a datum that no row has, this looks at all of them, once for each question about a token that the catalogue does
// not know: for a column of the report, not for its lines.
VorBomDataValue::eBomDataValueType TokenQuantities::typeInData(const VorString& datum) const
{
    for (const VorBomItemBase* pRow = m_data.child(); pRow != nullptr; pRow = pRow->next())
        if (const VorBomDataTuple* const pTuple = pRow->getTupleAt(datum))
            return pTuple->value().type();
    return VorBomDataValue::kUnknownData;
}
}
