// Most rules need no list of patterns. A formula is read twice, by the engine's parser and as ordinary arithmetic, and
// what the second cannot read, or reads to another value, is what authors stumble over:
//   "round(a*2.2)"   arithmetic has no factor "round" before a parenthesis    MB405
//   "a-(b-1)*2"      both read it, and (a-b+1)*2 is not a-(b-1)*2              MB404
// The other rules look at one operand each, along the engine's tree:
//   "2,5*%Weight"    the operand "2,5" is read as the number 2                  MB408
// One slip mostly breaks several rules, of which the most telling is kept: who is told that "2,5" is read as 2 need not
// be told that both readings differ.
#include "FormulaRules.h"

#include "ArithmeticReading.h"
#include "EngineReading.h"
#include "FormulaIdentity.h"
#include "FormulaResult.h"
#include "FormulaWalk.h"
#include "InQuotes.h"
#include "MistakeCodes.h"
#include "NumberText.h"
#include "Utf8.h"

#include "ExpressionEvaluator/Src/VorExprEvTreeItemOperator.h"
#include "ExpressionEvaluator/Src/VorFormulaText.h"
#include "VorBomDataToken.h"

#include "MekRoots/Exp/VorCharacters.h"

#include <algorithm>
#include <cmath>
#include <set>
#include <string_view>

namespace mekbom::FormulaRules
{
namespace
{
using namespace MistakeCodes;

// Decimal digits of a whole number that single precision, 24 bits, always keeps: 2^24 is 16777216, and not every number
// of eight digits behind it has a float of its own.
constexpr std::size_t kSingleDigits = 7;

const char* const kNumberRemedy = "the decimal sign is a point, and the operators are \"*/+-=()\"";

std::wstring_view viewOf(const VorString& text)
{
    return { text.getStringW(), static_cast<std::size_t>(text.length()) };
}

std::string quoted(std::wstring_view text)
{
    return inQuotes(Utf8::toBytes(VorString(text.data(), static_cast<int>(text.size()))));
}

std::string quoted(const VorString& text)
{
    return inQuotes(Utf8::toBytes(text));
}

std::string quotedReading(const std::string& text)
{
    constexpr int kMost = 200; // characters; arbitrary: two of them on a few lines
    return inQuotes(text, kMost);
}

std::string singleText(const FormulaNode& node)
{
    return mekbom::singleText(static_cast<float>(node.number));
}

// A character with which names begin; beyond ASCII every one is taken for a letter, as names may be in any language.
bool isLetter(wchar_t character)
{
    return (character >= L'a' && character <= L'z') || (character >= L'A' && character <= L'Z') || character == L'_' ||
           character > 0x7F;
}

// How many digits the number has, without zeros in front and without its exponent: 3 of "0.0250e6".
std::size_t numDigitsOf(std::wstring_view number)
{
    const std::wstring_view mantissa = number.substr(0, number.find_first_of(L"eE"));
    const std::size_t nFirst = mantissa.find_first_of(L"123456789");
    if (nFirst == std::wstring_view::npos)
        return 0;
    const std::wstring_view digits = mantissa.substr(nFirst);
    return static_cast<std::size_t>(std::count_if(digits.begin(), digits.end(), VorCharacters::isDigit<wchar_t>));
}

bool isToken(const VorString& name)
{
    return name.find(VorBomDataToken::kTokenPrefix, 0) == 0;
}

bool hasBlankWithin(const VorString& name)
{
    return viewOf(name).find_first_of(VorFormulaText::kBlanks) != std::wstring_view::npos;
}

// Zero characters stand behind the last name of the last of several statements alone.
bool hasZeroBehind(const VorString& name)
{
    return viewOf(name).find(L'\0') != std::wstring_view::npos;
}

// A token that no row has: a request, or a text with two percent signs.
bool isNoRowToken(const VorString& name)
{
    return isToken(name) && (VorBomDataToken::isToken(name) == 0 || viewOf(name).find(L':') != std::wstring_view::npos);
}

class Check
{
public:
    Check(const VorString& formula, const FormulaOperands& operands, const std::string& declared)
        : m_formula(formula),
          m_operands(operands),
          m_declared(declared),
          m_engine(EngineReading::read(formula)),
          m_arithmetic(ArithmeticReading::read(formula))
    {
    }

    std::vector<Finding> run();

private:
    // What is known of a value: that it is a constant, or nothing. Names have values only in rows, and a template may
    // be looked at without any.
    struct Constant
    {
        bool isKnown;
        double value;
    };

    // Looks at what is computed, as the client of a walk.
    using Walk = FormulaWalk<Constant, Check>;
    friend Walk;
    Constant ofNothing() const { return { true, 0.0 }; }
    Constant ofNumber(const FormulaNode& node);
    Constant ofName(const VorString& name);
    Constant combine(const FormulaNode& node, const Constant& left, const Constant& right);

