#include "FaultList.h"

#include "Fault.h"

namespace mekbom
{
void FaultList::add(const std::string& message)
{
    if (m_messages.size() < kMostShown)
        m_messages.push_back(message);
    else
        ++m_numNotShown;
}

void FaultList::throwIfAny() const
{
    if (isEmpty())
        return;
    std::vector<std::string> messages = m_messages;
    if (m_numNotShown > 0)
        messages.push_back("and " + std::to_string(m_numNotShown) + " more faults");
    std::vector<Finding> findings;
    for (const std::string& message : messages)
    {
        Finding finding;
        finding.statement = message;
        findings.push_back(finding);
    }
    throw Fault(kInvalidInput, std::move(findings));
}
}
