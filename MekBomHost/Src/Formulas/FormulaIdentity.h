// Whether two readings of a formula come to the same value whatever its names stand for.
//
//   const auto ofEngine = EngineReading::read(L"2*a*(b+1)").tree;
//   const auto ofArithmetic = ArithmeticReading::read(L"2*a*(b+1)").tree;
//   FormulaIdentity::haveSameValue(ofEngine, ofArithmetic)   ->  true
//
// "(a+b)+c" and "a+(b+c)" are the same, "(a+b)*2" and "a+b*2" are not. Rounding plays no part: the trees are computed
// exactly, modulo a prime, with a few sets of arbitrary numbers for their names. Trees that are always equal are found
// to be; others differ by all odds for at least one of the sets. The numbers are the same in every run.
#pragma once

#include "FormulaTree.h"

namespace mekbom::FormulaIdentity
{
// A quotient by zero has no value, and is the same as another one alone.
bool haveSameValue(const FormulaTree& a, const FormulaTree& b);
}
