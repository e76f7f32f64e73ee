// What stands under a token in a report: texts, whole numbers or numbers of some kind of quantity, and in which unit.
//
//   const TokenQuantities quantities(data, tokenUnits, VorUnitsManager::imperial());
//   quantities.typeOf(L"%SumBy:%Weight");             // kDoubleData
//   quantities.unitTypeOf(L"%Formula:%Length/2");     // kDistanceUnit
//   quantities.kindOf(L"%Weight")->name;              // "weight"
//   quantities.symbolOf(*quantities.kindOf(L"%Weight")); // "lb"
#pragma once

#include "UnitKinds.h"

#include "VorBomData.h"
#include "VorBomTemplateUnits.h"

#include "MekRoots/Exp/VorString.h"
#include "MekRoots/Exp/VorUnitsManager.h"

#include <string>
#include <vector>

namespace mekbom
{
class TokenQuantities
{
public:
    // None of the three is owned; all must outlive this object. `units` are those that `tokenUnits` show numbers in.
    TokenQuantities(const VorBomData& data, const VorBomTemplateUnits& tokenUnits, const VorUnitsManager& units)
        : m_data(data), m_tokenUnits(tokenUnits), m_units(units)
    {
    }

    // The token that a total sums; any other token as it is.
    //   "%SumBy:%Weight"  ->  "%Weight"
    static VorString datumOf(const VorString& token);

    // The type of the values under `token`: a number for formulas, as the catalogue of tokens says for those it knows,
    // and for others that of the first row that has the datum; kUnknownData when none has.
    VorBomDataValue::eBomDataValueType typeOf(const VorString& token) const;
    bool isNumeric(const VorString& token) const;

    // The kind of quantity that the engine shows the doubles under `token` as. A formula without a kind of its own has
    // that of its first token that has one.
    VorBomTemplateUnits::eTokenUnitType unitTypeOf(const VorString& token) const;

    // The same kind, with the name that users know it by; null for what has no unit, as whole numbers and texts.
    const UnitKind* kindOf(const VorString& token) const;

    // The kind of all numbers that one column shows under these tokens; null where the first has none, and where
    // another one has another.
    //   { "%Weight", "%SumBy:%Weight", "%Name" }  ->  weight
    const UnitKind* commonKindOf(const std::vector<VorString>& tokens) const;

    // The symbol, in UTF-8, of the unit that quantities of that kind are shown in.
    std::string symbolOf(const UnitKind& kind) const;

private:
    VorBomDataValue::eBomDataValueType typeInData(const VorString& datum) const;

    const VorBomData& m_data;
    const VorBomTemplateUnits& m_tokenUnits;
    const VorUnitsManager& m_units;
};
}
