// Why a command ends without a report: the exit status, and a finding for everything that is wrong.
//
//   const Fault fault(kInvalidInput, Finding::of(FindingCodes::kNoJson, "no valid JSON"));
//   fault.status()        ->  kInvalidInput
//   fault.what()          ->  "found no valid JSON": what a handler sees that knows nothing of findings
//   throw fault;
//
// Rooms throw it where they cannot go on; runGuarded() catches it and hands its findings on, which the program prints.
#pragma once

#include "ExitStatus.h"
#include "Finding.h"

#include <cstddef>
#include <stdexcept>
#include <vector>

namespace mekbom
{
class Fault : public std::runtime_error
{
public:
    // One error, and there were no others.
    Fault(ExitStatus status, const Finding& finding) : Fault(status, std::vector<Finding>{ finding }, 1) {}

    // At least one of `findings` is an error; there may be notes among them. `numErrors` counts all errors there were,
    // of which `findings` may hold fewer.
    Fault(ExitStatus status, std::vector<Finding> findings, std::size_t numErrors);

    // What the program ends with.
    ExitStatus status() const { return m_status; }

    // What there is to say, in the order in which it was found.
    const std::vector<Finding>& findings() const { return m_findings; }

    // How many errors there were, those that are not among the findings included.
    std::size_t numErrors() const { return m_numErrors; }

private:
    ExitStatus m_status;
    std::vector<Finding> m_findings;
    std::size_t m_numErrors;
};
}
