// Why a command ends without a report: the exit status, and a finding for everything that is wrong.
//
//   throw Fault(kInvalidInput, Finding::of(FindingCodes::kNoJson, "no valid JSON"));
#pragma once

#include "ExitStatus.h"
#include "Finding.h"

#include <cstddef>
#include <stdexcept>
#include <string>
#include <vector>

namespace mekbom
{
class Fault : public std::runtime_error
{
public:
    Fault(ExitStatus status, const Finding& finding) : Fault(status, std::vector<Finding>{ finding }, 1) {}

    // At least one of `findings` is an error; there may be notes among them. `numErrors` counts all errors there were,
    // of which `findings` may hold fewer.
    Fault(ExitStatus status, std::vector<Finding> findings, std::size_t numErrors);

    // For messages that are not data yet.
    Fault(ExitStatus status, const std::string& message);

    ExitStatus status() const { return m_status; }
    const std::vector<Finding>& findings() const { return m_findings; }
    std::size_t numErrors() const { return m_numErrors; }

    // The first `most` errors as lines of text and, when there were more, a line that counts the others: "and 5 more
    // faults".
    std::vector<std::string> messages(std::size_t most) const;

private:
    ExitStatus m_status;
    std::vector<Finding> m_findings;
    std::size_t m_numErrors;
};
}
