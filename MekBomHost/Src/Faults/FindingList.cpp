#include "FindingList.h"

#include "Fault.h"

#include <utility>

namespace mekbom
{
void FindingList::add(Finding finding)
{
    if (m_numOf[finding.severity]++ < kMostKept)
        m_findings.push_back(std::move(finding));
}

void FindingList::addAllOf(const Fault& fault)
{
    const std::size_t numErrorsBefore = numErrors();
    for (const Finding& finding : fault.findings())
        add(finding);
    m_numOf[Finding::kError] = numErrorsBefore + fault.numErrors();
}

void FindingList::throwIfAnyError() const
{
    if (numErrors() > 0)
        throw Fault(kInvalidInput, m_findings, numErrors());
}
}
