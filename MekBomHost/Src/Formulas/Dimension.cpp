// Told on "%Weight/%Length*%Price", with powers of length, area per length, weight, angle, and of own numbers:
//   %Weight             0  0  1  0
//   / %Length          -1  0  1  0                kind() weight-per-length
//   * %Price           -1  0  1  0   %Price 1     no kind; text() "weight x %Price / length"
// A product adds powers and a quotient takes them away; nothing else is known of a dimension, and nothing else is
// needed to tell whether two of them can be added.
#include "Dimension.h"

#include "UnitKinds.h"

#include <algorithm>
#include <utility>

namespace mekbom
{
namespace
{
using Units = VorBomTemplateUnits;

// Powers beyond this are cut to it, so that a formula that squares and squares again does not leave the range of int.
// No kind of quantity has any like it.
constexpr int kHighestPower = 1000;

int addPower(int power, int more)
{
    return std::clamp(power + more, -kHighestPower, kHighestPower);
}

struct Powers
{
    int length;
    int weight;
    int angle;

    bool operator==(const Powers& other) const
    {
        return length == other.length && weight == other.weight && angle == other.angle;
    }
};

// The powers of the model's unit of each kind: kg/mm³ is one power of weight and minus three of length. An area per
// length has those of a length; Dimension tells the two apart by where the power came from.
Powers powersOf(Units::eTokenUnitType type)
{
    switch (type)
    {
        case Units::kDistanceUnit: return { 1, 0, 0 };
        case Units::kWeightUnit: return { 0, 1, 0 };
        case Units::kAreaUnit: return { 2, 0, 0 };
        case Units::kAngleUnit: return { 0, 0, 1 };
        case Units::kWeightPerDistanceUnit: return { -1, 1, 0 };
        case Units::kAreaPerDistanceUnit: return { 1, 0, 0 };
        case Units::kDensityUnit: return { -3, 1, 0 };
        default: return { 0, 0, 0 };
    }
}

// " x weight", " / length^2", or nothing for no power.
std::string powerText(const std::string& base, int power)
{
    if (power == 0)
        return std::string();
    const int size = std::abs(power);
    return (power > 0 ? " x " : " / ") + base + (size == 1 ? "" : "^" + std::to_string(size));
}

// The first factor needs no sign; 1 stands for one that is missing before a '/'.
std::string productText(const std::string& factors)
{
    return factors[1] == 'x' ? factors.substr(3) : "1" + factors;
}
}

Dimension Dimension::ofType(Units::eTokenUnitType type)
{
    const Powers powers = powersOf(type);
    Dimension dimension;
    (type == Units::kAreaPerDistanceUnit ? dimension.m_nAreaPerLength : dimension.m_nLength) = powers.length;
    dimension.m_nWeight = powers.weight;
    dimension.m_nAngle = powers.angle;
    return dimension;
}

// Nobody knows the unit of %Price, so it is a base of its own: prices can be added to prices alone.
Dimension Dimension::ofOwnNumber(const std::string& token)
{
    Dimension dimension;
    dimension.m_own[token] = 1;
    return dimension;
}

bool Dimension::isSameProduct(const Dimension& other) const
{
    return length() == other.length() && m_nWeight == other.m_nWeight && m_nAngle == other.m_nAngle &&
           hasSameOwnNumbers(other);
}

bool Dimension::hasSameOwnNumbers(const Dimension& other) const
{
    const int sign = m_nOwnSign * other.m_nOwnSign;
    return m_own.size() == other.m_own.size() &&
           std::equal(m_own.begin(), m_own.end(), other.m_own.begin(),
                      [sign](const auto& power, const auto& another)
                      { return power.first == another.first && power.second == sign * another.second; });
}

// A length and an area per length are the same product, and yet no sum: one is shown in mm, the other in m2/m.
bool Dimension::isLike(const Dimension& other) const
{
    return isSameProduct(other) && (kind() == other.kind());
}

// The one that only area per length and length share is decided here; all other kinds differ in their powers, and the
// loop finds the one there is.
Units::eTokenUnitType Dimension::kind() const
{
    const Powers powers = { length(), m_nWeight, m_nAngle };
    if (!m_own.empty() || isFreeOfUnits())
        return Units::kNoUnit;
    if (powers == powersOf(Units::kDistanceUnit))
        return isAreaPerLength() ? Units::kAreaPerDistanceUnit : Units::kDistanceUnit;
    for (const UnitKind& kind : UnitKinds::all())
        if (powers == powersOf(Units::unitTypeOf(kind.system)))
            return Units::unitTypeOf(kind.system);
    return Units::kNoUnit;
}

// The smaller map goes into the larger one, whose powers keep their sign: neither a product of many own numbers nor
// "a/(b/(c/(d/..." takes quadratic time. A power that comes to 0 goes, so that %Price/%Price is plain.
void Dimension::addPowers(Dimension other, int sign)
{
    m_nLength = addPower(m_nLength, sign * other.m_nLength);
    m_nAreaPerLength = addPower(m_nAreaPerLength, sign * other.m_nAreaPerLength);
    m_nWeight = addPower(m_nWeight, sign * other.m_nWeight);
    m_nAngle = addPower(m_nAngle, sign * other.m_nAngle);
    other.m_nOwnSign *= sign;
    if (m_own.size() < other.m_own.size())
    {
        m_own.swap(other.m_own);
        std::swap(m_nOwnSign, other.m_nOwnSign);
    }
    for (const auto& [token, power] : other.m_own)
    {
        const auto found = m_own.emplace(token, 0).first;
        found->second = addPower(found->second, m_nOwnSign * other.m_nOwnSign * power);
        if (found->second == 0)
            m_own.erase(found);
    }
}

// Positive powers first, as one says it: "weight x %Price / length^2", "1 / angle".
std::string Dimension::text() const
{
    if (isPlain())
        return "a number without unit";
    if (const UnitKind* const pKind = UnitKinds::find(kind()))
        return pKind->name;
    std::string above;
    std::string below;
    const auto add = [&](const std::string& base, int power) { (power > 0 ? above : below) += powerText(base, power); };
    add("weight", m_nWeight);
    add("length", length());
    add("angle", m_nAngle);
    for (const auto& [token, power] : m_own)
        add(token, m_nOwnSign * power);
    return productText(above + below);
}
}
