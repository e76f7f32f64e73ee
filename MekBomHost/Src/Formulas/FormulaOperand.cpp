#include "FormulaOperand.h"

#include "UnitKinds.h"

#include "VorBomTokenCatalogue.h"

namespace mekbom
{
// Kinds come first, since a template may register one for any token, "%Cut" of the user's own among them. A whole
// number of the catalogue is a count of something and has no unit; a number of it without a kind is in a unit that only
// the author knows.
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
