// A term of a formula is what stands below one of its operators: a dimension, or a constant. From "(%Length+50)*2":
//   %Length      length
//   50           the constant 50
//   +            length; 50 has no unit that could be length: unlike
//   2            the constant 2
//   *            length, multiplied by the constant 2
// Constants stay with the product that they are factors of until it is added to something, or is the result: only the
// product's dimension tells of which kinds they may hide a unit.
#include "FormulaResult.h"

#include "ConstantFactors.h"
#include "Dimension.h"
#include "EngineReading.h"
#include "FormulaWalk.h"
#include "InQuotes.h"
#include "NumberText.h"
#include "UnitKinds.h"
#include "Utf8.h"

#include "ExpressionEvaluator/Src/VorExprEvTreeItemOperator.h"
#include "MekUnits/Src/VorUnitDefinition.h"

#include <utility>

namespace mekbom
{
namespace
{
const char* const kRemedy = "say what it gives in the column, \"result\": a kind such as \"weight\", \"none\", or a "
                            "label of its own such as \"EUR\"";

struct Term
{
    bool isConstant = false;
    FormulaConstant constant{ 0.0, std::string() }; // of one that is
    Dimension dimension;                            // plain for a constant
    ConstantFactors factors;                        // of a product; none for a constant
    bool isCertain = true;                          // made of tokens of known kinds alone
};

// A bare number may be one of any unit: whatever it is a factor of is not certain to be what its tokens make.
Term ofConstant(double value, const std::string& text)
{
    Term term;
    term.isConstant = true;
    term.isCertain = false;
    term.constant = { value, text };
    return term;
}

Term ofDimension(const Dimension& dimension)
{
    Term term;
    term.dimension = dimension;
    return term;
}

// A number of the user's own, or nobody's: what is computed with it contradicts no declaration.
Term ofUncertain(const Dimension& dimension)
{
    Term term = ofDimension(dimension);
    term.isCertain = false;
    return term;
}

// Two constants are one, as the engine computes it: what cannot be divided stays 0, and nobody has written its digits.
Term compute(wchar_t operation, const Term& left, const Term& right)
{
    double value = 0.0;
    VorExprEvTreeItemOperator::calculate(operation, left.constant.value, right.constant.value, value);
    return ofConstant(value, std::string());
}

// A product or a quotient of which one side at most is a constant. A constant on the left becomes a plain product with
// itself as its only factor, so that "1000*%Length" and "%Length*1000" end as the same term; of "1/%Length" the
// dimension is turned over as well.
Term multiply(bool isQuotient, Term left, Term right)
{
    if (left.isConstant)
    {
        Term term = ofUncertain(Dimension());
        term.factors.multiplyBy(left.constant);
        left = std::move(term);
    }
    left.isCertain = left.isCertain && right.isCertain && !right.isConstant;
    if (right.isConstant)
        isQuotient ? left.factors.divideBy(right.constant) : left.factors.multiplyBy(right.constant);
    else
    {
        isQuotient ? left.factors.divideBy(right.factors) : left.factors.multiplyBy(right.factors);
        isQuotient ? left.dimension.divideBy(std::move(right.dimension))
                   : left.dimension.multiplyBy(std::move(right.dimension));
    }
    return left;
}

// Derives term by term, and keeps the first reason why that cannot be done.
class Derivation
{
public:
    explicit Derivation(const FormulaOperands& operands) : m_operands(operands) {}

    FormulaResult derive(const FormulaTree& tree);

    // What the formula gives, as far as it could be derived.
    const Term& result() const { return m_result; }

private:
    using Walk = FormulaWalk<Term, Derivation>;
    friend Walk;

    Term ofNothing() { return ofConstant(0.0, "0"); }
    Term ofNumber(const FormulaNode& node) { return ofConstant(node.number, Utf8::toBytes(node.text)); }
    Term ofName(const VorString& name);
    Term combine(const FormulaNode& node, Term left, Term right);
    Term sum(Term left, Term right);
    Term sumWithConstant(Term term, const FormulaConstant& constant);
    void settle(const Term& term);
    template <class What>
    void note(FormulaResult::eReason reason, const What& what);
    void conclude();

