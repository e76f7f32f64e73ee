// Random formulas, evaluated by the product and by the slow reference, must agree in everything that shows: result,
// text or message, all errors in their order, and the variables left behind. The plain function leaves what the facade
// leaves.

#include "RandomFormula.h"

#include "ExpressionEvaluator/Src/ExpressionsEvaluator.h"
#include "ExpressionEvaluator/Src/VorExprEvVariableList.h"
#include "ExpressionEvaluator/Src/VorExprEvalErrorHandler.h"
#include "ExpressionEvaluator/Src/VorFormulaText.h"
#include "ExpressionEvaluator/Src/evaluateFormula.h"
#include "ExpressionEvaluator/Test/Reference/RandomCases.h"
#include "ExpressionEvaluator/Test/Reference/ReferenceFormula.h"
#include "MekRoots/Test/Support/TestSupport.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <cwchar>
#include <string>
#include <vector>

namespace
{
const unsigned long long kUsualCases = 25000;

FormulaValue randomNumber(Dice& dice)
{
    const double numbers[] = { 0.0, 1.0, -2.0, 2.5, 1000.0, 0.00005, 0.0001, 1e15, 1e308, INFINITY, NAN, 1.0 / 3.0 };
    return FormulaValue::real(dice.pick(numbers));
}

FormulaValue randomValue(Dice& dice)
{
    switch (dice.below(6))
    {
        case 0: return FormulaValue::integer(dice.below(7) - 3);
        case 1: return FormulaValue::truth(dice.oneIn(2));
        case 2: return dice.oneIn(3) ? FormulaValue::unknown() : FormulaValue::real(1.0);
        default: return randomNumber(dice);
    }
}

// Some names twice, and now and then very many.
std::vector<FormulaVariable> randomVariables(Dice& dice, FormulaValue (*valueOf)(Dice&))
{
    std::vector<FormulaVariable> variables;
    const int numStrangers = dice.oneIn(20) ? dice.below(100) : 0;
    for (int i = 0; i < numStrangers; ++i)
        variables.push_back({ L"v" + std::to_wstring(dice.below(40)), valueOf(dice) });
    for (const std::wstring& name : RandomFormula::names())
        for (int i = dice.oneIn(8) ? dice.below(3) : 1; i > 0; --i)
            variables.push_back({ name, valueOf(dice) });
    return variables;
}

// Equal texts mean equal bits, all NaNs being one.
std::wstring describeDouble(double number)
{
    std::uint64_t bits = 0;
    std::memcpy(&bits, &number, sizeof(bits));
    return std::isnan(number) ? L"nan" : std::to_wstring(number) + L" bits " + std::to_wstring(bits);
}

std::wstring describe(const FormulaValue& value)
{
    return std::to_wstring(value.kind) + L" " + describeDouble(value.number);
}

std::wstring describe(const VorExprEvValue& value)
{
    wchar_t text[VorExprEvValue::kBufferLength] = L"";
    value.toText(text);
    switch (value.type())
    {
        case VorExprEvValue::kInteger: return describe(FormulaValue::integer(std::stoi(text)));
        case VorExprEvValue::kDouble: return describe(FormulaValue::real(value.toNumber()));
        case VorExprEvValue::kBoolean: return describe(FormulaValue::truth(std::wcscmp(text, L"True") == 0));
        default: return describe(FormulaValue::unknown());
    }
}

// The sign of a NaN is the processor's business.
std::wstring withoutSignOfNan(const std::wstring& text)
{
    return text == L"-nan" ? L"nan" : text;
}

std::wstring describe(const FormulaOutcome& outcome)
{
    std::wstring text = std::to_wstring(outcome.result) + L" '" + withoutSignOfNan(outcome.text) + L"' errors";
    for (const int code : outcome.errors)
        text += L" " + std::to_wstring(code);
    for (const FormulaVariable& variable : outcome.variables)
        text += L"\n" + variable.name + L" " + describe(variable.value);
    return text;
}

std::wstring nameOf(const VorExprEvVariable& variable)
{
    std::wstring name;
    for (int i = variable.name().start(); i < variable.name().end(); ++i)
        name += variable.name().at(i);
    return name;
}

// What the product has left in the lists of this thread, the errors oldest first.
std::wstring describeWhatIsLeft()
{
    std::wstring errors;
    for (const VorExprEvalError* error = VorExprEvalErrorHandler::ofThread().head(); error != nullptr;
         error = error->next())
        errors = L" " + std::to_wstring(error->code()) + errors;
    std::wstring variables;
    for (const VorExprEvVariable* variable = VorExprEvVariableList::ofThread().head(); variable != nullptr;
         variable = variable->next())
        variables += L"\n" + nameOf(*variable) + L" " + describe(variable->value());
    return L" errors" + errors + variables;
}

VorExprEvValue productValue(const FormulaValue& value)
{
    VorExprEvValue made;
    switch (value.kind)
    {
        case FormulaValue::kInteger: made.setInteger(static_cast<int>(value.number)); break;
        case FormulaValue::kReal: made.setDouble(value.number); break;
        case FormulaValue::kTruth: made.setBoolean(value.number != 0.0); break;
        default: break;
    }
    return made;
}

std::wstring evaluatedByFacade(const std::wstring& formula, const std::vector<FormulaVariable>& variables)
{
    ExpressionsEvaluator evaluator(formula.c_str(), static_cast<unsigned int>(formula.size()));
    for (const FormulaVariable& variable : variables)
    {
        VorExprEvValue value = productValue(variable.value);
        evaluator.addVariable(VorExprEvTextView(variable.name.c_str(), 0, static_cast<int>(variable.name.size())),
                              value);
    }
    wchar_t buffer[VorExprEvValue::kBufferLength] = L"";
    const int result = evaluator.evaluate(buffer);
    return std::to_wstring(result) + L" '" + withoutSignOfNan(buffer) + L"'" + describeWhatIsLeft();
}

// Names may be null; both sides pass such entries over.
std::wstring evaluatedByFunction(const std::wstring& formula, const std::vector<FormulaVariable>& variables)
{
    std::vector<const wchar_t*> names(1, nullptr);
    std::vector<double> values(1, 0.0);
    for (const FormulaVariable& variable : variables)
    {
        names.push_back(variable.name.c_str());
        values.push_back(variable.value.number);
    }
    double result = -1.25;
    const int answer =
        evaluateFormula(formula.c_str(), names.data(), values.data(), static_cast<int>(names.size()), &result);
    return std::to_wstring(answer) + L" " + describeDouble(result);
}

std::wstring expectedOfFunction(const std::wstring& formula, const std::vector<FormulaVariable>& variables)
{
    double result = -1.25;
    const int answer = ReferenceFormula::evaluateFormula(formula, variables, result);
    return std::to_wstring(answer) + L" " + describeDouble(result);
}

// What the facade leaves in the lists of this thread.
std::wstring expectedToBeLeft(const std::wstring& formula, const std::vector<FormulaVariable>& variables)
{
    evaluatedByFacade(formula, variables);
    return describeWhatIsLeft();
}

std::string formulaAndRepetition(unsigned long long seed, const std::wstring& formula)
{
    return RandomCases::repetition(seed) + "\nformula: " + toUtf8(VorString(formula.c_str()));
}
}

TEST(FormulaRandomTest, RandomFormulasGiveWhatTheReferenceGives)
{
    const LeakCheck leaks;
    for (const unsigned long long seed : RandomCases(kUsualCases))
    {
        Dice dice(seed);
        const std::wstring formula = RandomFormula(dice).write();
        const std::vector<FormulaVariable> numbers = randomVariables(dice, randomNumber);
        const std::vector<FormulaVariable> values = randomVariables(dice, randomValue);

        ASSERT_EQ(expectedOfFunction(formula, numbers), evaluatedByFunction(formula, numbers))
            << formulaAndRepetition(seed, formula);
        const std::wstring left = describeWhatIsLeft();
        if (VorFormulaText::isFormula(formula)) // the function defines nothing for any other text
        {
            ASSERT_EQ(expectedToBeLeft(formula, numbers), left) << formulaAndRepetition(seed, formula);
        }
        ASSERT_EQ(describe(ReferenceFormula(formula, values).run()), evaluatedByFacade(formula, values))
            << formulaAndRepetition(seed, formula);
    }
    // The lists keep what the last evaluation left in them.
    ExpressionsEvaluator(nullptr, 0);
}
