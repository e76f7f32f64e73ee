// Whether a formula doubles and triples as the pieces do is tried with numbers rather than derived from its tree:
//   pieces                 1        2        3
//   %Weight*%Quantity      12345    24690    37035    grows
//   %Weight/%Quantity      12345    6172.5   4115     does not
//   %Weight*%Quantity+5    12350    24695    37040    does not: 5 is added once, however many pieces there are
// What cannot be told does not grow: its lines stay apart unless they are the same, which is never wrong.
#include "PieceTokens.h"

#include "TokenNames.h"

#include "VorBomDataToken.h"

#include "ExpressionEvaluator/Src/VorCompiledFormula.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <optional>
#include <vector>

namespace mekbom::PieceTokens
{
namespace
{
using Results = std::array<double, 3>; // of a formula in rows of 1, 2 and 3 pieces that are alike otherwise

// Nothing for a formula without the pieces, and for one that cannot be tried: one of several statements, or one that
// divides by zero. The other names get numbers of which none is special.
std::optional<Results> resultsOf(const VorString& formula)
{
    constexpr double kAnyNumber = 12345;
    constexpr double kStep = 977;
    const VorCompiledFormula compiled(formula.getStringW(), formula.length());
    const std::vector<VorString>& names = compiled.names();
    const auto pieces = std::find(names.begin(), names.end(), VorString(TokenNames::kWidePieces));
    if (pieces == names.end())
        return std::nullopt;
    std::vector<double> values;
    for (std::size_t i = 0; i < names.size(); ++i)
        values.push_back(kAnyNumber + kStep * static_cast<double>(i));
    Results results{};
    for (std::size_t i = 0; i < results.size(); ++i)
    {
        values[static_cast<std::size_t>(pieces - names.begin())] = static_cast<double>(i + 1);
        if (compiled.evaluate(values.data(), results[i]) == 0)
            return std::nullopt;
    }
    return results;
}

// Each result is off by up to half a millionth, since formulas have six decimals, and by the last digits of a double.
bool isMultiple(double result, double times, double single)
{
    constexpr double kOfDecimals = 1e-5;
    constexpr double kOfDoubles = 1e-12;
    return std::fabs(result - times * single) <= kOfDecimals + kOfDoubles * std::fabs(result);
}

// What comes to next to nothing is taken for a formula that does not grow: its decimals are all rounded away.
bool growsWithPieces(const VorString& formula)
{
    const std::optional<Results> results = resultsOf(formula);
    if (!results || std::fabs((*results)[0]) <= 1)
        return false;
    return isMultiple((*results)[1], 2, (*results)[0]) && isMultiple((*results)[2], 3, (*results)[0]);
}
}

bool growWithPieces(const VorString& token)
{
    VorString formula = token;
    return token == VorString(TokenNames::kWidePieces) ||
           (VorBomDataToken::removeFormulaPrefix(formula) == 1 && growsWithPieces(formula));
}
}
