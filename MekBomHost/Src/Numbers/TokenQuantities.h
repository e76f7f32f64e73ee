// What stands under a token in a report: texts, whole numbers, plain numbers or quantities.
//
//   const TokenQuantities quantities(data, tokenUnits, formulas);
//   quantities.typeOf(L"%SumBy:%Weight");                         // kDoubleData
//   quantities.kindOf(L"%Weight")->name;                          // "weight"
//   quantities.kindOf(L"%Formula:%Weight/%Length")->name;         // "weight-per-length"
//   quantities.measureOf(L"%Formula:%Weight*%Price").label;       // "EUR", when the formula's column says so
//   quantities.typeOf(L"%CountBy:%Weight");                       // kIntData: totals that are no sums count, too
#pragma once

#include "FormulaResults.h"
#include "UnitKinds.h"

#include "VorBomData.h"
#include "VorBomTemplateUnits.h"

#include "MekRoots/Exp/VorString.h"
#include "MekRoots/Exp/VorStringHashMap.h"

#include <string>
#include <vector>

namespace mekbom
{
// What numbers measure, as far as a heading tells it.
struct Measure
{
    const UnitKind* pKind = nullptr; // null for numbers without a unit
    std::string label;               // what the template calls the unit of such numbers, UTF-8; mostly empty

    bool operator==(const Measure& other) const { return pKind == other.pKind && label == other.label; }
    bool isNamed() const { return pKind != nullptr || !label.empty(); }
};

class TokenQuantities
{
public:
    // None of the three is owned; all must outlive this object, and the rows stay as they are meanwhile.
    TokenQuantities(const VorBomData& data, const VorBomTemplateUnits& tokenUnits, const FormulaResults& formulas);

    // The type that the datum has in the first row that has it; kUnknownData when none has.
    static VorBomDataValue::eBomDataValueType typeInRows(const VorBomData& data, const VorString& datum);

    // The type of the values under `token`: a number for formulas, as the catalogue of tokens says for those it knows,
    // and for others that of the first row that has the datum; kUnknownData when none has.
    VorBomDataValue::eBomDataValueType typeOf(const VorString& token) const;
    bool isNumeric(const VorString& token) const;

    // The kind of quantity that the doubles under `token` are shown as.
    VorBomTemplateUnits::eTokenUnitType unitTypeOf(const VorString& token) const;

    // The same kind, with the name that users know it by; null for what has no unit, as whole numbers and texts.
    const UnitKind* kindOf(const VorString& token) const;
    Measure measureOf(const VorString& token) const;

    // What all numbers of a column measure that shows these tokens: unnamed when they do not agree, and when the first
    // is no number. Texts behind it do not disturb: no unit is printed beside them.
    //   { "%Weight", "%SumBy:%Weight", "%Name" }  ->  weight
    //   { "%Weight", "%SumBy:%Quantity" }         ->  unnamed
    Measure commonMeasureOf(const std::vector<VorString>& tokens) const;

private:
    VorBomDataValue::eBomDataValueType typeOfDatum(const VorString& datum) const;

    const VorBomData& m_data;
    const VorBomTemplateUnits& m_tokenUnits;
    const FormulaResults& m_formulas;
    VorStringHashMap<VorBomDataValue::eBomDataValueType> m_typesInFirstRow;
};
}
