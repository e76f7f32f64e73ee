// Tokens for what footers show in place of sums, so that whoever asks by its token what a column measures need not know
// that there are other totals:
//
//   tuple "%SumBy:%Length" in a column that says "total": "max"     ->   "%MaxBy:%Length"     a length
//   the same with "count"                                           ->   "%CountBy:%Length"   a whole number
//   any tuple in a column "%Rate" with a formula over totals        ->   "%TotalIn:%Rate"     what the formula gives
//
// They stand in no template and never reach the engine, which adds up in any case.
#pragma once

#include "ColumnTotal.h"

#include "MekRoots/Exp/VorString.h"

namespace mekbom::TotalTokens
{
// Of what a footer shows that has `sum`, a "%SumBy:" request, in the column `columnToken`; `sum` itself where that is
// what it shows.
VorString of(const ColumnTotal& total, const VorString& columnToken, const VorString& sum);

// kSum for any token that of() did not make.
ColumnTotal::eKind kindOf(const VorString& token);

// What a total is about, be it a sum or another one of the data: "%Length". The token itself for what is no total, and
// for one that is calculated.
VorString datumOf(const VorString& token);

// Whether it is "%SumBy:" and a token.
bool isSum(const VorString& token);
}
