// The words in which users say how parts lists are read, on the command line and in the options of a session.
//
//   *WordChoices::find(InputWords::decimalSigns(), ",")           ->  NumberNotation::kComma
//   InputWords::mappingOf("Cost code", "UserAttr1").token         ->  "%UserAttr1"
#pragma once

#include "HeadingChoices.h"
#include "NumberNotation.h"
#include "TextEncoding.h"
#include "WordChoices.h"

#include <string>

namespace mekbom::InputWords
{
const WordChoices::Choices<char>& delimiters();
const WordChoices::Choices<NumberNotation::eSign>& decimalSigns();
const WordChoices::Choices<TextEncoding::eEncoding>& encodings();

// That a heading means the token of this name, whose percent sign may be left out, as in other options. Throws a Fault of
// status kWrongUsage where no row can have such a token.
HeadingMapping mappingOf(const std::string& heading, const std::string& name);
}
