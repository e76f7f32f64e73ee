#include "FaultList.h"

#include "Fault.h"

namespace mekbom
{
void FaultList::throwIfAny() const
{
    if (isEmpty())
        return;
    std::vector<Finding> findings;
    for (const std::string& message : m_messages)
    {
        Finding finding;
        finding.statement = message;
        findings.push_back(finding);
    }
    throw Fault(kInvalidInput, std::move(findings));
}
}
