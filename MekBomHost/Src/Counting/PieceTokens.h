// Which data of a line are those of all its pieces: their number, and formulas that grow in step with it. Such data are
// added up when lines are made one, and keep no lines apart.
//
//   PieceTokens::growWithPieces(L"%Quantity")                       ->  true
//   PieceTokens::growWithPieces(L"%Formula:%Weight*%Quantity")      ->  true
//   PieceTokens::growWithPieces(L"%Formula:%Weight/%Quantity")      ->  false
//   PieceTokens::growWithPieces(L"%Weight")                         ->  false
#pragma once

#include "MekRoots/Exp/VorString.h"

namespace mekbom::PieceTokens
{
// False for a formula of which it cannot be told.
bool growWithPieces(const VorString& token);
}
