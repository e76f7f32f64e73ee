#include "QuantityWords.h"

#include "Fault.h"

#include <gtest/gtest.h>

#include <string>

namespace mekbom
{
namespace
{
std::string refusalOf(const std::string& found, const std::string& expected, const VorString& hint)
{
    try
    {
        QuantityWords::refuse(FindingCodes::kNoQuantity, found, expected, hint);
    }
    catch (const Fault& fault)
    {
        EXPECT_EQ(kWrongUsage, fault.status());
        return fault.what();
    }
}
}

TEST(QuantityWordsTest, TheHintFollowsWhatWasExpected)
{
    EXPECT_EQ("found \"1,5\", expected a quantity in mm: the decimal sign is a point",
              refusalOf("1,5", "a quantity in mm", L"the decimal sign is a point"));
}

TEST(QuantityWordsTest, WithoutAHintNothingFollows)
{
    EXPECT_EQ("found \"x\", expected a unit", refusalOf("x", "a unit", VorString()));
}
}
