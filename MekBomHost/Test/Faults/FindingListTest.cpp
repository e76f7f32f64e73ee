#include "FindingList.h"

#include "Fault.h"

#include <gtest/gtest.h>

namespace mekbom
{
namespace
{
Finding findingOf(Finding::eSeverity severity)
{
    Finding finding;
    finding.severity = severity;
    finding.statement = "something";
    return finding;
}
}

TEST(FindingListTest, WithoutErrorsNothingIsThrown)
{
    FindingList findings;
    findings.add(findingOf(Finding::kNote));
    findings.add(findingOf(Finding::kWarning));

    EXPECT_EQ(0U, findings.numErrors());
    EXPECT_NO_THROW(findings.throwIfAnyError());
}

TEST(FindingListTest, OneErrorThrowsAllFindings)
{
    FindingList findings;
    findings.add(findingOf(Finding::kNote));
    findings.add(findingOf(Finding::kError));

    try
    {
        findings.throwIfAnyError();
        FAIL() << "nothing was thrown";
    }
    catch (const Fault& fault)
    {
        EXPECT_EQ(kInvalidInput, fault.status());
        EXPECT_EQ(2U, fault.findings().size());
    }
}

TEST(FindingListTest, KeepsThousandsAndCountsTheOthers)
{
    FindingList findings;
    for (std::size_t i = 0; i < FindingList::kMostKept + 7; ++i)
        findings.add(findingOf(Finding::kError));
    findings.add(findingOf(Finding::kNote));

    EXPECT_EQ(FindingList::kMostKept + 1, findings.all().size());
    EXPECT_EQ(FindingList::kMostKept + 7, findings.numErrors());
    EXPECT_EQ(Finding::kNote, findings.all().back().severity);
    try
    {
        findings.throwIfAnyError();
        FAIL() << "nothing was thrown";
    }
    catch (const Fault& fault)
    {
        EXPECT_EQ(FindingList::kMostKept + 7, fault.numErrors());
    }
}

TEST(FindingListTest, TheErrorsOfAFaultAreCountedAsTheFaultCountsThem)
{
    FindingList findings;
    findings.add(findingOf(Finding::kError));

    findings.addAllOf(Fault(kInvalidInput, { findingOf(Finding::kError), findingOf(Finding::kNote) }, 30));

    EXPECT_EQ(3U, findings.all().size());
    EXPECT_EQ(31U, findings.numErrors());
}
}
