// The parts list and the templates that come with the program.
//
// They lie in "../share/mekbom" beside the program's folder once it is installed; a program that runs where it was
// built finds them in the source tree, whose place was compiled in.
#pragma once

#include <string>
#include <vector>

namespace mekbom::ShippedFiles
{
// "hall.csv", "Templates/cutting-list.json"  ->  the file's path. Throws a Fault of status kInvalidInput, which names
// the folders looked at, when it is in none of them.
std::string find(const std::string& relativePath);

// The templates that a list may be printed with when the user names none, in order of preference.
const std::vector<std::string>& templates();

extern const char* const kPartsList;
}
