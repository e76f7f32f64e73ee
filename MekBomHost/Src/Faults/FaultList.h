// Collects what is wrong with an input file, so that one run shows more than the first mistake.
//
//   faults.add("parts.csv:3: column \"Weight\": found \"abc\", expected a number");
//   faults.throwIfAny();
#pragma once

#include <string>
#include <vector>

namespace mekbom
{
class FaultList
{
public:
    void add(const std::string& message) { m_messages.push_back(message); }
    bool isEmpty() const { return m_messages.empty(); }

    // Throws a Fault of status kInvalidInput with all messages; returns when there is none.
    void throwIfAny() const;

private:
    std::vector<std::string> m_messages;
};
}
