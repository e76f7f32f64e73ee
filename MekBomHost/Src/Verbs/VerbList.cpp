// Parsing only notes which verb was called. It runs when its caller says so: all options are parsed then, of verbs
// within verbs too, and what a verb throws does not pass through the parser.
#include "VerbList.h"

#include "ExplainVerb.h"
#include "ReportVerb.h"
#include "UnitsVerb.h"

#include <CLI/CLI.hpp>

namespace mekbom
{
void VerbList::declareOn(CLI::App& parent)
{
    for (const std::unique_ptr<Verb>& pVerb : m_verbs)
        pVerb->declareOn(parent).callback([this, pCalled = pVerb.get()] { m_pCalled = pCalled; });
}

VerbList allVerbs()
{
    VerbList verbs;
    verbs.add(std::make_unique<ReportVerb>());
    verbs.add(std::make_unique<ExplainVerb>());
    verbs.add(std::make_unique<UnitsVerb>());
    return verbs;
}
}
