// `mekbom tokens`: the catalogue of tokens, or those of them whose names hold a word.
//
//   mekbom tokens            all
//   mekbom tokens weight     %Weight, %WeightInAssembly ...
#pragma once

#include "Verb.h"

#include <string>

namespace mekbom
{
class TokensVerb : public Verb
{
public:
    CLI::App& declareOn(CLI::App& parent) override;
    ExitStatus run(FindingList& findings) override;

private:
    std::string m_word;
};
}
