// Which kind of quantity the tokens of the catalogue are.
//
//   TokenKinds kinds;
//   kinds.of("%Length")    ->  kDistanceUnit
//   kinds.of("%Name")      ->  kNoUnit
//
// Whoever asks for many tokens keeps one of these.
#pragma once

#include "VorBomTemplate.h"

#include <string>

namespace mekbom
{
class TokenKinds
{
public:
    TokenKinds();

    // kNoUnit for what is no quantity, or no token of the catalogue.
    VorBomTemplateUnits::eTokenUnitType of(const std::string& token) const;

private:
    VorBomTemplate m_template; // without a section; it gives kinds to tokens once it is told its units
};
}
