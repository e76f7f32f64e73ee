#include "PieceTokens.h"

#include "VorBomDataToken.h"

#include "ExpressionEvaluator/Src/VorCompiledFormula.h"

#include <cmath>
#include <vector>

namespace mekbom::PieceTokens
{
namespace
{
const VorString kPieces = L"%Quantity";

// Whether the formula doubles and triples as the pieces do: "%Weight*%Quantity", but not "%Weight/%Quantity" nor
// "%Quantity+1". Tried with numbers, of which none is special; results have six decimals. What cannot be tried, or
// comes to next to nothing, does not: its lines stay apart, which is never wrong.
bool growsWithPieces(const VorString& formula)
{
    constexpr double kAnyNumber = 12345;
    constexpr double kStep = 977;
    constexpr double kRounding = 1e-5;
    const VorCompiledFormula compiled(formula.getStringW(), formula.length());
    std::vector<double> values;
    double* pPieces = nullptr;
    values.reserve(compiled.names().size());
    for (const VorString& name : compiled.names())
    {
        values.push_back(kAnyNumber + kStep * static_cast<double>(values.size()));
        if (name == kPieces)
            pPieces = &values.back();
    }
    if (pPieces == nullptr)
        return false;
    double results[3] = {};
    for (double& result : results)
    {
        *pPieces = static_cast<double>(&result - results) + 1;
        if (compiled.evaluate(values.data(), result) == 0)
            return false;
    }
    const auto isMultiple = [&results](double times, double result)
    { return std::fabs(result - times * results[0]) <= kRounding * (1 + std::fabs(results[0])); };
    return std::fabs(results[0]) > 1 && isMultiple(2, results[1]) && isMultiple(3, results[2]);
}
}

bool growWithPieces(const VorString& token)
{
    VorString formula = token;
    return token == kPieces || (VorBomDataToken::removeFormulaPrefix(formula) == 1 && growsWithPieces(formula));
}
}
