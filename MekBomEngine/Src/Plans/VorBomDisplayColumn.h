// How the numbers under one token become the text that a report shows.
//
//   VorBomDisplayColumn(L"%SumBy:%Weight")            shows numbers as %Weight is shown
//   VorBomDisplayColumn(L"%Formula:%Length*2")        as a length: in the unit of the first token that has one
//   VorBomDisplayColumn(L"%Num")                      as "%g" does, or with its decimals, when the units know no type
//
// The kind of unit is looked up at the first number, and again only when the units have been told of further tokens. So
// an object is for the units of one evaluation alone.
#pragma once

#include "VorBomDataToken.h"
#include "VorBomDataValue.h"
#include "VorBomNumberFormat.h"
#include "VorBomTemplateUnits.h"
#include "VorBomTextMemo.h"

#include "MekRoots/Exp/VorString.h"

class VorBomDisplayColumn
{
public:
    explicit VorBomDisplayColumn(const VorBomDataToken& token);

    // Replaces a number by its text; texts and empty values stay. Integers get no units. A formula's unit, once found,
    // is registered with `units` under the formula's text.
    void show(VorBomTemplateUnits& units, VorBomDataValue& value)
    {
        if (value.type() == VorBomDataValue::kIntData)
            value.set(textOf(*static_cast<const int*>(value.data())));
        else if (value.type() == VorBomDataValue::kDoubleData)
            value.set(textOf(*static_cast<const double*>(value.data()), units));
    }

    // Numbers are shown by `pFormat` from now on, whatever their unit. It is not owned and outlives this; null: by the
    // units, as at first.
    void setFormat(const VorBomNumberFormat* pFormat) { m_pFormat = pFormat; }

    // The kind of unit that the last double was shown in; that of its token where a format shows it.
    VorBomTemplateUnits::eTokenUnitType unitType() const { return m_type; }

private:
    static constexpr int kNeverLookedUp = -1;

    VorString textOf(int value);
    VorString textOf(double value, VorBomTemplateUnits& units);
    void lookUpType(VorBomTemplateUnits& units);
    void registerFormulaUnit(VorBomTemplateUnits& units) const;
    int decimalsIn(const VorBomTemplateUnits& units) const;

    VorString m_name; // without prefixes; for a formula its text
    bool m_isFormula;
    const VorBomNumberFormat* m_pFormat = nullptr;
    VorBomTemplateUnits::eTokenUnitType m_type = VorBomTemplateUnits::kNoUnit;
    int m_nDecimals = VorBomTemplateUnits::kSignificantDigits; // of numbers without a unit
    int m_nTypesKnown = kNeverLookedUp; // how many tokens the units knew when the type was looked up
    VorBomTextMemo m_texts;             // of doubles, in the units of m_type
    VorBomTextMemo m_integerTexts;
};
