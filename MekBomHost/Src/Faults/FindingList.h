// Takes findings, so that one run shows more than the first mistake.
//
//   findings.add(Finding::of(FindingCodes::kNoSection, "no section", "at least one"));
//   findings.throwIfAnyError();
//
// How many of them are shown is up to who shows them. Of a million mistakes the first kMostKept are kept and the others
// counted, so that a file that is wrong throughout does not take many times its size in memory; errors do not crowd out
// notes, nor notes errors.
#pragma once

#include "Finding.h"

#include <cstddef>
#include <vector>

namespace mekbom
{
class FindingList
{
public:
    static constexpr std::size_t kMostKept = 10000; // of each severity; arbitrary: more than anybody reads

    // Keeps the finding if there is room for one of its severity, and counts it.
    void add(Finding finding);

    // Adds what somebody else has found: `findings`, of which those are kept that this list has room for, and all of
    // `numErrors` errors, which may be more than `findings` holds.
    void addAll(const std::vector<Finding>& findings, std::size_t numErrors);

    // Those that are kept, in the order in which they were added.
    const std::vector<Finding>& all() const { return m_findings; }

    // How many errors were added.
    std::size_t numErrors() const { return m_numOf[Finding::kError]; }

    // How many warnings were added.
    std::size_t numWarnings() const { return m_numOf[Finding::kWarning]; }

    // Throws a Fault of status kInvalidInput with all findings when one is an error.
    void throwIfAnyError() const;

private:
    static constexpr std::size_t kNumSeverities = Finding::kNote + 1;

    std::vector<Finding> m_findings;
    std::size_t m_numOf[kNumSeverities] = {};
};
}
