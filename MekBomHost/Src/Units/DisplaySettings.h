// Fills the settings repository with what says how lists show their numbers.
//
//   DisplaySettings::load("shop.ini", { { "C40_ShowMinusBetweenFeetAndInch", "1" } });
//
// Environment variables named like a setting come first, a file over them, single settings over both.
#pragma once

#include <string>
#include <utility>
#include <vector>

namespace mekbom::DisplaySettings
{
// `file` is an INI file of whole numbers, or empty. `settings` are pairs of a name out of KTRepositoryProxy's
// kDisplayKeys and a whole number. Returns the names in the file that no list uses, which may be another program's.
// Throws a Fault for what is malformed; settings that stand before it have been stored then.
std::vector<std::string> load(const std::string& file,
                              const std::vector<std::pair<std::string, std::string>>& settings);
}
