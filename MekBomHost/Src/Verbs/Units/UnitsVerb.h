// `mekbom units`: the catalogue of units; below it the verbs that turn single quantities from one unit to another.
//
//   mekbom units                             the catalogue as a table
//   mekbom units convert 2286 mm ft-in/16    7' 6"
//   mekbom units read "7'-6 1/2\""           2298.7
#pragma once

#include "Verb.h"
#include "VerbList.h"

namespace mekbom
{
class UnitsVerb : public Verb
{
public:
    UnitsVerb();

    CLI::App& declareOn(CLI::App& parent) override;
    ExitStatus run(FindingList& findings) override;

    // What help says below the options of `mekbom units` and of the verbs below it.
    static const char* const kNotes;

private:
    VerbList m_tasks; // without one the catalogue is printed
};
}
