#include "VerbList.h"

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
    verbs.add(std::make_unique<UnitsVerb>());
    return verbs;
}
}
