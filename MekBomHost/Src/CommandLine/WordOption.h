// An option that takes one of some words, each of which stands for a value:  --values plain
//
//   static const WordOption::Choices<bool> kValues = { { "shown", false }, { "plain", true } };
//   WordOption::declare(report, "--values", "WORD", "How numbers are written", kValues,
//                       [&arePlain](bool value) { arePlain = value; });
//
// Help and messages show the words alone, not what each is taken for.
#pragma once

#include "InQuotes.h"

#include <CLI/CLI.hpp>

#include <string>
#include <utility>
#include <vector>

namespace mekbom::WordOption
{
template <class Value>
using Choices = std::vector<std::pair<const char*, Value>>;

// Adds the option to `command`. Parsing calls `take` with the value of the word that is given; another word ends it with
// a CLI::ValidationError. `form` is what help calls the word. `choices` outlive the command.
template <class Value, class Take>
void declare(CLI::App& command, const std::string& name, const std::string& form, const std::string& help,
             const Choices<Value>& choices, const Take& take)
{
    const auto takeWord = [&choices, name, take](const std::string& word)
    {
        std::string known;
        for (const auto& choice : choices)
        {
            if (word == choice.first)
                return take(choice.second);
            known += std::string(" ") + choice.first;
        }
        throw CLI::ValidationError(name, inQuotes(word) + " is none of" + known);
    };
    command.add_option_function<std::string>(name, takeWord, help)->type_name(form);
}
}
