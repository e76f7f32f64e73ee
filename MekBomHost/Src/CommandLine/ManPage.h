// The manual page of the program, made of what its commands have declared, as help is: there is no second list of
// options that could lag behind.
//
//   CLI::App program("Lists of steel", "steel");
//   program.set_version_flag("--version", "steel 1.0");
//   ManPage::textOf(program, "2026-11-22")       ->  what man -l shows as steel(1)
#pragma once

#include <string>

namespace CLI
{
class App;
}

namespace mekbom::ManPage
{
// In the macros of man(7), for section 1. Its sections are those that such pages have, one with a part for each
// command, and then those of the program's notes. `date` is that of the version.
std::string textOf(const CLI::App& program, const std::string& date);
}
