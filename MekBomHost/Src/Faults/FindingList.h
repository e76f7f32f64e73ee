// Takes findings, so that one run shows more than the first mistake. Keeps all of them; how many are shown is up to who
// shows them.
//
//   findings.add(finding);
//   findings.throwIfAnyError();
#pragma once

#include "Finding.h"

#include <cstddef>
#include <utility>
#include <vector>

namespace mekbom
{
class FindingList
{
public:
    void add(Finding finding);
    const std::vector<Finding>& all() const { return m_findings; }

    // How many of them are errors.
    std::size_t numErrors() const { return m_numErrors; }

    // Throws a Fault of status kInvalidInput with all findings when one is an error.
    void throwIfAnyError() const;

private:
    std::vector<Finding> m_findings;
    std::size_t m_numErrors = 0;
};
}
