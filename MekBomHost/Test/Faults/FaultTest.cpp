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
    Finding::stating(FindingCodes::kSectionNotEvaluated, "is not evaluated"),
    Finding::of(FindingCodes::kNoSection, "no section"),
    Finding::of(FindingCodes::kKeyMissing, "no key"),
};
}

TEST(FaultTest, AFaultSaysTheErrorsAmongItsFindings)
{
    const Fault fault(kInvalidInput, kFindings, 2);

    EXPECT_EQ((std::vector<std::string>{ "found no section", "found no key" }), fault.messages(20));
    EXPECT_EQ("found no section", std::string(fault.what()));
    EXPECT_EQ(3U, fault.findings().size());
}

TEST(FaultTest, ErrorsThatAreNotShownAreCounted)
{
    EXPECT_EQ((std::vector<std::string>{ "found no section", "and 1 more faults" }),
              Fault(kInvalidInput, kFindings, 2).messages(1));
    EXPECT_EQ((std::vector<std::string>{ "found no section", "found no key", "and 98 more faults" }),
              Fault(kInvalidInput, kFindings, 100).messages(20));
}

TEST(FaultTest, OneFindingIsAFault)
{
    const Fault fault(kWrongUsage, kFindings[1]);

    EXPECT_EQ(kWrongUsage, fault.status());
    EXPECT_EQ(1U, fault.numErrors());
    EXPECT_EQ((std::vector<std::string>{ "found no section" }), fault.messages(20));
}
}
