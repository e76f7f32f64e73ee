// The unit that a column's heading names: "Length [mm]", "Length [ft-in]", "Weight [lb]".
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
class ColumnUnit
{
public:
    // None is owned; all outlive this. `units` are those that `tokenUnits` show numbers in.
    ColumnUnit(const VorBomData& data, const VorBomTemplateUnits& tokenUnits, const VorUnitsManager& units)
        : m_data(data), m_tokenUnits(tokenUnits), m_units(units)
    {
    }

    // The symbol, in UTF-8, of the unit in which a column shows these tokens; empty where the first shows none, and
    // where others show another. Whole numbers and texts have no unit.
    std::string symbolOf(const std::vector<VorString>& shownTokens) const;

    // The heading with the symbol in brackets; as it is without a symbol, and when it is the symbol or ends in brackets
    // of its own.
    static std::string headingOf(const std::string& label, const std::string& symbol);

private:
    const UnitKind* kindOf(const VorString& token) const;

    const VorBomData& m_data;
    const VorBomTemplateUnits& m_tokenUnits;
    const VorUnitsManager& m_units;
};
}
