// The catalogue of units as a table for users: kind, symbol, how it is asked for, what it is, source and names.
#pragma once

#include <string>

namespace mekbom::UnitTable
{
std::string text();
}
