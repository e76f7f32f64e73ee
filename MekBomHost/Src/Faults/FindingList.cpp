#include "FindingList.h"

#include "Fault.h"

#include <utility>

namespace mekbom
{
// Counts all, keeps the first.
void FindingList::add(Finding finding)
{
    if (m_numOf[finding.severity]++ < kMostKept)
        m_findings.push_back(std::move(finding));
}

void FindingList::addAll(const std::vector<Finding>& findings, std::size_t numErrors)
{
    const std::size_t numErrorsBefore = m_numOf[Finding::kError];
    for (const Finding& finding : findings)
        add(finding);
    m_numOf[Finding::kError] = numErrorsBefore + numErrors;
}

void FindingList::throwIfAnyError() const
{
    if (numErrors() > 0)
        throw Fault(kInvalidInput, m_findings, numErrors());
}
}
