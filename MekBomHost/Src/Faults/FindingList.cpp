#include "FindingList.h"

#include "Fault.h"

namespace mekbom
{
void FindingList::add(Finding finding)
{
    m_numErrors += finding.severity == Finding::kError ? 1 : 0;
    m_findings.push_back(std::move(finding));
}

void FindingList::throwIfAnyError() const
{
    if (m_numErrors > 0)
        throw Fault(kInvalidInput, m_findings);
}
}
