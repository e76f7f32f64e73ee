#include "FaultList.h"

#include <utility>

namespace mekbom
{
void FaultList::add(const std::string& message)
{
    Finding finding;
    finding.statement = message;
    m_findings.add(std::move(finding));
}
}
