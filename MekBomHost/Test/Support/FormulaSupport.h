// What names in the formulas of tests stand for: tokens of the catalogue with the kinds that templates give them, and a
// few of the user's own.
#pragma once

#include "FormulaOperand.h"

#include "VorBomTemplate.h"

namespace mekbom
{
// %Price and %Hours are numbers of the user's own; "a", "b", "c" and "my length" are plain numbers.
inline FormulaOperand operandOfTest(const VorString& name)
{
    static const VorUnitsManager manager;
    static const VorBomTemplateUnits* const pUnits = []
    {
        static VorBomTemplate engineTemplate;
        engineTemplate.setUnitsForTokens(&manager);
        return engineTemplate.getBomTemplateUnits();
    }();
    if (name == VorString(L"%Price") || name == VorString(L"%Hours"))
        return { FormulaOperand::kOwnUnit, VorBomTemplateUnits::kNoUnit };
    if (name == VorString(L"a") || name == VorString(L"b") || name == VorString(L"c") ||
        name == VorString(L"my length"))
        return { FormulaOperand::kPieces, VorBomTemplateUnits::kNoUnit };
    if (name == VorString(L"%Skew"))
        return FormulaOperand::ofType(VorBomTemplateUnits::kAngleUnit);
    if (name == VorString(L"%PaintMeter"))
        return FormulaOperand::ofType(VorBomTemplateUnits::kAreaPerDistanceUnit);
    return FormulaOperand::ofCatalogue(name, *pUnits);
}
}
