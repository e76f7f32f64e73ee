// What is wrong with a formula that a template asks for: where it computes something else than its author reads in it,
// or nothing at all.
//
//   const auto findings = FormulaRules::check(L"2*3+(4+5)*6", operands);
//   findings.front().code        ->  "MB404"
//   findings.front().statement   ->  "2*3+(4+5)*6" is read as "(((2*3)+(4+5))*6)", not as "((2*3)+((4+5)*6))"
//
// The codes are those from MB401 on of MistakeCodes, without two for which a formula alone is not enough: that it stands
// only in a footer (MB403), and that rows lack one of its tokens (MB413). Nor is it said that no catalogue knows a token
// of the formula: a token that stands in no formula is no better (MB501).
#pragma once

#include "Finding.h"
#include "FormulaOperand.h"

#include <vector>

namespace mekbom::FormulaRules
{
// The findings in the order of their codes, one of each at most, without a place. `formula` is the text behind
// "%Formula:", `declared` what its column says that it gives (FormulaResult::of), empty for nothing.
std::vector<Finding> check(const VorString& formula, const FormulaOperands& operands,
                           const std::string& declared = std::string());
}
