// What makes a shell complete the commands and options of the program, made of what its commands have declared, as help
// and the manual page are.
//
//   CLI::App program("Lists of steel", "steel");
//   program.add_subcommand("print", "Print a file")->add_flag("--wide", "Wider lines");
//   Completion::textOf(program, Completion::kBash)   ->  steel p<Tab> becomes "steel print", steel print --w<Tab> "--wide"
//
// Where neither a command nor an option is to be completed, shells complete names of files.
#pragma once

#include <string>

namespace CLI
{
class App;
}

namespace mekbom::Completion
{
enum eShell
{
    kBash, // to be read by source, or to stand in bash-completion/completions
    kZsh,  // to stand as "_steel" in a folder of fpath
    kFish  // to be read by source, or to stand in fish/vendor_completions.d
};

std::string textOf(const CLI::App& program, eShell shell);
}
