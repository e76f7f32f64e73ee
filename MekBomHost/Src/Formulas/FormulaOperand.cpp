#include "FormulaOperand.h"

#include "UnitKinds.h"

#include "VorBomTokenCatalogue.h"

namespace mekbom
{
FormulaOperand FormulaOperand::ofCatalogue(const VorString& token, const VorBomTemplateUnits& units)
{
    const VorBomTemplateUnits::eTokenUnitType type = units.getUnitType(token);
    if (UnitKinds::find(type) != nullptr)
        return ofType(type);
    const VorBomTokenCatalogue::Entry* const pEntry = VorBomTokenCatalogue::find(token);
    if (pEntry == nullptr)
        return {};
    switch (pEntry->type)
    {
        case VorBomDataValue::kStringData: return { kText, VorBomTemplateUnits::kNoUnit };
        case VorBomDataValue::kIntData: return { kPieces, VorBomTemplateUnits::kNoUnit };
        default: return { kOwnUnit, VorBomTemplateUnits::kNoUnit };
    }
}
}
