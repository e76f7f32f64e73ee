#include "ColumnUnit.h"

#include "ColumnType.h"
#include "Utf8.h"

#include "MekUnits/Src/VorUnitDefinition.h"

namespace mekbom
{
std::string ColumnUnit::symbolOf(const std::vector<VorString>& shownTokens) const
{
    const UnitKind* const pFirst = shownTokens.empty() ? nullptr : kindOf(shownTokens.front());
    if (pFirst == nullptr)
        return std::string();
    for (const VorString& token : shownTokens)
    {
        const UnitKind* const pKind = kindOf(token);
        if (pKind != nullptr && pKind != pFirst)
            return std::string();
    }
    return Utf8::toBytes(VorUnitsTransformArray::findUnit(m_units.getUnit(pFirst->system).unit())->symbol);
}

std::string ColumnUnit::headingOf(const std::string& label, const std::string& symbol)
{
    const bool namesUnit = label == symbol || (!label.empty() && label.back() == ']');
    return symbol.empty() || namesUnit ? label : label + " [" + symbol + "]";
}

// Null for what has no unit.
const UnitKind* ColumnUnit::kindOf(const VorString& token) const
{
    if (ColumnType::typeOf(m_data, token) != VorBomDataValue::kDoubleData)
        return nullptr;
    return UnitKinds::find(ColumnType::unitTypeOf(m_tokenUnits, token));
}
}
