// Why a command ends without a report: the exit status, and a finding for everything that is wrong.
//
//   throw Fault(kInvalidInput, finding);
#pragma once

#include "ExitStatus.h"
#include "Finding.h"

#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

namespace mekbom
{
class Fault : public std::runtime_error
{
public:
    // `findings` holds at least one error.
    Fault(ExitStatus status, std::vector<Finding> findings)
        : std::runtime_error(messageOf(findings.front())), m_status(status), m_findings(std::move(findings))
    {
    }

    Fault(ExitStatus status, Finding finding) : Fault(status, std::vector<Finding>{ std::move(finding) }) {}

    // For messages that are not data yet.
    Fault(ExitStatus status, const std::string& message) : Fault(status, findingOf(message)) {}

    ExitStatus status() const { return m_status; }
    const std::vector<Finding>& findings() const { return m_findings; }

    // The findings as lines of text.
    std::vector<std::string> messages() const;

private:
    static Finding findingOf(const std::string& message);

    ExitStatus m_status;
    std::vector<Finding> m_findings;
};
}