    const FormulaOperands& m_operands;
    Term m_result;
    FormulaResult m_found;
    bool m_bDividesArea = false; // by a length
};

FormulaResult Derivation::derive(const FormulaTree& tree)
{
    if (tree.root() == FormulaNode::kNoSide)
        note(FormulaResult::kUnreadable, [] { return "there is nothing to compute"; });
    m_result = Walk(*this).run(tree);
    settle(m_result);
    conclude();
    return m_found;
}

// A name that reaches beyond the formula, "a" and a zero, is no row's and no author's: nobody is asked for it. Unknown
// names are taken for plain numbers, so that the derivation goes on, and are noted, so that nothing comes of it.
Term Derivation::ofName(const VorString& name)
{
    const bool isWithinFormula = name == VorString(name.getStringW());
    const FormulaOperand operand = isWithinFormula ? m_operands(name) : FormulaOperand();
    const std::string text = Utf8::toBytes(name);
    switch (operand.meaning)
    {
        case FormulaOperand::kPieces: return ofDimension(Dimension());
        case FormulaOperand::kQuantity: return ofDimension(Dimension::ofType(operand.type));
        case FormulaOperand::kOwnUnit: return ofUncertain(Dimension::ofOwnNumber(text));
        case FormulaOperand::kText:
            note(FormulaResult::kTextOperand, [&] { return inQuotes(text) + " is a text"; });
            break;
        default: note(FormulaResult::kUnknownOperand, [&] { return "nobody knows " + inQuotes(text); }); break;
    }
    return ofUncertain(Dimension());
}

// An area divided by a length is a length by its powers, but "%Paint/%Length" means an area per length: that is noted
// here, where both sides are still known.
Term Derivation::combine(const FormulaNode& node, Term left, Term right)
{
    if (left.isConstant && right.isConstant)
        return compute(node.operation, left, right);
    const bool isQuotient = node.operation == L'/';
    m_bDividesArea = m_bDividesArea || (isQuotient && left.dimension.kind() == VorBomTemplateUnits::kAreaUnit &&
                                        right.dimension.kind() == VorBomTemplateUnits::kDistanceUnit);
    if (isQuotient || node.operation == L'*')
        return multiply(isQuotient, std::move(left), std::move(right));
    return sum(std::move(left), std::move(right));
}

// Both products end here, so their constants are looked at before anything else: "%Length/1000+%Width" hides a unit in
// its first term. The sum goes on as its left side, whose dimension is that of both when they are alike.
Term Derivation::sum(Term left, Term right)
{
    settle(left);
    settle(right);
    if (left.isConstant)
        return sumWithConstant(std::move(right), left.constant);
    if (right.isConstant)
        return sumWithConstant(std::move(left), right.constant);
    if (!left.dimension.isLike(right.dimension))
    {
        note(FormulaResult::kUnlikeSum,
             [&] { return "adds " + left.dimension.text() + " and " + right.dimension.text(); });
        left.isCertain = false;
    }
    left.isCertain = left.isCertain && right.isCertain;
    left.factors.keepShared(right.factors);
    return left;
}

// Zero is zero in every unit, and what has no unit can be added to any number. A negation is a sum with zero, too.
Term Derivation::sumWithConstant(Term term, const FormulaConstant& constant)
{
    if (constant.value == 0.0 || term.dimension.isPlain())
        return term;
    note(FormulaResult::kUnlikeSum,
         [&] { return "adds " + term.dimension.text() + " and the bare number " + constant.shownText(); });
    term.isCertain = false;
    return term;
}

// Ends a product: its constants are all known.
void Derivation::settle(const Term& term)
{
    const std::string hidden = term.factors.hiddenUnitOf(term.dimension);
    if (!hidden.empty())
        note(FormulaResult::kHiddenUnit, [&]() -> const std::string& { return hidden; });
}

// The first reason is the one that a reader of the formula meets first; those behind it mostly follow from it. Its words
// alone are made: those of a long product take as long as the product.
template <class What>
void Derivation::note(FormulaResult::eReason reason, const What& what)
{
    if (m_found.reason != FormulaResult::kNone)
        return;
    m_found.reason = reason;
    m_found.what = what();
}

// A kind is told only where no reason speaks against it. Own numbers alone, "%Price*%Hours", have no kind and need
// none: they stay what they are in whatever units a list is printed.
void Derivation::conclude()
{
    const VorBomTemplateUnits::eTokenUnitType kind = m_result.dimension.kind();
    const bool isFree = m_result.dimension.isFreeOfUnits();
    if (kind == VorBomTemplateUnits::kNoUnit && !isFree)
        note(FormulaResult::kNoKind, [&] { return m_result.dimension.text() + " is no kind of quantity"; });
    if (m_found.reason != FormulaResult::kNone)
        return;
    m_found.measure = isFree ? FormulaResult::kPlain : FormulaResult::kKind;
    m_found.kind = kind;
    m_found.mayBeAreaPerLength = m_bDividesArea && kind == VorBomTemplateUnits::kDistanceUnit;
}

// Only what is certain contradicts: a constant or an own number within the formula may be in any unit, so that its
// author may well know better.
bool contradicts(const Term& result, FormulaResult::eReason reason, VorBomTemplateUnits::eTokenUnitType declared)
{
    const bool isDerived = reason == FormulaResult::kNone || reason == FormulaResult::kNoKind;
    return isDerived && result.isCertain && !result.dimension.isSameProduct(Dimension::ofType(declared));
}

// What to do about a constant that hides a unit: where the formula has a kind without it, declaring that kind would
// make 0.5 kg of 0.5 t.
std::string remedyOfHiddenUnit(const Term& result)
{
    if (result.dimension.kind() == VorBomTemplateUnits::kNoUnit)
        return kRemedy;
    const VorUnitDefinition* const pUnit = result.factors.givenUnitOf(result.dimension);
    return "take the constant out: lists show the number in the reader's unit; or give it a label of its own in the "
           "column, \"result\": " +
           inQuotes(pUnit == nullptr ? FormulaResult::kDeclaredPlain : Utf8::toBytes(pUnit->asciiSymbol));
}

// A kind that the tokens do not give, or that they give while the number is another one: "%Weight/1000" declared as a
// weight would print half a tonne as half a kilogram.
void checkKind(FormulaResult& result, const Term& term, const std::string& declared)
{
    if (contradicts(term, result.reason, result.kind))
    {
        result.contradiction = "is " + term.dimension.text() + ", declared as " + declared;
        result.remedy = "correct the formula or its column's \"result\"";
    }
    else if (result.reason == FormulaResult::kHiddenUnit &&
             term.dimension.isSameProduct(Dimension::ofType(result.kind)))
        result.contradiction = "gives " + declared + " already, and " + result.what + ", which makes it another number";
}

// A label that is a unit of the kind: the number has to be in that unit.
void checkLabel(FormulaResult& result, const Term& term)
{
    const VorUnitDefinition* const pUnit = VorUnitsTransformArray::findUnit(Utf8::toWide(result.label));
    const UnitKind* const pKind = UnitKinds::find(term.dimension.kind());
    if (pUnit == nullptr || pKind == nullptr || pUnit->system != pKind->system)
        return;
    const bool isHidden = result.reason == FormulaResult::kHiddenUnit;
    if (pUnit->isOfModel() == 1 ? !isHidden : term.factors.give(*pUnit, term.dimension))
        return;
    result.contradiction = std::string("gives ") + pKind->name + ", but no number of " + inQuotes(result.label);
    result.remedy = std::string(isHidden ? "take the constant out, and " : "") +
                    "write \"unit\": " + inQuotes(result.label) + " in the column instead of \"result\"";
}

FormulaResult unbalanced()
{
    FormulaResult result;
    result.reason = FormulaResult::kUnreadable;
    result.what = "the parentheses do not balance";
    return result;
}

// Makes the result what its column says: a kind, a plain number, or a plain number with a label. The reason why nothing
// was derived stays, for whoever wants to know what the declaration stands in for.
void declare(FormulaResult& result, const Term& term, const std::string& declared)
{
    result.measure = FormulaResult::kPlain;
    result.kind = VorBomTemplateUnits::kNoUnit;
    result.mayBeAreaPerLength = false;
    if (const UnitKind* const pKind = UnitKinds::find(declared))
    {
        result.measure = FormulaResult::kKind;
        result.kind = VorBomTemplateUnits::unitTypeOf(pKind->system);
        checkKind(result, term, declared);
    }
    else if (declared != FormulaResult::kDeclaredPlain)
    {
        result.label = declared;
        checkLabel(result, term);
    }
}
}

FormulaResult FormulaResult::derive(const VorString& formula, const FormulaOperands& operands)
{
    return of(formula, operands, std::string());
}

FormulaResult FormulaResult::of(const VorString& formula, const FormulaOperands& operands, const std::string& declared)
{
    const EngineReading reading = EngineReading::read(formula);
    Derivation derivation(operands);
    FormulaResult result = reading.isBalanced ? derivation.derive(reading.tree) : unbalanced();
    result.remedy = result.reason == kHiddenUnit ? remedyOfHiddenUnit(derivation.result()) : kRemedy;
    if (!declared.empty())
        declare(result, derivation.result(), declared);
    return result;
}
}
