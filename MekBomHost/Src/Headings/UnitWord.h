// The unit in a heading, as spreadsheets write it: with other letters than the catalogue of units, or per piece.
//
//   UnitWord::of("KG").symbol                ->  "kg"
//   UnitWord::of("kg/Stk.").symbol           ->  "kg"; isPerPiece is true
//   UnitWord::of("m^2").symbol               ->  "m2"
//   UnitWord::of("pcs").isPieces             ->  true
//   UnitWord::of("EUR").isKnown()            ->  false
#pragma once

#include "VorBomTemplateUnits.h"

#include <string>
#include <string_view>

namespace mekbom
{
struct UnitWord
{
    static UnitWord of(std::string_view text);

    bool isKnown() const { return isPieces || !symbol.empty(); }

    std::string symbol; // as the catalogue of units takes it; empty for pieces, and for a word that is no unit
    VorBomTemplateUnits::eTokenUnitType kind = VorBomTemplateUnits::kNoUnit; // that it measures
    bool isPerPiece = false; // "kg/pc" is of one piece, whatever the heading says
    bool isPieces = false;   // a word for pieces, as in "Anzahl [Stk]"
};
}
