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
    // Takes m_arguments apart. Throws a Fault of status kWrongUsage for one that is no name and number.
    void readValues();

    // Adds what the rules for formulas find: as warnings where there is a value, as errors where there is none.
    void tellMistakes(FindingList& findings, bool isComputed) const;

    std::string m_formula;                // in UTF-8
    std::vector<std::string> m_arguments; // "a=3"

    std::vector<VorString> m_names;
    std::vector<double> m_values; // of the names, in their order
};
}
