// Any text as a formula over a, b and "my length" gives what the slow reference gives, and gives the same once it is
// compiled; no invariant is reported broken. Input: the formula, one character per byte, up to a zero byte. Seeds:
// Fuzz/Seeds/evaluateFormulaFuzz.
#include "ExpressionEvaluator/Test/Reference/ReferenceFormula.h"
#include "VorCompiledFormula.h"
#include "VorFormulaText.h"
#include "evaluateFormula.h"

#include "MekRoots/Exp/VorAssert.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>

namespace
{
constexpr int kNumVariables = 3;
const wchar_t* const kNames[kNumVariables] = { L"a", L"b", L"my length" };
const double kValues[kNumVariables] = { 2.0, -0.00005, 1234.5678 };

void require(bool holds)
{
    if (!holds)
        std::abort();
}

// Every NaN is as good as another.
bool isSame(double a, double b)
{
    return std::memcmp(&a, &b, sizeof a) == 0 || (std::isnan(a) && std::isnan(b));
}

// 0 also for a name without a value.
int evaluateCompiled(const VorCompiledFormula& formula, double& result)
{
    std::vector<double> values(1);
    for (const VorString& name : formula.names())
    {
        int i = 0;
        while (i < kNumVariables && name != kNames[i])
            ++i;
        if (i == kNumVariables)
            return 0;
        values.insert(values.end() - 1, kValues[i]);
    }
    return formula.evaluate(values.data(), result);
}
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* pData, std::size_t size)
{
    const std::wstring formula(pData, std::find(pData, pData + size, 0));
    const std::vector<FormulaVariable> variables = { { kNames[0], FormulaValue::real(kValues[0]) },
                                                     { kNames[1], FormulaValue::real(kValues[1]) },
                                                     { kNames[2], FormulaValue::real(kValues[2]) } };
    double expected = -1.25;
    double result = expected;
    const int isExpected = ReferenceFormula::evaluateFormula(formula, variables, expected);
    require(evaluateFormula(formula.c_str(), kNames, kValues, kNumVariables, &result) == isExpected);
    require(isSame(result, expected));

    const VorCompiledFormula compiled(formula.c_str(), static_cast<int>(formula.size()));
    if (VorFormulaText::isFormula(formula) && compiled.isCompiled())
    {
        result = -1.25;
        require(evaluateCompiled(compiled, result) == isExpected);
        require(isSame(result, expected));
    }
    require(VorAssert::reports().empty());
    return 0;
}
