// Why a command ends without a report: the exit status, and one message for every fault found.
//
//   throw Fault(kInvalidInput, "parts.csv:3: found 4 fields, expected 5");
//
// Messages name file, line and column or token, what was found and what was expected. They carry neither the program's
// name nor a line end; Program adds both.
#pragma once

#include "ExitStatus.h"

#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

namespace mekbom
{
class Fault : public std::runtime_error
{
public:
    Fault(ExitStatus status, const std::string& message) : Fault(status, std::vector<std::string>{ message }) {}

    // `messages` holds at least one.
    Fault(ExitStatus status, std::vector<std::string> messages)
        : std::runtime_error(messages.front()), m_status(status), m_messages(std::move(messages))
    {
    }

    ExitStatus status() const { return m_status; }
    const std::vector<std::string>& messages() const { return m_messages; }

private:
    ExitStatus m_status;
    std::vector<std::string> m_messages;
};
}
