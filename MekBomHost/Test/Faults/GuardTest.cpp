#include "Guard.h"

#include "Fault.h"

#include <gtest/gtest.h>

#include <new>
#include <stdexcept>
#include <string>

namespace mekbom
{
namespace
{
// The status and the messages that remain of what `action` throws.
std::string remainsOf(const std::function<ExitStatus()>& action)
{
    FindingList findings;
    std::string text = std::to_string(runGuarded(findings, action));
    for (const Finding& finding : findings.all())
        text += " " + messageOf(finding);
    return text;
}
}

TEST(GuardTest, AStatusIsHandedOn)
{
    EXPECT_EQ("0", remainsOf([] { return kDone; }));
    EXPECT_EQ("4", remainsOf([] { return kOutputNotWritten; }));
}

TEST(GuardTest, AFaultIsItsFindings)
{
    Finding finding;
    finding.source = "a.csv";
    finding.statement = "is odd";

    EXPECT_EQ("3 a.csv: is odd a.csv: is odd", remainsOf(
                                                   [&finding]() -> ExitStatus {
                                                       throw Fault(kInvalidInput, { finding, finding }, 2);
                                                   }));
}

TEST(GuardTest, AnythingElseIsAnInternalFault)
{
    EXPECT_EQ("70 internal fault: broken", remainsOf([]() -> ExitStatus { throw std::logic_error("broken"); }));
    EXPECT_EQ("70 internal fault: no memory left", remainsOf([]() -> ExitStatus { throw std::bad_alloc(); }));
    EXPECT_EQ("70 internal fault", remainsOf([]() -> ExitStatus { throw 5; }));
}
}
