// Shows quantities in a unit that a column has for itself, as precisely as it says.
//
//   VorUnitsManager units;
//   units.setUnit(VorUnitsTransformArray::kDistance, L"m/2");
//   const QuantityNumber metres(units.getUnit(VorUnitsTransformArray::kDistance), DisplaySettings(), false, false);
//   metres.textOf(12345.0)   ->  "12.35"
//
// Whole numbers are quantities in the model's unit, too: beside a heading that names metres nothing else could be meant.
#pragma once

#include "DisplaySettings.h"

#include "VorBomNumberFormat.h"

#include "MekRoots/Exp/MEKUnit.h"
#include "MekRoots/Exp/VorUnitsManager.h"

namespace mekbom
{
class QuantityNumber : public VorBomNumberFormat
{
public:
    // The symbol stands behind each number in columns whose headings cannot name it.
    QuantityNumber(const MEKUnit& unit, const DisplaySettings& settings, bool hasThousands, bool hasSymbol)
        : m_unit(unit), m_settings(settings), m_hasThousands(hasThousands), m_hasSymbol(hasSymbol)
    {
    }

    VorString textOf(int value) const override { return textOf(static_cast<double>(value)); }
    VorString textOf(double value) const override;

private:
    MEKUnit m_unit;
    DisplaySettings m_settings;
    bool m_hasThousands;
    bool m_hasSymbol;
};
}
