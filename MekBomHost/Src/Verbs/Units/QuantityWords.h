// How the verbs about units refuse words that they cannot take.
//
//   QuantityWords::refuse(FindingCodes::kNoQuantity, "1,5", "a quantity in mm", L"the decimal sign is a point");
//
// ends the verb with the message
//
//   found "1,5", expected a quantity in mm: the decimal sign is a point
#pragma once

#include "FindingCodes.h"

#include "MekRoots/Exp/VorString.h"

#include <string>

namespace mekbom::QuantityWords
{
// Throws a Fault of status kWrongUsage. `hint`, which follows the colon, may be empty; then the colon goes, too.
[[noreturn]] void refuse(const FindingCode& code, const std::string& found, const std::string& expected,
                         const VorString& hint = VorString());
}
