// Collects what is wrong with an input file, so that one run shows more than the first mistake.
//
//   faults.add("parts.csv:3: column \"Weight\": found \"abc\", expected a number");
//   faults.throwIfAny();
//
// A file that is wrong throughout gives kMostShown messages and one that counts the others.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace mekbom
{
class FaultList
{
public:
    static constexpr std::size_t kMostShown = 20; // arbitrary: about a screen

    void add(const std::string& message);
    bool isEmpty() const { return m_messages.empty(); }

    // Throws a Fault of status kInvalidInput with all messages; returns when there is none.
    void throwIfAny() const;

private:
    std::vector<std::string> m_messages;
    std::size_t m_numNotShown = 0;
};
}
