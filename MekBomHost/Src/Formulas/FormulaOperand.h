// What a name in a formula stands for, as far as its unit goes.
//
//   FormulaOperand::ofCatalogue(L"%Weight", units)     ->  kQuantity, kWeightUnit
//   FormulaOperand::ofCatalogue(L"%Quantity", units)   ->  kPieces
//   FormulaOperand::ofCatalogue(L"%Name", units)       ->  kText
//   FormulaOperand::ofCatalogue(L"%Price", units)      ->  kUnknown: the catalogue lacks it
//
// Values.
#pragma once

#include "VorBomTemplateUnits.h"

#include <functional>

namespace mekbom
{
struct FormulaOperand
{
    enum eMeaning
    {
        kUnknown, // nobody knows the name
        kText,    // a text, with which nothing can be computed
        kPieces,  // a whole number, which has no unit
        kOwnUnit, // a number in a unit that the program does not know: a price, hours
        kQuantity // a number that has a unit of the kind `type`
    };

    eMeaning meaning = kUnknown;
    VorBomTemplateUnits::eTokenUnitType type = VorBomTemplateUnits::kNoUnit; // of a quantity

    static FormulaOperand ofType(VorBomTemplateUnits::eTokenUnitType type) { return { kQuantity, type }; }

    // What the catalogue of tokens and the kinds that `units` has registered say. A token with a registered kind is a
    // quantity, be it in the catalogue or not.
    static FormulaOperand ofCatalogue(const VorString& token, const VorBomTemplateUnits& units);
};

// Tells what a name stands for. It is asked for tokens ("%Weight") and for whatever else a formula has in place of one
// ("Weight"), but not for the variables that the formula assigns itself.
using FormulaOperands = std::function<FormulaOperand(const VorString& name)>;
}
