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

TEST(FindingListTest, KeepsMoreThanAScreenful)
{
    FindingList findings;
    for (int i = 0; i < 1000; ++i)
        findings.add(findingOf(Finding::kError));

    EXPECT_EQ(1000U, findings.all().size());
}
}
