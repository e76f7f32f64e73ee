// A formula as the engine reads it, by the engine's own parser.
//
//   EngineReading::read(L"2*3+(4+5)*6").tree.text()    ->  "(((2*3)+(4+5))*6)": a ')' groups all that stands before it
//   EngineReading::read(L"8/-2/2").tree.text()         ->  "(8/(-(2/2)))": a negation binds less than '*' and '/'
//   EngineReading::read(L"round(a*2.2)").tree.text()   ->  "(a*2.2)": the word is gone
//   EngineReading::read(L"(1+2").isBalanced            ->  false
//
// How statements are read is told by ExpressionEvaluator/Src/VorExpressionEvaluator.h. Nothing is computed, so that a
// formula of names without values can be read. A name that the engine reads with zero characters behind it, which no
// variable has, has them here, too ("a" in "a=4;2*a").
#pragma once

#include "FormulaTree.h"

namespace mekbom
{
struct EngineReading
{
    FormulaTree tree;       // of all statements before the first with an impaired parenthesis
    bool isBalanced = true; // whether each statement has as many '(' as ')'

    // Reads the text behind "%Formula:". The text is not needed afterwards.
    static EngineReading read(const VorString& formula);
};
}