    bool isComputed();
    void checkSeparators();
    void checkAssignments();
    void checkName(const VorString& name);
    void checkUnknownName(const VorString& name);
    void checkNumber(const FormulaNode& node);
    void checkDigits(const FormulaNode& node);
    void checkConstant(double value);
    void checkArithmetic();
    void checkLostNumber();
    void checkBothReadings();
    void checkResult();

    std::string reading() const;
    std::wstring_view numberOf(const FormulaNode& node) const;
    bool has(const FindingCode& code) const;
    void add(const FindingCode& code, const std::string& statement, const std::string& remedy);

    const VorString& m_formula;
    const FormulaOperands& m_operands;
    const std::string& m_declared;
    const EngineReading m_engine;
    const ArithmeticReading m_arithmetic;
    std::vector<Finding> m_findings;
};

// The order of the steps matters: checkBothReadings() and checkLostNumber() keep quiet about what the walk has found.
std::vector<Finding> Check::run()
{
    if (isComputed())
    {
        checkSeparators();
        checkAssignments();
        const Constant value = Walk(*this).run(m_engine.tree);
        if (value.isKnown)
            checkConstant(value.value);
        checkArithmetic();
        checkBothReadings();
        checkResult();
    }
    std::stable_sort(m_findings.begin(), m_findings.end(),
                     [](const Finding& a, const Finding& b) { return a.code < b.code; });
    return std::move(m_findings);
}

// Nothing else can be said of a formula that the engine passes over: what is too short, such as "a*2", or does
// not balance comes to no value that a reading could be compared with.
bool Check::isComputed()
{
    const std::wstring_view text = viewOf(m_formula);
    if (text.find_first_of(VorFormulaText::kOperators) == std::wstring_view::npos)
        add(kFormulaWithoutOperator, quoted(m_formula) + " has none of the operators \"*/+-=()\" and is never computed",
            "show the token without %Formula:, or multiply it by 1");
    else if (text.size() < VorFormulaText::kShortest)
        add(kFormulaTooShort,
            quoted(m_formula) + " has " + std::to_string(text.size()) + " characters and is never computed",
            "make it longer by blanks, as in \"a * b\"");
    else if (!m_engine.isBalanced)
        add(kFormulaFails, quoted(m_formula) + " has more '(' than ')', or the reverse: \"Impaired paranthesis\"",
            "close each parenthesis, in each statement");
    return m_findings.empty();
}

// Names are looked for in rows by another splitting than that of the statements: a ';' does not end them. Of
// "a=2;%Weight*a" rows are asked for "2;%Weight", which none has, so that %Weight is unknown when it is computed with.
// Both sides of it are told: what is asked for in vain, and what is not asked for.
void Check::checkSeparators()
{
    VorStringArray tokens = VorBomDataToken::getTokensFromFormula(m_formula);
    std::set<std::wstring_view> names;
    for (const VorString& token : tokens)
    {
        names.insert(viewOf(token));
        if (viewOf(token).find(L';') != std::wstring_view::npos)
            add(kAssignedTokenGluedToName, "rows are asked for " + quoted(token) + ", and have no such token",
                "put a blank on both sides of the ';'");
    }
    for (const FormulaNode& node : m_engine.tree.nodes())
        if (node.kind == FormulaNode::kName && node.isComputed && isToken(node.text) && !hasBlankWithin(node.text) &&
            !isNoRowToken(node.text) && names.count(viewOf(node.text).substr(0, viewOf(node.text).find(L'\0'))) == 0)
            add(kAssignedTokenGluedToName,
                "rows are not asked for " + quoted(node.text) + ", as a ';' stands before it",
                "put a blank on both sides of the ';'");
}

// A statement that makes a variable for those behind it is what '=' is for. Any other '=' was meant as a test, as in
// "%Length=6000": one within a statement, one that ends the formula, one with a token on its left.
void Check::checkAssignments()
{
    const std::vector<FormulaNode>& nodes = m_engine.tree.nodes();
    std::set<int> statements(m_engine.tree.roots().begin(), m_engine.tree.roots().end());
    statements.erase(m_engine.tree.root());
    for (std::size_t i = 0; i < nodes.size(); ++i)
    {
        const FormulaNode& node = nodes[i];
        if (node.operation != L'=' || !node.isComputed)
            continue;
        if (node.left == FormulaNode::kNoSide)
        {
            add(kFormulaFails, "an '=' has nothing on its left: \"Syntax error\"", "name what it assigns to");
            continue;
        }
        const FormulaNode& target = nodes[static_cast<std::size_t>(node.left)];
        if (target.kind == FormulaNode::kOperator || isToken(target.text) || statements.count(static_cast<int>(i)) == 0)
            add(kAssignmentAsTest,
                "'=' assigns to " + quoted(target.text) + " and compares nothing; its value is that of its right side",
                "formulas have no tests; only a statement with a ';' behind it needs an '='");
    }
}

Check::Constant Check::ofNumber(const FormulaNode& node)
{
    checkNumber(node);
    checkDigits(node);
    return { true, node.number };
}

Check::Constant Check::ofName(const VorString& name)
{
    checkName(name);
    return { false, 0.0 };
}

// A divisor is known only where no name is below it. Values of unknown sides are computed as well, and go no further.
// The bound is the engine's, and so calculate() is asked rather than 0.0001 written here.
Check::Constant Check::combine(const FormulaNode& node, const Constant& left, const Constant& right)
{
    double value = 0.0;
    const bool canDivide = VorExprEvTreeItemOperator::calculate(node.operation, left.value, right.value, value) != 0;
    if (node.operation == L'/' && right.isKnown && !canDivide)
        add(kDivisorTooSmall,
            "the divisor " + mekbom::singleText(static_cast<float>(right.value)) +
                " lies within 0.0001 of zero: \"Division by zero\"",
            right.value == 0.0 ? "" : "multiply by " + numberText(std::round(1.0 / right.value)) + " instead");
    return { left.isKnown && right.isKnown, value };
}

// A name that no statement has assigned. The first thing that is wrong with it is told and no other, from what the
// reading did to the name to what nobody knows of it.
void Check::checkName(const VorString& name)
{
    if (hasZeroBehind(name))
        return add(kStatementEndsInName,
                   quoted(VorString(name.getStringW())) +
                       " ends the last statement, which is read further than it goes: \"Syntax error\"",
                   "put a ';' behind the formula");
    if (isNoRowToken(name))
        return add(kFormulaWithinFormula, quoted(name) + " is no token that formulas can have: \"Syntax error\"",
                   "compute with tokens of the rows, such as %Weight");
    const FormulaOperand operand = m_operands(name);
    if (operand.meaning == FormulaOperand::kText)
        add(kTextInFormula, quoted(name) + " is a text, so that the formula is never computed",
            "compute with a token of numbers");
    else if (operand.meaning == FormulaOperand::kUnknown)
        checkUnknownName(name);
}

// A token of one word that nobody knows is not told here (FormulaRules.h says where).
void Check::checkUnknownName(const VorString& name)
{
    if (hasBlankWithin(name))
        add(kOperatorForgotten, quoted(name) + " is one name, which nobody knows: \"Syntax error\"",
            "put an operator where the blank is");
    else if (!isToken(name))
        add(kFormulaFails, quoted(name) + " is neither a token nor a variable: \"Syntax error\"",
            "begin tokens with '%', and assign variables before they are used: \"a=4;a*2\"");
}

// A number is read from the start of its operand, as far as it is one: "1e" of "1e-3", whose exponent the engine does
// not know; "2" of "2nd" and all of "inf", which were meant as names; "2" of "2,5".
void Check::checkNumber(const FormulaNode& node)
{
    if (node.numRead > node.text.length())
        return add(kExponentIsDifference,
                   quoted(numberOf(node)) + " is read as " + singleText(node) +
                       ", and its exponent is added or subtracted besides",
                   "write the number without an exponent");
    const std::wstring_view text = viewOf(node.text);
    const std::wstring_view rest = text.substr(static_cast<std::size_t>(node.numRead));
    if (isLetter(text.front()) || (!rest.empty() && isLetter(rest.front())))
        add(kNameReadsAsNumber, quoted(node.text) + " is read as the number " + singleText(node),
            "begin names with another letter");
    else if (!rest.empty() && rest.front() != L'\0')
        add(kNumberCutShort, quoted(node.text) + " is read as the number " + singleText(node), kNumberRemedy);
}

// Seven digits are always kept. A fraction that loses more is off by less than anybody measures, and so worth a note
// only; a whole number, as of 16777217 pieces, is another number then.
void Check::checkDigits(const FormulaNode& node)
{
    const std::wstring_view number = numberOf(node);
    const bool isWhole = number.find_first_not_of(L"0123456789") == std::wstring_view::npos;
    const bool isExact =
        VorString::toDouble(VorString(number.data(), static_cast<int>(number.size())).getStringW(), 0) == node.number;
    if (numDigitsOf(number) <= kSingleDigits || isExact)
        return;
    Finding finding = Finding::stating(kPrecisionLost, quoted(number) + " is read as " + singleText(node));
    finding.remedy = "numbers of formulas are kept to seven digits";
    finding.severity = isWhole ? Finding::kWarning : Finding::kNote;
    if (!has(kPrecisionLost))
        m_findings.push_back(std::move(finding));
}

// Looks at the value of a formula without names. All results are rounded to six decimals: 0.00012345 becomes
// 0.000123, which is off by 0.4 %, and 1e-7 becomes nothing.
void Check::checkConstant(double value)
{
    constexpr double kDecimals = 1e6;
    constexpr double kMostLost = 1e-3; // arbitrary: what is off by less still has three digits right
    const double rounded = std::round(value * kDecimals) / kDecimals;
    if (std::fabs(value - rounded) > kMostLost * std::fabs(value))
        add(kPrecisionLost, "gives " + numberText(value) + ", of which six decimals are kept: " + numberText(rounded),
            "compute in a smaller unit");
}

// A formula that arithmetic cannot read is told in the words of its fault, with what the engine makes of it. An "(a+b"
// is told by isComputed(): the engine refuses it, too.
void Check::checkArithmetic()
{
    switch (m_arithmetic.fault)
    {
        case ArithmeticReading::kOperandMissing:
            add(kOperandMissing, "an operator lacks an operand, which counts as 0: " + reading(), "write the operand");
            break;
        case ArithmeticReading::kFactorLost:
            add(kFactorDisappears, inQuotes(m_arithmetic.what) + " disappears: " + reading(),
                "there are no functions, and a product needs its '*'");
            break;
        case ArithmeticReading::kCrossed:
            add(kParenthesesCrossed, "a ')' stands before its '(': " + reading(), "open each parenthesis first");
            break;
        case ArithmeticReading::kNoNumber: checkLostNumber(); break;
        default: break;
    }
}

// What arithmetic calls no number may be one that the engine has read in part, of which checkNumber() has told already,
// or one that it has lost as a whole, behind another operand.
void Check::checkLostNumber()
{
    if (!has(kNumberCutShort) && !has(kNameReadsAsNumber))
        add(kNumberCutShort, inQuotes(m_arithmetic.what) + " is no number: " + reading(), kNumberRemedy);
}

// What has been found of single operands explains why both readings differ; otherwise the parentheses or the signs are
// to blame, and both readings are shown with all brackets. Readings that differ in form alone, (a*b)*c and a*(b*c),
// come to the same value and are no mistake.
void Check::checkBothReadings()
{
    const bool isExplained =
        has(kStatementEndsInName) || has(kNumberCutShort) || has(kExponentIsDifference) || has(kNameReadsAsNumber);
    if (m_arithmetic.fault != ArithmeticReading::kNone || isExplained ||
        FormulaIdentity::haveSameValue(m_engine.tree, m_arithmetic.tree))
        return;
    add(kFormulaReadsOtherwise, reading() + ", not as " + quotedReading(m_arithmetic.tree.text()),
        "a ')' groups all that stands before it, and a sign binds less than '*' and '/': begin with the parentheses, "
        "or assign their value to a variable in a statement before");
}

// What lists print of the formula, beside whether it can be told at all: a density in the model's kg/mm3 is 7.85e-6 for
// steel, of which six decimals keep the first digit; an area per length and a length have the same powers.
void Check::checkResult()
{
    const FormulaResult result = FormulaResult::of(m_formula, m_operands, m_declared);
    if (!result.contradiction.empty())
        add(kResultUndeclared, result.contradiction, result.remedy);
    else if (result.measure == FormulaResult::kUndeclared && result.isOfKnownTokens())
        add(kResultUndeclared, result.what, result.remedy);
    if (result.kind == VorBomTemplateUnits::kDensityUnit)
        add(kPrecisionLost, "gives a density in kg/mm3, of which six decimals keep one digit at most",
            "multiply it by 1000000000, and say \"kg/m3\" in the column's \"result\"");
    if (result.mayBeAreaPerLength && m_declared.empty())
        add(kLengthOrAreaPerLength, "an area divided by a length is shown as a length",
            "say \"length\" or \"area-per-length\" in the column's \"result\"");
}

// How the engine reads the formula.
std::string Check::reading() const
{
    return quoted(m_formula) + " is read as " + quotedReading(m_engine.tree.text());
}

// The characters that make up a number.
std::wstring_view Check::numberOf(const FormulaNode& node) const
{
    return viewOf(m_formula).substr(static_cast<std::size_t>(node.start), static_cast<std::size_t>(node.numRead));
}

bool Check::has(const FindingCode& code) const
{
    return std::any_of(m_findings.begin(), m_findings.end(),
                       [&](const Finding& finding) { return finding.code == code.name; });
}

// One of each code is enough: of a formula with ten commas for points the first shows how to mend the others.
void Check::add(const FindingCode& code, const std::string& statement, const std::string& remedy)
{
    Finding finding = Finding::stating(code, statement);
    finding.remedy = remedy;
    if (!has(code))
        m_findings.push_back(std::move(finding));
}
}

std::vector<Finding> check(const VorString& formula, const FormulaOperands& operands, const std::string& declared)
{
    return Check(formula, operands, declared).run();
}
}
