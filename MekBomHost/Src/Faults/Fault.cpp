#include "Fault.h"

#include <algorithm>
#include <string>
#include <utility>

namespace mekbom
{
namespace
{
bool isError(const Finding& finding)
{
    return finding.severity == Finding::kError;
}

// The first finding may be a note, which is about a report that does not come; the first error says why.
std::string firstMessageOf(const std::vector<Finding>& findings)
{
    const auto found = std::find_if(findings.begin(), findings.end(), isError);
    return found == findings.end() ? std::string() : messageOf(*found);
}
}

// The text for handlers that know nothing of findings is made first: then the findings move.
Fault::Fault(ExitStatus status, std::vector<Finding> findings, std::size_t numErrors)
    : std::runtime_error(firstMessageOf(findings)),
      m_status(status),
      m_findings(std::move(findings)),
      m_numErrors(numErrors)
{
}
}
