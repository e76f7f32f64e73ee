#include "Fault.h"

#include "FindingCodes.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace mekbom
{
namespace
{
const std::vector<Finding> kFindings = {
    Finding::saying(FindingCodes::kColumnMissing, "no column"),
    Finding::of(FindingCodes::kNoSection, "no section"),
    Finding::of(FindingCodes::kKeyMissing, "no key"),
};
}

TEST(FaultTest, AFaultSaysTheFirstErrorAmongItsFindings)
{
    const Fault fault(kInvalidInput, kFindings, 2);

    EXPECT_EQ("found no section", std::string(fault.what()));
    EXPECT_EQ(kInvalidInput, fault.status());
    EXPECT_EQ(3U, fault.findings().size());
}

TEST(FaultTest, ErrorsThatAreNotAmongItsFindingsAreCounted)
{
    EXPECT_EQ(100U, Fault(kInvalidInput, kFindings, 100).numErrors());
}

TEST(FaultTest, OneFindingIsAFault)
{
    const Fault fault(kWrongUsage, kFindings[1]);

    EXPECT_EQ(kWrongUsage, fault.status());
    EXPECT_EQ(1U, fault.numErrors());
    EXPECT_EQ("found no section", std::string(fault.what()));
    EXPECT_EQ(1U, fault.findings().size());
}
}
