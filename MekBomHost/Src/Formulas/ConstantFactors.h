// The constants that a product is multiplied and divided by, and the units that they hide: the 1000 of "%Length/1000"
// makes metres of millimetres, and what it gives is no length in the model's unit any more.
//
//   ConstantFactors factors;
//   factors.divideBy(FormulaConstant{ 1000.0, "1000" });
//   const Dimension length = Dimension::ofType(VorBomTemplateUnits::kDistanceUnit);
//   factors.hiddenUnitOf(length)   ->  "the constant 1000 hides a unit of length (1 m = 1000 mm)"
//
// A constant hides a unit when it is the ratio, one way or the other, of a unit of the catalogue to the model's unit of
// the same kind or to the one that files mean where they name none (10.764 ft2 are a m2), be it rounded to the digits
// that are written: 2.2 is the pound's 2.20462, but 25 is not the inch's 25.4. So is the product of all constants
// (180/3.14159 of an angle).
//
// Values, of the same size however many constants there are.
#pragma once

#include "Dimension.h"

#include "MekRoots/Exp/VorUnitsTransformArray.h"

#include <array>
#include <string>

struct VorUnitDefinition;

namespace mekbom
{
struct FormulaConstant
{
    double value;
    std::string text; // as written: its digits tell how precise it is; empty for one that was computed

    std::string shownText() const;
};

class ConstantFactors
{
public:
    void multiplyBy(const FormulaConstant& constant) { add(constant, false); }
    void divideBy(const FormulaConstant& constant) { add(constant, true); }

    // Those of another product that this one is multiplied or divided by.
    void multiplyBy(const ConstantFactors& other) { addAll(other, false); }
    void divideBy(const ConstantFactors& other) { addAll(other, true); }

    // What makes a product of that dimension another than it looks, with the unit; empty when nothing does.
    std::string hiddenUnitOf(const Dimension& dimension) const;

    // Whether they turn the model's unit of that dimension into `unit`, be they rounded and beside others that are no
    // ratio: 1000 below kilograms makes "t" of them, and so it does together with a factor 1.05.
    bool give(const VorUnitDefinition& unit, const Dimension& dimension) const;

    // The first unit of the dimension's kind that they give other than the model's; null when there is none.
    const VorUnitDefinition* givenUnitOf(const Dimension& dimension) const;

    // Forgets what they do not share with those of another term of a sum.
    void keepShared(const ConstantFactors& other);

private:
    // The constants that are ratios of units of one kind.
    struct Ratio
    {
        const VorUnitDefinition* pUnit = nullptr;
        const VorUnitDefinition* pBase = nullptr; // the model's or the usual one, of which it is the ratio
        std::string text;                         // of the first
        double product = 1.0;                     // of all
    };

    void add(const FormulaConstant& constant, bool isDivisor);
    void addAll(const ConstantFactors& other, bool isDivisor);

    std::array<Ratio, VorUnitsTransformArray::kNumSystems> m_ratios; // of each kind
    double m_total = 1.0;                                            // product of all
};
}
