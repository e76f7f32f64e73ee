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

TEST(FaultListTest, ManyFaultsAreCounted)
{
    FaultList faults;
    std::string expected;
    for (std::size_t i = 0; i < FaultList::kMostShown; ++i)
        expected += "3 fault\n";

    for (std::size_t i = 0; i < FaultList::kMostShown; ++i)
        faults.add("fault");
    EXPECT_EQ(expected, faultOf([&faults] { faults.throwIfAny(); }));

    for (int i = 0; i < 7; ++i)
        faults.add("fault");
    EXPECT_EQ(expected + "3 and 7 more faults\n", faultOf([&faults] { faults.throwIfAny(); }));
}
}
