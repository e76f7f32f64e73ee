// The formula is computed as lists compute it, whatever is wrong with it, and told in both readings where they differ:
//
//   mekbom formula '%W-(%Q-1)*2' %W=10 %Q=3
//     16                                       what lists show
//     ((%W-(%Q-1))*2)   as lists read it       a ')' applies all that is pending on its left: (10-2)*2
//     (%W-((%Q-1)*2))   as ordinary arithmetic reads it: 10-2*2 would be 6
//
// What the rules for the formulas of templates find in it is told besides: as warnings about a value, or as errors when
// there is none.
#include "FormulaVerb.h"

#include "ArithmeticReading.h"
#include "EngineReading.h"
#include "FindingList.h"
#include "FormulaIdentity.h"
#include "FormulaRules.h"
#include "InQuotes.h"
#include "MistakeCodes.h"
#include "NumberReader.h"
#include "NumberText.h"
#include "QuantityWords.h"
#include "StandardOutput.h"
#include "Utf8.h"

#include "ExpressionEvaluator/Src/VorExprEvalErrorHandler.h"
#include "ExpressionEvaluator/Src/evaluateFormula.h"
#include "MekRoots/Exp/VorCharacters.h"

#include <CLI/CLI.hpp>

#include <algorithm>

namespace mekbom
{
namespace
{
// Computes as lists do. The names and values may be none at all, which their pointers must not show: a null one is a
// name that is passed over.
int evaluate(const VorString& formula, const std::vector<VorString>& names, std::vector<double> values, double& value)
{
    std::vector<const wchar_t*> texts;
    texts.reserve(names.size() + 1);
    for (const VorString& name : names)
        texts.push_back(name.getStringW());
    texts.push_back(nullptr);
    values.push_back(0.0);
    return evaluateFormula(formula.getStringW(), texts.data(), values.data(), static_cast<int>(texts.size()), &value);
}

// Both readings where they come to different values, else the one there is: for a formula that ordinary arithmetic
// cannot read, and for one that both read alike.
std::string readingsOf(const VorString& formula)
{
    const FormulaTree ofEngine = EngineReading::read(formula).tree;
    const ArithmeticReading ofArithmetic = ArithmeticReading::read(formula);
    if (ofArithmetic.fault != ArithmeticReading::kNone || FormulaIdentity::haveSameValue(ofEngine, ofArithmetic.tree))
        return ofEngine.text() + "\n";
    return ofEngine.text() + "   as lists read it\n" + ofArithmetic.tree.text() +
           "   as ordinary arithmetic reads it\n";
}
}

const char* const FormulaVerb::kNotes =
    R"(A formula is computed as lists compute it, with six decimals. Below its value stand its
operators with both their sides in brackets, and where ordinary arithmetic would read it
otherwise, that reading, too. In a template it stands behind %Formula:.

Examples
  mekbom formula 'a*2+b' a=3 b=4
  mekbom formula '%Length*%Width/1000000' %Length=6000 %Width=200
  mekbom formula 'my length*2' 'my length=2.5'
  mekbom formula 'a=%Length ;a*2' %Length=6000
  mekbom formula -- '-a*2' a=3

Exit status
   0  computed
   1  the formula ends in an error, or lists do not compute it at all
   2  wrong usage)";

CLI::App& FormulaVerb::declareOn(CLI::App& parent)
{
    CLI::App& formula = *parent.add_subcommand("formula", "Compute a formula, and show how it is read");
    formula.footer(kNotes);
    formula.add_option("formula", m_formula, "The formula; behind -- if it begins with a minus sign")->required();
    formula.add_option("values", m_arguments, "What its names stand for, such as a=3 or %Length=6000")
        ->type_name("NAME=NUMBER");
    return formula;
}

// Status 1 is for no value alone: a script that computes with a formula wants the value, with or without a warning.
ExitStatus FormulaVerb::run(FindingList& findings)
{
    readValues();
    const VorString formula = Utf8::toWide(m_formula);
    double value = 0.0;
    const bool isComputed = evaluate(formula, m_names, m_values, value) != 0;
    if (isComputed)
        StandardOutput::print(numberText(value) + "\n" + readingsOf(formula));
    else if (const VorExprEvalError* const pError = VorExprEvalErrorHandler::ofThread().oldest())
        findings.add(Finding::stating(MistakeCodes::kFormulaFails, Utf8::toBytes(pError->message())));
    tellMistakes(findings, isComputed);
    return isComputed ? kDone : kMistakes;
}

// "my length=2.5" is a name with a blank in it, as formulas may have; blanks around the name are dropped.
void FormulaVerb::readValues()
{
    for (const std::string& argument : m_arguments)
    {
        const std::size_t nEquals = argument.find('=');
        const std::string name(VorCharacters::trimmed(std::string_view(argument).substr(0, nEquals), " \t\r\n"));
        if (nEquals == std::string::npos || name.empty())
            QuantityWords::refuse(FindingCodes::kOptionIsNoPair, argument, "a name and its number such as a=3");
        double value = 0.0;
        if (!NumberReader::read(std::string_view(argument).substr(nEquals + 1), value))
            QuantityWords::refuse(FindingCodes::kNoQuantity, argument.substr(nEquals + 1), "a number for " + name);
        m_names.push_back(Utf8::toWide(name));
        m_values.push_back(value);
    }
}

// Values have no unit here, so all names are plain numbers and no result is undeclared. That both readings differ
// (MB404) shows in the output. A name without a value is an operand that the rules cannot know; it is told once, in
// words for a command line, and not as a template's token that nobody knows.
void FormulaVerb::tellMistakes(FindingList& findings, bool isComputed) const
{
    std::string unknown;
    const auto operandOf = [&](const VorString& name)
    {
        if (std::find(m_names.begin(), m_names.end(), name) != m_names.end())
            return FormulaOperand{ FormulaOperand::kPieces, VorBomTemplateUnits::kNoUnit };
        unknown = Utf8::toBytes(name);
        return FormulaOperand();
    };
    for (Finding& finding : FormulaRules::check(Utf8::toWide(m_formula), operandOf))
    {
        finding.severity = isComputed ? std::max(finding.severity, Finding::kWarning) : Finding::kError;
        const bool isTold = finding.code == MistakeCodes::kFormulaReadsOtherwise.name ||
                            (finding.code == MistakeCodes::kFormulaFails.name && !unknown.empty());
        if (!isTold)
            findings.add(finding);
    }
    if (!unknown.empty())
        findings.add(
            Finding::stating(MistakeCodes::kFormulaFails,
                             inQuotes(unknown) + " has no value; give it one, such as " + inQuotes(unknown + "=1")));
}
}
