#include "VorPowersOfTen.h"

#include <gtest/gtest.h>

#include <charconv>
#include <cstdint>
#include <string>

namespace
{
template <class Number>
Number readPower(int exponent)
{
    const std::string text = "1" + std::string(static_cast<std::size_t>(exponent), '0');
    Number number = 0;
    std::from_chars(text.data(), text.data() + text.size(), number);
    return number;
}

template <class Number>
void expectThePowersAsRead()
{
    ASSERT_EQ(static_cast<std::size_t>(VorPowersOfTen::kLargest<Number>) + 1, VorPowersOfTen::kAll<Number>.size());
    for (int i = 0; i <= VorPowersOfTen::kLargest<Number>; ++i)
        EXPECT_EQ(readPower<Number>(i), VorPowersOfTen::kAll<Number>[static_cast<std::size_t>(i)]) << i;
}
}

TEST(VorPowersOfTenTest, EveryPowerIsTheOneThatIsRead)
{
    expectThePowersAsRead<float>();
    expectThePowersAsRead<double>();
    expectThePowersAsRead<std::uint32_t>();
    expectThePowersAsRead<std::uint64_t>();
}

TEST(VorPowersOfTenTest, TheLargestIsTheLastExactOne)
{
    EXPECT_EQ(10, VorPowersOfTen::kLargest<float>);
    EXPECT_EQ(22, VorPowersOfTen::kLargest<double>);
    EXPECT_EQ(9, VorPowersOfTen::kLargest<std::uint32_t>);
    EXPECT_EQ(19, VorPowersOfTen::kLargest<std::uint64_t>);
    EXPECT_NE(10.0L * 1e22, static_cast<long double>(1e23));
    EXPECT_NE(1e11, static_cast<double>(1e11F));
}
