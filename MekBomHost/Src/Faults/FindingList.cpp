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

void FindingList::throwIfAnyError() const
{
    if (numErrors() > 0)
        throw Fault(kInvalidInput, m_findings, numErrors());
}
}
