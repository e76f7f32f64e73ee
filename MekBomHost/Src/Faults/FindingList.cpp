#include "FindingList.h"

#include "Fault.h"

#include <utility>

namespace mekbom
{
// A file with a million wrong cells: the first kMostKept findings are kept, the others are counted.
void FindingList::add(Finding finding)
{
    if (m_numOf[finding.severity]++ < kMostKept)
        m_findings.push_back(std::move(finding));
}

// The count of somebody else may be greater than what it kept, so it is taken as it is and not counted anew.
void FindingList::addAll(const std::vector<Finding>& findings, std::size_t numErrors)
{
    const std::size_t numErrorsBefore = m_numOf[Finding::kError];
    for (const Finding& finding : findings)
        add(finding);
    m_numOf[Finding::kError] = numErrorsBefore + numErrors;
}

// The Fault gets notes and warnings as well: they were found on the way, and may say why.
void FindingList::throwIfAnyError() const
{
    if (numErrors() > 0)
        throw Fault(kInvalidInput, m_findings, numErrors());
}
}
