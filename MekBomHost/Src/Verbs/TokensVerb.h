// `mekbom tokens`: the catalogue of tokens, or those of them whose names hold a word.
//
//   mekbom tokens            all
//   mekbom tokens weight     %Weight, %WeightInAssembly ...
//   mekbom tokens --headings      what columns may be called that carry them: Mark, Werkstoff, Aantal ...
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
    bool m_listsHeadings = false;
};
}
