// "(%Weight+%Paint)*2" is computed in one of two ways, which give the same number, bit for bit:
//   quickly   the variables are announced, and VorFormulaCalculator computes while it reads. It answers 0 for all that
//             could go wrong, an unknown name or a divisor near zero, and raises no error.
//   by tree   whatever the quick way declines, and all formulas while trees or stacks are traced. ExpressionsEvaluator
//             tells what the formula is worth, and leaves its errors to be asked for.
// Either way the thread's variables are those of this formula afterwards.
#include "evaluateFormula.h"

#include "ExpressionsEvaluator.h"
#include "OneShot/VorFormulaCalculator.h"
#include "VorExprEvVariableList.h"
#include "VorExprEvalErrorHandler.h"
#include "VorFormulaText.h"

#include "MekRoots/Exp/VorString.h"

#include <limits>
#include <string_view>

namespace
{
constexpr std::size_t kLongestFormula = std::numeric_limits<int>::max();

// Looks at no more characters than it needs: a long formula is not measured for this.
bool isTooShort(const wchar_t* formula)
{
    std::size_t nLength = 0;
    while (nLength < VorFormulaText::kShortest && formula[nLength] != L'\0')
        ++nLength;
    return nLength < VorFormulaText::kShortest;
}

int refuse(VorFormulaError::eCode code, VorFormulaError& error)
{
    error = VorFormulaError();
    error.code = code;
    return 0;
}

// A formula of which no statement gave a text fails without an error of its own.
VorFormulaError::eCode codeOfThread()
{
    const VorExprEvalError* const pError = VorExprEvalErrorHandler::ofThread().oldest();
    return pError != nullptr ? static_cast<VorFormulaError::eCode>(pError->code()) : VorFormulaError::kNotComputed;
}

int evaluateQuickly(const wchar_t* formula, const wchar_t* const* names, const double* values, int count,
                    VorExprEvVariableList& variables, double& result)
{
    if (ExpressionsEvaluator::isTraced() || !variables.announce(names, values, count))
        return 0;
    return VorFormulaCalculator(variables).calculate(formula, result);
}

void addVariables(const wchar_t* const* names, const double* values, int count)
{
    VorExprEvVariableList& variables = VorExprEvVariableList::ofThread();
    for (int i = 0; i < count; ++i)
        if (names[i] != nullptr)
            variables.prepend(names[i], values[i]);
}

// The evaluator is made before a text without an operator is refused: it empties the list of what the quick way
// announced.
int evaluateByTree(const wchar_t* formula, const wchar_t* const* names, const double* values, int count, double& result,
                   VorFormulaError& error)
{
    const std::wstring_view text(formula);
    ExpressionsEvaluator evaluator(formula, static_cast<unsigned int>(text.size()));
    if (text.size() > kLongestFormula)
        return refuse(VorFormulaError::kNotComputed, error);
    if (!VorFormulaText::isFormula(text))
        return refuse(VorFormulaError::kNoOperator, error);
    addVariables(names, values, count);
    wchar_t buffer[VorExprEvValue::kBufferLength];
    const int nResult = evaluator.evaluate(buffer);
    VorExprEvVariableList::ofThread().keepNames(); // those given and assigned are the caller's again
    if (!nResult)
    {
        error.code = codeOfThread();
        error.position = evaluator.errorPosition();
        return 0;
    }
    result = VorString::toDouble(buffer, 0);
    return 1;
}

// A null formula leaves the thread's lists as they are. Any other empties both, even if it is refused.
int evaluateOrThrow(const wchar_t* formula, const wchar_t* const* names, const double* values, int count,
                    double* result, VorFormulaError& error)
{
    if (formula == nullptr)
        return refuse(VorFormulaError::kNoArguments, error);
    VorExprEvVariableList& variables = VorExprEvVariableList::ofThread();
    variables.clear();
    VorExprEvalErrorHandler::ofThread().clear();
    if (names == nullptr || values == nullptr || count < 0)
        return refuse(VorFormulaError::kNoArguments, error);
    if (isTooShort(formula))
        return refuse(VorFormulaError::kTooShort, error);
    double value = 0.0;
    if (!evaluateQuickly(formula, names, values, count, variables, value) &&
        !evaluateByTree(formula, names, values, count, value, error))
        return 0;
    if (result != nullptr)
        *result = value;
    return 1;
}
}

int evaluateFormula(const wchar_t* formula, const wchar_t* const* names, const double* values, int count,
                    double* result)
{
    VorFormulaError error;
    return evaluateFormula(formula, names, values, count, result, error);
}

int evaluateFormula(const wchar_t* formula, const wchar_t* const* names, const double* values, int count,
                    double* result, VorFormulaError& error)
{
    error = VorFormulaError();
    try
    {
        return evaluateOrThrow(formula, names, values, count, result, error);
    }
    // No memory, as a rule. Callers in C could not catch anything.
    catch (...)
    {
        return refuse(VorFormulaError::kNotComputed, error);
    }
}
