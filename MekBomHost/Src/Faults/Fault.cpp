#include "Fault.h"

namespace mekbom
{
std::vector<std::string> Fault::messages() const
{
    std::vector<std::string> messages;
    for (const Finding& finding : m_findings)
        messages.push_back(messageOf(finding));
    return messages;
}

Finding Fault::findingOf(const std::string& message)
{
    Finding finding;
    finding.statement = message;
    return finding;
}
}
