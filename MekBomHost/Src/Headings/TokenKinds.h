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

    // The same as the engine has it, for whoever knows the kinds of more tokens than these: a copy to add them to.
    VorBomTemplateUnits units() const { return *m_template.getBomTemplateUnits(); }

private:
    VorBomTemplate m_template; // without a section; it gives kinds to tokens once it is told its units
};
}
