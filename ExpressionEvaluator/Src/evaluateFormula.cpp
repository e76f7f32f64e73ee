#include "evaluateFormula.h"

#include "ExpressionsEvaluator.h"
#include "VorExprEvVariableList.h"
#include "VorExpressionEvaluator.h"
#include "VorFormulaCalculator.h"

#include "MekRoots/Exp/VorString.h"

#include <cwchar>
#include <limits>

namespace
{
constexpr std::size_t kShortestFormula = 4; // arbitrary, but visible to callers
constexpr std::size_t kLongestFormula = std::numeric_limits<int>::max();

bool isFormula(const wchar_t* text, std::size_t nLength)
{
    return nLength >= kShortestFormula && nLength <= kLongestFormula &&
           std::wcspbrk(text, VorExpressionEvaluator::kOperatorCharacters) != nullptr;
}

int evaluateOrThrow(const wchar_t* formula, const wchar_t* const* names, const double* values, int count,
                    double* result)
{
    if (formula == nullptr)
        return 0;
    const std::size_t nLength = std::wcslen(formula);
    ExpressionsEvaluator evaluator(formula, static_cast<unsigned int>(nLength));
    if (!isFormula(formula, nLength) || names == nullptr || values == nullptr || count < 0)
        return 0;
    VorExprEvVariableList::ofThread().announce(names, values, count);
    double quickResult = 0;
    if (VorFormulaCalculator(names, values, count).calculate(formula, static_cast<int>(nLength), quickResult))
    {
        if (result != nullptr)
            *result = quickResult;
        return 1;
    }
    wchar_t buffer[VorExprEvValue::kBufferLength];
    const int nResult = evaluator.evaluate(buffer);
    if (nResult != 0 && result != nullptr)
        *result = VorString::toDouble(buffer, 0);
    return nResult;
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
