#include "ConstantFactors.h"

#include "NumberText.h"
#include "UnitKinds.h"
#include "Utf8.h"

#include "MekUnits/Src/VorUnitDefinition.h"

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

double ratioOf(const VorUnitDefinition& unit)
{
    return static_cast<double>(unit.numerator) / static_cast<double>(unit.denominator);
}

bool isDigit(char character)
{
    return character >= '0' && character <= '9';
}

// How far a ratio may be from the constant that is written for it: half a unit of the last digit, if there are enough
// digits to recognize a ratio by: three, or two with a point among them. Zeros in front are none.
//   "2.2"  ->  0.05      "907"  ->  0.5      "25", "0.5", "1e3"  ->  0, as good as
double writtenTolerance(const FormulaConstant& constant)
{
    const std::string& text = constant.text;
    const bool isPlain = std::all_of(text.begin(), text.end(), [](char c) { return isDigit(c) || c == '.'; });
    const std::size_t nPoint = text.find('.');
    const std::size_t nFirst = text.find_first_of("123456789");
    if (!isPlain || nFirst == std::string::npos)
        return 0.0;
    const bool hasPoint = nPoint != std::string::npos;
    const auto numDigits = static_cast<int>(text.size() - nFirst) - (hasPoint && nPoint > nFirst ? 1 : 0);
    if (numDigits < (hasPoint ? 2 : 3))
        return 0.0;
    const int numDecimals = hasPoint ? static_cast<int>(text.size() - nPoint) - 1 : 0;
    return 0.5 * std::pow(10.0, -numDecimals);
}

bool isNear(double constant, double ratio, double tolerance)
{
    return std::fabs(constant - ratio) <= std::max(tolerance, 1e-6 * ratio); // constants are read in single precision
}

// The unit of that kind whose ratio to the model's unit the constant is, or the inverse of it; null when there is none.
const VorUnitDefinition* findUnit(Systems::eSystems system, double constant, double tolerance, bool isInverse)
{
    for (int i = 0; i < Systems::numUnits(); ++i)
    {
        const VorUnitDefinition& unit = Systems::unitAt(i);
        const double ratio = isInverse ? 1.0 / ratioOf(unit) : ratioOf(unit);
        if (unit.system == system && unit.layout == VorUnitDefinition::kPlainNumber && unit.isOfModel() == 0 &&
            isNear(constant, ratio, tolerance))
            return &unit;
    }
    return nullptr;
}

// The unit that a factor or a divisor hides. kg divided by 1000 are tonnes, and multiplied by it are grams: the unit
// that this gives comes before the other one, which may be meant as well.
const VorUnitDefinition* findUnit(Systems::eSystems system, const FormulaConstant& constant, double tolerance,
                                  bool isDivisor)
{
    const double value = std::fabs(constant.value);
    const VorUnitDefinition* const pUnit = findUnit(system, value, tolerance, !isDivisor);
    return pUnit != nullptr ? pUnit : findUnit(system, value, tolerance, isDivisor);
}

// "the constant 1000 hides a unit of length (1 m = 1000 mm)"
std::string describe(const VorUnitDefinition& unit, const std::string& constant)
{
    return "the constant " + constant + " hides a unit of " + UnitKinds::find(unit.system)->name + " (1 " +
           Utf8::toBytes(unit.asciiSymbol) + " = " + numberText(ratioOf(unit)) + " " +
           Utf8::toBytes(Systems::findUnitOfModel(unit.system)->asciiSymbol) + ")";
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

void ConstantFactors::add(const FormulaConstant& constant, bool isDivisor)
{
    for (std::size_t i = 0; i < m_ratios.size(); ++i)
        if (m_ratios[i].pUnit == nullptr)
            m_ratios[i] = { findUnit(Systems::kSystems[i], constant, writtenTolerance(constant), isDivisor),
                            constant.shownText() };
    m_total *= isDivisor ? 1.0 / constant.value : constant.value;
}

void ConstantFactors::addAll(const ConstantFactors& other, double factor)
{
    for (std::size_t i = 0; i < m_ratios.size(); ++i)
        if (m_ratios[i].pUnit == nullptr)
            m_ratios[i] = other.m_ratios[i];
    m_total *= factor;
}

// Constants that undo each other hide nothing: "%Length/1000*1000". One by itself says more than the product of several.
std::string ConstantFactors::hiddenUnitOf(const Dimension& dimension) const
{
    if (!std::isfinite(m_total) || isNear(std::fabs(m_total), 1.0, 0.0))
        return std::string();
    const std::vector<Systems::eSystems> systems = systemsOf(dimension);
    for (const Systems::eSystems system : systems)
        if (const Ratio& ratio = m_ratios[static_cast<std::size_t>(Systems::indexOf(system))]; ratio.pUnit != nullptr)
            return describe(*ratio.pUnit, ratio.text);
    const FormulaConstant total = { std::fabs(m_total), std::string() };
    for (const Systems::eSystems system : systems)
        if (const VorUnitDefinition* const pUnit = findUnit(system, total, kComputedTolerance * total.value, false))
            return describe(*pUnit, total.shownText());
    return std::string();
}
}
