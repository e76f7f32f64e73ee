// The parts list and the templates that come with the program.
//
//   FileSource parts(ShippedFiles::find(ShippedFiles::kPartsList));
//   ShippedFiles::templates().front()   ->  "Templates/cutting-list.json"
//
// They lie in "../share/mekbom" as seen from the program's folder once it is installed, and in "share/mekbom" where it
// was built.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace mekbom::ShippedFiles
{
// The path of the file that is called so below the folder of shipped files: "Templates/cutting-list.json" may be
// "/usr/share/mekbom/Templates/cutting-list.json". Throws a Fault of status kInvalidInput, which names the folders that
// were looked into, when it is in none of them.
std::string find(const std::string& relativePath);

// The templates that a list may be printed with when the user names none, in order of preference, as find() takes
// them.
const std::vector<std::string>& templates();

// What users call them, in the same order: "cutting-list".
std::vector<std::string> templateNames();

// The template that users call so, as find() takes it; empty when there is none.
//   ShippedFiles::templateNamed("bolt-list")   ->  "Templates/bolt-list.json"
std::string templateNamed(std::string_view name);

// The parts list that examples use, as find() takes it.
extern const char* const kPartsList;
}
