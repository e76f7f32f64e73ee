// Parsing only notes which verb was called: of "mekbom units read 30'" the program's list notes UnitsVerb, and the list
// in that notes UnitsReadVerb. A verb runs when its caller says so: all options are parsed then, of verbs within verbs
// too, and what a verb throws does not pass through the parser.
#include "VerbList.h"

#include <CLI/CLI.hpp>

namespace mekbom
{
void VerbList::declareOn(CLI::App& parent)
{
    for (const std::unique_ptr<Verb>& pVerb : m_verbs)
        pVerb->declareOn(parent).callback([this, pCalled = pVerb.get()] { m_pCalled = pCalled; });
}
}
