// `mekbom formula`: what a formula gives, and how it is read.
//
//   mekbom formula 'a*2+b' a=3 b=4       10
//                                        ((a*2)+b)
#pragma once

#include "Verb.h"

#include "MekRoots/Exp/VorString.h"

#include <string>
#include <vector>

namespace mekbom
{
class FormulaVerb : public Verb
{
public:
    static const char* const kNotes; // at the end of the help

    CLI::App& declareOn(CLI::App& parent) override;
    ExitStatus run(FindingList& findings) override;

private:
    void readValues();
    void tellMistakes(FindingList& findings, bool isComputed) const;

    std::string m_formula;
    std::vector<std::string> m_arguments; // "a=3"

    std::vector<VorString> m_names;
    std::vector<double> m_values; // of the names, in their order
};
}
