#include "Fault.h"

#include <algorithm>
#include <utility>

namespace mekbom
{
namespace
{
// A finding without a code, which has its place in its words.
Finding findingOf(const std::string& message)
{
    Finding finding;
    finding.statement = message;
    return finding;
}

bool isError(const Finding& finding)
{
    return finding.severity == Finding::kError;
}

// What exception handlers see that know nothing of findings.
std::string firstMessageOf(const std::vector<Finding>& findings)
{
    const auto found = std::find_if(findings.begin(), findings.end(), isError);
    return found == findings.end() ? std::string() : messageOf(*found);
}
}

Fault::Fault(ExitStatus status, std::vector<Finding> findings, std::size_t numErrors)
    : std::runtime_error(firstMessageOf(findings)),
      m_status(status),
      m_findings(std::move(findings)),
      m_numErrors(numErrors)
{
}

Fault::Fault(ExitStatus status, const std::string& message) : Fault(status, findingOf(message)) {}

// Notes among the findings are left out: they are about a report that does not come.
std::vector<std::string> Fault::messages(std::size_t most) const
{
    std::vector<std::string> messages;
    for (const Finding& finding : m_findings)
        if (isError(finding) && messages.size() < most)
            messages.push_back(messageOf(finding));
    if (m_numErrors > messages.size())
        messages.push_back("and " + std::to_string(m_numErrors - messages.size()) + " more faults");
    return messages;
}
}
