// How the verbs about units refuse words that they cannot take.
#pragma once

#include "MekRoots/Exp/VorString.h"

#include <string>

namespace mekbom::QuantityWords
{
// Throws a Fault of status kWrongUsage:  found "1,5", expected a quantity in mm: the decimal sign is a point
// `hint`, which follows the colon, may be empty.
[[noreturn]] void refuse(const std::string& found, const std::string& expected, const VorString& hint = VorString());
}
