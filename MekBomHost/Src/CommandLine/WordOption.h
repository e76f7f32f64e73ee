// An option that takes one of some words, each of which stands for a value:  --values plain
//
//   static const WordChoices::Choices<bool> kValues = { { "shown", false }, { "plain", true } };
//   WordOption::declare(report, "--values", "WORD", "How numbers are written", kValues,
//                       [&arePlain](bool value) { arePlain = value; });
//
// Help and messages show the words alone, not what each is taken for.
#pragma once

#include "InQuotes.h"
#include "WordChoices.h"

#include <CLI/CLI.hpp>

#include <string>

namespace mekbom::WordOption
{
// Adds the option to `command`. Parsing calls `take` with the value of the word that is given; another word ends it with
// a CLI::ValidationError. `form` is what help calls the word. `choices` outlive the command.
template <class Value, class Take>
void declare(CLI::App& command, const std::string& name, const std::string& form, const std::string& help,
             const WordChoices::Choices<Value>& choices, const Take& take)
{
    const auto takeWord = [&choices, name, take](const std::string& word)
    {
        const Value* const pValue = WordChoices::find(choices, word);
        if (pValue == nullptr)
            throw CLI::ValidationError(name, inQuotes(word) + " is none of" + WordChoices::wordsOf(choices));
        take(*pValue);
    };
    command.add_option_function<std::string>(name, takeWord, help)->type_name(form);
}
}
