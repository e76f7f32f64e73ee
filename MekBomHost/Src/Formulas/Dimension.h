// What a number measures: a product of powers of length, weight, angle, and of the user's own numbers.
//
//   Dimension weight = Dimension::ofType(VorBomTemplateUnits::kWeightUnit);
//   weight.divideBy(Dimension::ofType(VorBomTemplateUnits::kDistanceUnit));
//   weight.kind()   ->  kWeightPerDistanceUnit
//   weight.text()   ->  "weight-per-length"
//
// An area per length is as many powers of length as a length is, but shown in other units. A product therefore
// remembers what came from tokens of that kind: %PaintPerMeter * %Quantity is an area per length, and times a length it
// is an area, as any other two lengths are.
//
// Values; a plain number is the one without any power.
#pragma once

#include "VorBomTemplateUnits.h"

#include <map>
#include <string>

namespace mekbom
{
class Dimension
{
public:
    Dimension() = default;

    // The dimension of a kind of quantity; a plain number for a type that has no unit.
    static Dimension ofType(VorBomTemplateUnits::eTokenUnitType type);

    // The dimension of a number of the user's own, which can be added to no other: nobody knows the unit of "%Price".
    static Dimension ofOwnNumber(const std::string& token);

    // Both take time in proportion to the own numbers of the one that has fewer of them.
    void multiplyBy(Dimension other) { addPowers(std::move(other), 1); }
    void divideBy(Dimension other) { addPowers(std::move(other), -1); }

    // Whether values of both can be added.
    bool isLike(const Dimension& other) const;

    // The same, but true for an area per length and a length, too: a formula of tokens makes one where the other is
    // meant.
    bool isSameProduct(const Dimension& other) const;

    // Whether values do not depend on the model's units: plain numbers, and the user's own.
    bool isFreeOfUnits() const { return length() == 0 && m_nWeight == 0 && m_nAngle == 0; }
    bool isPlain() const { return isFreeOfUnits() && m_own.empty(); }

    // Whether the user's own numbers are part of it.
    bool hasOwnNumbers() const { return !m_own.empty(); }

    // The kind whose units show it; kNoUnit when there is none.
    VorBomTemplateUnits::eTokenUnitType kind() const;

    int length() const { return m_nLength + m_nAreaPerLength; }
    int weight() const { return m_nWeight; }
    int angle() const { return m_nAngle; }

    // "area", "weight x %Price", "weight / length^2", "a number without unit".
    std::string text() const;

private:
    bool hasSameOwnNumbers(const Dimension& other) const;
    bool isAreaPerLength() const { return m_nAreaPerLength == 1 && m_nLength == 0; }
    void addPowers(Dimension other, int sign);

    int m_nLength = 0;        // without the next
    int m_nAreaPerLength = 0; // powers of tokens that are an area per length
    int m_nWeight = 0;
    int m_nAngle = 0;
    std::map<std::string, int> m_own; // powers of the user's own numbers by token, times m_nOwnSign; none is 0
    int m_nOwnSign = 1;               // -1 turns them all round, which a division by many does
};
}
