#include "ColumnType.h"

#include "VorBomDataToken.h"
#include "VorBomDataTuple.h"
#include "VorBomTokenCatalogue.h"

namespace mekbom::ColumnType
{
namespace
{
using Units = VorBomTemplateUnits;

// Of the first row that has the datum.
VorBomDataValue::eBomDataValueType typeInData(const VorBomData& data, const VorString& token)
{
    for (const VorBomItemBase* pRow = data.child(); pRow != nullptr; pRow = pRow->next())
        if (const VorBomDataTuple* const pTuple = pRow->getTupleAt(token))
            return pTuple->value().type();
    return VorBomDataValue::kUnknownData;
}
// The type that `token` would have if it was registered now: a template may have given it to kNoUnit before.
Units::eTokenUnitType registeredLast(Units units, const VorString& token, Units::eTokenUnitType type)
{
    units.AddTokenType(token, type);
    return units.getUnitType(token);
}
}

VorString datumOf(const VorString& token)
{
    VorString summed;
    return VorBomDataToken(token).getSummingRequest(summed) == 1 ? summed : token;
}

VorBomDataValue::eBomDataValueType typeOf(const VorBomData& data, const VorString& token)
{
    const VorString datum = datumOf(token);
    if (VorBomDataToken::isFormula(datum) == 1)
        return VorBomDataValue::kDoubleData;
    const VorBomTokenCatalogue::Entry* const pEntry = VorBomTokenCatalogue::find(datum);
    return pEntry != nullptr ? pEntry->type : typeInData(data, datum);
}

Units::eTokenUnitType unitTypeOf(const Units& units, const VorString& token)
{
    VorString name = datumOf(token);
    const int isFormula = VorBomDataToken::removeFormulaPrefix(name);
    Units::eTokenUnitType type = units.getUnitType(name);
    if (isFormula == 0 || type != Units::kNoUnit)
        return type;
    for (const VorString& operand : VorBomDataToken::getTokensFromFormula(name))
        if (type == Units::kNoUnit)
            type = units.getUnitType(operand);
    return registeredLast(units, name, type);
}
}
