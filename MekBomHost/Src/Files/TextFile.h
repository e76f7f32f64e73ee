// A text file as a whole, checked to be text: UTF-8 without zero bytes (TextCheck). A byte order mark in front is dropped.
#pragma once

#include "MekRoots/Exp/VorString.h"

#include <string>

namespace mekbom::TextFile
{
// Throws a Fault of status kInvalidInput when it cannot be read or is no text.
VorString read(const std::string& path);
}
