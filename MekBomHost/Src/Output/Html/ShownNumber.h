// What the text of a number looks like, so that a page can align and sort numbers without knowing their units.
//
//   ShownNumber::numDecimals("1 693.50")  ->  2
//   ShownNumber::numDecimals("7' 6\"")    ->  ShownNumber::kNoDecimal
//   ShownNumber::fill("12.5", 2)          ->  "0"
//   ShownNumber::isPlain("-12.5")         ->  true
//   ShownNumber::isPlain("1 693.50")      ->  false
#pragma once

#include <string>
#include <string_view>

namespace mekbom::ShownNumber
{
inline constexpr int kNoDecimal = -1;

// Digits behind the point of a decimal number, which may have blanks between thousands; kNoDecimal for whatever else
// there is, such as feet and inches, numbers with a unit behind them or with an exponent.
int numDecimals(std::string_view text);

// What a number lacks, to its right, that its point stands below those of numbers with so many decimals; empty for what is
// no decimal number.
//   fill("12", 2)  ->  ".00"
std::string fill(std::string_view text, int mostDecimals);

// Whether every program reads the text as the number that a reader sees: a decimal number without blanks.
bool isPlain(std::string_view text);
}
