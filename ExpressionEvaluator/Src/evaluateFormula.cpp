#include "evaluateFormula.h"

#include "ExpressionsEvaluator.h"
#include "OneShot/VorFormulaCalculator.h"
#include "VorExprEvVariableList.h"
#include "VorExprEvalErrorHandler.h"
#include "VorExpressionEvaluator.h"
#include "VorFormulaText.h"

#include "MekRoots/Exp/VorString.h"

#include <limits>
#include <string_view>

namespace
{
constexpr std::size_t kLongestFormula = std::numeric_limits<int>::max();

bool isTooShort(const wchar_t* formula)
{
    std::size_t nLength = 0;
    while (nLength < VorFormulaText::kShortest && formula[nLength] != L'\0')
        ++nLength;
    return nLength < VorFormulaText::kShortest;
}

// The trees of a traced formula are wanted, and the quick way has none.
bool isTraced()
{
    return ExpressionsEvaluator::m_nTraceTrees != 0 || VorExpressionEvaluator::m_nTraceStacks != 0;
}

int evaluateQuickly(const wchar_t* formula, const wchar_t* const* names, const double* values, int count,
                    VorExprEvVariableList& variables, double& result)
{
    if (isTraced() || !variables.announce(names, values, count))
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

int evaluateByTree(const wchar_t* formula, const wchar_t* const* names, const double* values, int count, double& result)
{
    const std::wstring_view text(formula);
    ExpressionsEvaluator evaluator(formula, static_cast<unsigned int>(text.size()));
    if (text.size() > kLongestFormula || !VorFormulaText::isFormula(text))
        return 0;
    addVariables(names, values, count);
    wchar_t buffer[VorExprEvValue::kBufferLength];
    const int nResult = evaluator.evaluate(buffer);
    VorExprEvVariableList::ofThread().keepNames(); // those given and assigned are the caller's again
    if (!nResult)
        return 0;
    result = VorString::toDouble(buffer, 0);
    return 1;
}

int evaluateOrThrow(const wchar_t* formula, const wchar_t* const* names, const double* values, int count,
                    double* result)
{
    if (formula == nullptr)
        return 0;
    VorExprEvVariableList& variables = VorExprEvVariableList::ofThread();
    variables.clear();
    VorExprEvalErrorHandler::ofThread().clear();
    if (isTooShort(formula) || names == nullptr || values == nullptr || count < 0)
        return 0;
    double value = 0.0;
    if (!evaluateQuickly(formula, names, values, count, variables, value) &&
        !evaluateByTree(formula, names, values, count, value))
        return 0;
    if (result != nullptr)
        *result = value;
    return 1;
}
}

int evaluateFormula(const wchar_t* formula, const wchar_t* const* names, const double* values, int count,
                    double* result)
{
    try
    {
        return evaluateOrThrow(formula, names, values, count, result);
    }
    catch (...)
    {
        return 0;
    }
}
