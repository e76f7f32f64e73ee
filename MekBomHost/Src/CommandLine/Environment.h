// The environment variables of the process, as options of the lowest rank.
//
//   C40_SuppressZeroFeet=0 mekbom demo
//
//   Environment::variables({ "C40_SuppressZeroFeet", "C40_SuppressZeroInch" })   ->  "C40_SuppressZeroFeet", "0"
#pragma once

#include <string>
#include <utility>
#include <vector>

namespace mekbom::Environment
{
// Those of `names` that are set, each with what it holds, in the order of `names`. What is set to nothing holds "".
std::vector<std::pair<std::string, std::string>> variables(const std::vector<std::string>& names);
}
