#include "FaultList.h"

#include "Support/HostTestSupport.h"

#include <gtest/gtest.h>

namespace mekbom
{
TEST(FaultListTest, NoFaultIsNoReasonToStop)
{
    const FaultList faults;

    EXPECT_TRUE(faults.isEmpty());
    EXPECT_EQ("", faultOf([&faults] { faults.throwIfAny(); }));
}

TEST(FaultListTest, AllFaultsAreThrownAtOnce)
{
    FaultList faults;
    faults.add("one");
    faults.add("two");

    EXPECT_FALSE(faults.isEmpty());
    EXPECT_EQ("3 one\n3 two\n", faultOf([&faults] { faults.throwIfAny(); }));
}
}
