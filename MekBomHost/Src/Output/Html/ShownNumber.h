// What the text of a number looks like, so that a page can align and sort numbers without knowing their units.
//
//   ShownNumber::numDecimals("1 693.50")  ->  2
//   ShownNumber::numDecimals("7' 6\"")    ->  ShownNumber::kNoDecimal
//   ShownNumber::isPlain("-12.5")         ->  true
//   ShownNumber::isPlain("1 693.50")      ->  false
#pragma once

#include <string_view>

namespace mekbom::ShownNumber
{
inline constexpr int kNoDecimal = -1;

// Digits behind the point of a decimal number, which may have blanks between thousands; kNoDecimal for whatever else
// there is, such as feet and inches, numbers with a unit behind them or with an exponent.
int numDecimals(std::string_view text);

// Whether every program reads the text as the number that a reader sees: a decimal number without blanks.
bool isPlain(std::string_view text);
}
