// What the number that a formula gives measures, and so in which unit a list shows it.
//
//   FormulaResult::derive(L"%Length*%WeightMeter", operands).kind      ->  kWeightUnit
//   FormulaResult::derive(L"%MQuantity/%Quantity", operands).measure   ->  kPlain
//   FormulaResult::derive(L"%Weight*%Price", operands).what            ->  "weight x %Price is no kind of quantity"
//   FormulaResult::derive(L"%Length/1000", operands).what   ->  "the constant 1000 hides a unit of length (1 m ..."
//
// It follows from the tokens, along the tree that the engine makes of the formula, for as long as it does. Where it does
// not, the formula's column says it:
//
//   FormulaResult::of(L"%Weight*%Price", operands, "EUR").label        ->  "EUR", measure kPlain
//   FormulaResult::of(L"%Length/1000", operands, "none").measure       ->  kPlain
//   FormulaResult::of(L"%Width*7.85", operands, "weight").kind         ->  kWeightUnit
//
// Values.
#pragma once

#include "FormulaOperand.h"

#include <string>

namespace mekbom
{
struct FormulaResult
{
    enum eMeasure
    {
        kKind,      // a quantity in the model's unit of `kind`, to be shown in the reader's
        kPlain,     // a number that stays what it is, whatever units are shown
        kUndeclared // nobody can tell; to be shown as a plain number, if at all
    };

    // Why a measure does not follow from the tokens.
    enum eReason
    {
        kNone,
        kNoKind,         // a product that no unit shows: "weight x %Price is no kind of quantity"
        kHiddenUnit,     // "the constant 1000 hides a unit of length (1 m = 1000 mm)"
        kUnlikeSum,      // "adds weight and length", "adds length and the bare number 100"
        kUnknownOperand, // "nobody knows %Wieght"
        kTextOperand,    // "%Name is a text"
        kUnreadable      // the parentheses do not balance, or there is no operand
    };

    static constexpr const char* kDeclaredPlain = "none"; // how a column says that a formula gives a plain number

    eMeasure measure = kUndeclared;
    VorBomTemplateUnits::eTokenUnitType kind = VorBomTemplateUnits::kNoUnit; // set for kKind alone
    eReason reason = kNone;                                                  // why derive() could not tell, which may
                                                                             // have been declared nevertheless
    std::string what;                                                        // the reason in words, UTF-8
    bool mayBeAreaPerLength = false; // a length that is an area divided by a length
    std::string label;               // what a column calls it, other than a kind: "EUR"; UTF-8
    std::string contradiction; // why it cannot be what its column says: "is area, declared as weight"; empty for none
    std::string remedy;        // what an author does about the reason or the contradiction

    // Whether nothing is known of its measure although every token is.
    bool isOfKnownTokens() const { return reason == kNoKind || reason == kHiddenUnit || reason == kUnlikeSum; }

    // What follows from the formula and its operands alone.
    static FormulaResult derive(const VorString& formula, const FormulaOperands& operands);

    // The same for a column that says `declared`: a kind ("weight", "area-per-length"), "none" for a plain number, a
    // label for a plain number that is called so, or nothing. What it says always holds. It is a contradiction when it
    // is a kind, but only tokens of known kinds are multiplied and divided, and make another (a constant among them, or
    // a number of an author's own, may be in any unit); when it is the kind that the tokens make, and a constant hides a
    // unit, since "%Weight/1000" is no weight in kg; and when it is a unit of that kind, and no constant makes it: "m"
    // for "%Length", which is in mm.
    static FormulaResult of(const VorString& formula, const FormulaOperands& operands, const std::string& declared);
};
}
