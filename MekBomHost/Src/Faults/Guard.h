// Runs something that may throw, and keeps what it throws as findings.
//
//   FindingList findings;
//   const ExitStatus status = runGuarded(findings, [&] { return run(findings); });
#pragma once

#include "ExitStatus.h"
#include "FindingList.h"

#include <functional>

namespace mekbom
{
// The status that `action` returns or throws: that of a Fault, whose findings are added to `findings`; kInternalFault,
// with a finding that says so, for anything else.
ExitStatus runGuarded(FindingList& findings, const std::function<ExitStatus()>& action);
}
