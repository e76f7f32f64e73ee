// The configuration files that lists are made with: the user's, and over it that of the template's folder.
//
//   ConfigurationFiles::pathsFor("lists/bolts.json")   ->  "/home/ann/.config/mekbom/config.ini", "lists/mekbom.ini"
//   ConfigurationFiles::pathsFor("bolt-list")          ->  the first alone: shipped lists have no such file
//   ConfigurationFiles::readFor("lists/bolts.json").units()   ->  "imperial"
//
// The user's stands in the folder that XDG_CONFIG_HOME names, or in .config in that of HOME.
#pragma once

#include "Configuration.h"

#include <string>
#include <vector>

namespace mekbom::ConfigurationFiles
{
// Where such files may be, the nearer one behind, whether they are there or not. `templateName` is what the command line
// names: a file, a shipped list, "default", or empty for none.
std::vector<std::string> pathsFor(const std::string& templateName);

// What those that are there say. Throws a Fault of status kInvalidInput for one that is there and cannot be read, and
// what Configuration throws.
Configuration readFor(const std::string& templateName);
}
