// Modulo a prime p, every number but 0 has an inverse, so that all four operations are exact: modulo 7, 1/3 is 5, since
// 3*5 = 15 is 1 more than twice 7. A constant of single precision is a whole number times a power of two. So
// "(a+b)/3*3" and "a+b" come to the very same number, where doubles would differ in their last digit.
//
// Two formulas that are not the same are two fractions of polynomials; those agree for few of the p values that each
// name can have: the chance is their degree divided by p, for each set of numbers (the lemma of Schwartz and Zippel).
#include "FormulaIdentity.h"

#include "FormulaWalk.h"

#include <cmath>
#include <cstdint>

namespace mekbom::FormulaIdentity
{
namespace
{
constexpr std::uint64_t kPrime = 2147483647; // 2^31 - 1, so that products fit 64 bits
constexpr unsigned kNumSets = 4; // arbitrary: even a formula of 100,000 factors passes by chance once in 10^17

// By squaring, bit by bit of the exponent: "power(3, 5)" is 3 times 3^4. Factors are below 2^31, and so no product
// overflows.
std::uint64_t power(std::uint64_t base, std::uint64_t exponent)
{
    std::uint64_t result = 1;
    for (; exponent != 0; exponent >>= 1)
    {
        if ((exponent & 1) != 0)
            result = result * base % kPrime;
        base = base * base % kPrime;
    }
    return result;
}

// By Fermat's little theorem a number to the power of p-1 is 1, so to the power of p-2 it is what makes 1 of it.
std::uint64_t inverse(std::uint64_t residue)
{
    return power(residue, kPrime - 2);
}

std::uint64_t negative(std::uint64_t residue)
{
    return (kPrime - residue) % kPrime;
}

// The residue of a finite number of single precision: 0.5 is the mantissa 2^23, which is whole, times 2^-24.
std::uint64_t residueOf(double number)
{
    constexpr int kDigits = 24; // bits of a float
    int exponent = 0;
    const double mantissa = std::ldexp(std::frexp(std::fabs(number), &exponent), kDigits);
    const std::uint64_t scale = power(2, static_cast<std::uint64_t>(std::abs(exponent - kDigits)));
    const std::uint64_t residue =
        static_cast<std::uint64_t>(mantissa) * (exponent < kDigits ? inverse(scale) : scale) % kPrime;
    return number < 0 ? negative(residue) : residue;
}

struct Residue
{
    std::uint64_t value = 0;
    bool isDefined = true;
};

// Computes with one set of numbers for the names. What has no value makes all that is computed with it have none.
class Numbers
{
public:
    explicit Numbers(std::uint64_t set) : m_nSet(set) {}

    Residue ofNothing() const { return {}; }

    Residue ofNumber(const FormulaNode& node) const
    {
        if (!std::isfinite(node.number))
            return { 0, false };
        return { residueOf(node.number), true };
    }

    // The same number for the same name, on every machine, so that a finding does not come and go from run to run:
    // FNV-1a over its characters, and what splitmix64 makes of that.
    Residue ofName(const VorString& name) const
    {
        std::uint64_t hash = 0xcbf29ce484222325 + m_nSet;
        for (int i = 0; i < name.length(); ++i)
            hash = (hash ^ static_cast<std::uint64_t>(name.getStringW()[i])) * 0x100000001b3;
        hash = (hash ^ hash >> 30) * 0xbf58476d1ce4e5b9;
        hash = (hash ^ hash >> 27) * 0x94d049bb133111eb;
        return { (hash ^ hash >> 31) % kPrime, true };
    }

    Residue combine(const FormulaNode& node, const Residue& left, const Residue& right) const
    {
        const bool isQuotient = node.operation == L'/';
        if (!left.isDefined || !right.isDefined || (isQuotient && right.value == 0))
            return { 0, false };
        switch (node.operation)
        {
            case L'+': return { (left.value + right.value) % kPrime, true };
            case L'-': return { (left.value + negative(right.value)) % kPrime, true };
            default: break;
        }
        return { left.value * (isQuotient ? inverse(right.value) : right.value) % kPrime, true };
    }

private:
    std::uint64_t m_nSet;
};

Residue compute(const FormulaTree& tree, Numbers numbers)
{
    return FormulaWalk<Residue, Numbers>(numbers).run(tree);
}
}

bool haveSameValue(const FormulaTree& a, const FormulaTree& b)
{
    for (unsigned i = 0; i < kNumSets; ++i)
    {
        const Residue valueOfA = compute(a, Numbers(i));
        const Residue valueOfB = compute(b, Numbers(i));
        if (valueOfA.isDefined != valueOfB.isDefined || valueOfA.value != valueOfB.value)
            return false;
    }
    return true;
}
}
