// Told on "%Weight*2.2/1000", a weight, which the model keeps in kg:
//   2.2    a factor: a kg is 2.20462 lb, and two digits say no more, so this is the ratio of pounds
//   1000   a divisor: 1000 kg are a t, so this is the ratio of tonnes
// Of which kind the product is shows only at its end; 1000 may be that of metres, too. So each constant is noted for
// every kind of quantity that has a unit of that ratio, and hiddenUnitOf() looks at the kinds that the product then
// has.
#include "ConstantFactors.h"

#include "NumberText.h"
#include "UnitKinds.h"
#include "Utf8.h"

#include "MekUnits/Src/VorUnitDefinition.h"

#include "MekRoots/Exp/VorCharacters.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace mekbom
{
namespace
{
using Systems = VorUnitsTransformArray;

// Computed constants are compared with this relative tolerance: 180/3.14159 is a degree, to the digits that people know
// of pi. Arbitrary otherwise, but no two ratios of the catalogue are as close to each other.
constexpr double kComputedTolerance = 1e-5;

// A unit's ratio may be written with this relative error: 2.2 for the 2.20462 pounds of a kilogram.
constexpr double kRoundedAway = 0.005;

double ratioOf(const VorUnitDefinition& unit)
{
    return static_cast<double>(unit.numerator) / static_cast<double>(unit.denominator);
}

// How precisely a constant is written: the digits behind zeros in front, and half a unit of the last of them.
//   "2.2"  ->  2, 0.05      "0.672"  ->  3, 0.0005      "1e3"  ->  none, 0
struct WrittenPrecision
{
    int numDigits = 0;
    bool hasPoint = false;
    double tolerance = 0.0;
};

WrittenPrecision precisionOf(const FormulaConstant& constant)
{
    const std::string& text = constant.text;
    const bool isPlain =
        std::all_of(text.begin(), text.end(), [](char c) { return VorCharacters::isDigit(c) || c == '.'; });
    const std::size_t nPoint = text.find('.');
    const std::size_t nFirst = text.find_first_of("123456789");
    if (!isPlain || nFirst == std::string::npos)
        return WrittenPrecision();
    const bool hasPoint = nPoint != std::string::npos;
    const auto numDigits = static_cast<int>(text.size() - nFirst) - (hasPoint && nPoint > nFirst ? 1 : 0);
    const int numDecimals = hasPoint ? static_cast<int>(text.size() - nPoint) - 1 : 0;
    return { numDigits, hasPoint, 0.5 * std::pow(10.0, -numDecimals) };
}

// How far a ratio may be from the constant that is written for it, if there are enough digits to recognize one by:
// "25" and "0.5" are no ratio's.
double toleranceToModel(const FormulaConstant& constant)
{
    const WrittenPrecision precision = precisionOf(constant);
    return precision.numDigits < (precision.hasPoint ? 2 : 3) ? 0.0 : precision.tolerance;
}

// The same for a ratio to the usual unit. It takes a digit more: a factor 1.5 on kg/m is an allowance more likely than
// the pounds per foot, 1.488.
double toleranceToUsual(const FormulaConstant& constant)
{
    const WrittenPrecision precision = precisionOf(constant);
    return precision.numDigits < 3 ? 0.0 : precision.tolerance;
}

bool isNear(double constant, double ratio, double tolerance)
{
    return std::fabs(constant - ratio) <= std::max(tolerance, 1e-6 * ratio); // constants are read in single precision
}

// A unit, and the one that a constant changes into it or from it.
struct UnitPair
{
    const VorUnitDefinition* pUnit = nullptr;
    const VorUnitDefinition* pBase = nullptr;
};

// The unit of that kind whose ratio to the base the constant is, or the inverse of it; none when there is none. Feet
// and inches, and degrees with minutes, are several numbers in one text, of which no single constant is the ratio.
UnitPair findRatio(const VorUnitDefinition& base, double constant, double tolerance, bool isInverse)
{
    for (int i = 0; i < Systems::numUnits(); ++i)
    {
        const VorUnitDefinition& unit = Systems::unitAt(i);
        const double ratio = isInverse ? ratioOf(base) / ratioOf(unit) : ratioOf(unit) / ratioOf(base);
        if (unit.system == base.system && unit.layout == VorUnitDefinition::kPlainNumber && ratio != 1.0 &&
            isNear(constant, ratio, tolerance))
            return { &unit, &base };
    }
    return UnitPair();
}

// The unit that a factor or a divisor hides. kg divided by 1000 are tonnes, and multiplied by it are grams: the unit
// that this gives comes before the other one, which may be meant as well.
UnitPair findUnitOfFactor(const VorUnitDefinition& base, double constant, double tolerance, bool isDivisor)
{
    const UnitPair pair = findRatio(base, constant, tolerance, !isDivisor);
    return pair.pUnit != nullptr ? pair : findRatio(base, constant, tolerance, isDivisor);
}

// The unit that files mean where they name none: null for kinds where that is the model's.
const VorUnitDefinition* usualUnitOf(Systems::eSystems system)
{
    return Systems::findUnit(Utf8::toWide(UnitKinds::find(system)->usualUnit));
}

// The same, with the model's unit for a base or, where no ratio to it is the constant, the unit that files usually
// mean: 10.764 is that of ft2 to m2, while the model keeps areas in mm2.
UnitPair findHiddenUnit(Systems::eSystems system, double constant, double toModel, double toUsual, bool isDivisor)
{
    const UnitPair pair = findUnitOfFactor(*Systems::findUnitOfModel(system), constant, toModel, isDivisor);
    const VorUnitDefinition* const pUsual = usualUnitOf(system);
    return pair.pUnit != nullptr || pUsual == nullptr ? pair : findUnitOfFactor(*pUsual, constant, toUsual, isDivisor);
}

// As readers know it, without the noise of a quotient: 0.09290304, not 0.09290303999999999.
double toNineDigits(double ratio)
{
    const double scale = std::pow(10.0, std::max(0.0, 8.0 - std::floor(std::log10(ratio))));
    return std::round(ratio * scale) / scale;
}

// "the constant 1000 hides a unit of length (1 m = 1000 mm)"
std::string describe(const VorUnitDefinition& unit, const VorUnitDefinition& base, const std::string& constant)
{
    return "the constant " + constant + " hides a unit of " + UnitKinds::find(unit.system)->name + " (1 " +
           Utf8::toBytes(unit.asciiSymbol) + " = " + numberText(toNineDigits(ratioOf(unit) / ratioOf(base))) + " " +
           Utf8::toBytes(base.asciiSymbol) + ")";
}

// The kinds of which a product may hide a unit: its own, and those that it is a product of.
std::vector<Systems::eSystems> systemsOf(const Dimension& dimension)
{
    std::vector<Systems::eSystems> systems;
    if (const UnitKind* const pKind = UnitKinds::find(dimension.kind()))
        systems.push_back(pKind->system);
    if (dimension.length() != 0)
        systems.push_back(Systems::kDistance);
    if (dimension.weight() != 0)
        systems.push_back(Systems::kWeight);
    if (dimension.angle() != 0)
        systems.push_back(Systems::kAngle);
    return systems;
}
}

std::string FormulaConstant::shownText() const
{
    return text.empty() ? numberText(value) : text;
}

// The constant's own text is kept for the first of a kind, since one is enough to be named. `product` is of ratios
// alone and m_total of all constants: "1000*1.05" below kilograms has the one say tonnes, though the other is no ratio.
void ConstantFactors::add(const FormulaConstant& constant, bool isDivisor)
{
    const double toModel = toleranceToModel(constant);
    const double toUsual = toleranceToUsual(constant);
    const double factor = isDivisor ? 1.0 / constant.value : constant.value;
    for (std::size_t i = 0; i < m_ratios.size(); ++i)
    {
        const UnitPair pair =
            findHiddenUnit(Systems::kSystems[i], std::fabs(constant.value), toModel, toUsual, isDivisor);
        if (pair.pUnit == nullptr)
            continue;
        Ratio& ratio = m_ratios[i];
        if (ratio.pUnit == nullptr)
            ratio = { pair.pUnit, pair.pBase, constant.shownText(), ratio.product };
        ratio.product *= factor;
    }
    m_total *= factor;
}

void ConstantFactors::addAll(const ConstantFactors& other, bool isDivisor)
{
    const auto multiply = [isDivisor](double& product, double factor)
    { product = isDivisor ? product / factor : product * factor; };
    for (std::size_t i = 0; i < m_ratios.size(); ++i)
    {
        const double product = m_ratios[i].product;
        if (m_ratios[i].pUnit == nullptr)
            m_ratios[i] = other.m_ratios[i];
        m_ratios[i].product = product;
        multiply(m_ratios[i].product, other.m_ratios[i].product);
    }
    multiply(m_total, other.m_total);
}

// Constants that undo each other, "%Length/1000*1000", hide nothing, and neither does an infinite quotient, of which no
// unit is the ratio. One by itself says more than the product of several, since a message can quote it; the product may
// be a ratio where none of them is: 180 and 3.14159.
std::string ConstantFactors::hiddenUnitOf(const Dimension& dimension) const
{
    if (!std::isfinite(m_total) || isNear(std::fabs(m_total), 1.0, 0.0))
        return std::string();
    const std::vector<Systems::eSystems> systems = systemsOf(dimension);
    for (const Systems::eSystems system : systems)
        if (const Ratio& ratio = m_ratios[static_cast<std::size_t>(Systems::indexOf(system))]; ratio.pUnit != nullptr)
            return describe(*ratio.pUnit, *ratio.pBase, ratio.text);
    const FormulaConstant total = { std::fabs(m_total), std::string() };
    const double tolerance = kComputedTolerance * total.value;
    for (const Systems::eSystems system : systems)
        if (const UnitPair pair = findHiddenUnit(system, total.value, tolerance, tolerance, false);
            pair.pUnit != nullptr)
            return describe(*pair.pUnit, *pair.pBase, total.shownText());
    return std::string();
}

// A factor that gives a unit is the inverse of its ratio: a number of kg times 0.001 is one of t, which are 1000 kg.
bool ConstantFactors::give(const VorUnitDefinition& unit, const Dimension& dimension) const
{
    const auto gives = [&unit](double factor) { return isNear(std::fabs(factor) * ratioOf(unit), 1.0, kRoundedAway); };
    const std::vector<Systems::eSystems> systems = systemsOf(dimension);
    return gives(m_total) || std::any_of(systems.begin(), systems.end(),
                                         [&](Systems::eSystems system)
                                         {
                                             const Ratio& ratio =
                                                 m_ratios[static_cast<std::size_t>(Systems::indexOf(system))];
                                             return ratio.pUnit != nullptr && gives(ratio.product);
                                         });
}

const VorUnitDefinition* ConstantFactors::givenUnitOf(const Dimension& dimension) const
{
    const UnitKind* const pKind = UnitKinds::find(dimension.kind());
    for (int i = 0; pKind != nullptr && i < Systems::numUnits(); ++i)
    {
        const VorUnitDefinition& unit = Systems::unitAt(i);
        if (unit.system == pKind->system && unit.isOfModel() == 0 && unit.layout == VorUnitDefinition::kPlainNumber &&
            give(unit, dimension))
            return &unit;
    }
    return nullptr;
}

// "%Length/1000+%Width/1000*1.05" is in metres, "%Length/1000+%Width" in no unit at all: what only one side is divided
// by tells nothing of the sum. A product that is no number is near none, and so it is forgotten as well.
void ConstantFactors::keepShared(const ConstantFactors& other)
{
    for (std::size_t i = 0; i < m_ratios.size(); ++i)
        if (!isNear(m_ratios[i].product, other.m_ratios[i].product, 0.0))
            m_ratios[i] = Ratio();
    if (!isNear(m_total, other.m_total, 0.0))
        m_total = 1.0;
}
}
