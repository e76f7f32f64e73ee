// Words that users choose from, each of which stands for a value:  --values plain, or "values": "plain"
//
//   static const WordChoices::Choices<bool> kValues = { { "shown", false }, { "plain", true } };
//   *WordChoices::find(kValues, "plain")   ->  true
//   WordChoices::wordsOf(kValues)          ->  " shown plain"
#pragma once

#include <string>
#include <utility>
#include <vector>

namespace mekbom::WordChoices
{
template <class Value>
using Choices = std::vector<std::pair<const char*, Value>>;

// What `word` stands for; null when it is none of the words.
template <class Value>
const Value* find(const Choices<Value>& choices, const std::string& word)
{
    for (const auto& choice : choices)
        if (word == choice.first)
            return &choice.second;
    return nullptr;
}

// " shown plain", for messages.
template <class Value>
std::string wordsOf(const Choices<Value>& choices)
{
    std::string words;
    for (const auto& choice : choices)
        words += std::string(" ") + choice.first;
    return words;
}
}
