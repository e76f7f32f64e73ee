// A FindingList for messages that are not data yet.
//
//   faults.add("parts.csv:3: column \"Weight\": found \"abc\", expected a number");
//   faults.throwIfAny();
#pragma once

#include "FindingList.h"

#include <string>

namespace mekbom
{
class FaultList
{
public:
    void add(const std::string& message);
    bool isEmpty() const { return m_findings.numErrors() == 0; }

    // Throws a Fault of status kInvalidInput with all messages; returns when there is none.
    void throwIfAny() const { m_findings.throwIfAnyError(); }

private:
    FindingList m_findings;
};
}
