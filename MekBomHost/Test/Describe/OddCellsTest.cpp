#include "OddCells.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace mekbom
{
namespace
{
Finding saying(const char* pText)
{
    Finding finding;
    finding.sentence = pText;
    return finding;
}
}

TEST(OddCellsTest, AnOddityIsToldByItsFirstCellAndTheOthersAreCounted)
{
    OddityLimit limit;
    OddCells odd(limit);
    for (const char* const pText : { "one", "two", "three" })
        odd.note("blanks", [pText] { return saying(pText); });
    for (const char* const pText : { "four", "five" })
        odd.note("zeros", [pText] { return saying(pText); });
    odd.note("units", [] { return saying("six"); });

    EXPECT_EQ((std::vector<std::string>{ "one (and 2 more cells)", "four (and 1 more cell)", "six" }),
              odd.texts("cell"));
}

TEST(OddCellsTest, OfAFileThatIsOddThroughoutTheFirstFewAreTold)
{
    OddityLimit limit;
    OddCells first(limit);
    OddCells second(limit);
    for (std::size_t i = 0; i < OddityLimit::kMostTold - 1; ++i)
        first.note(std::to_string(i), [] { return saying("one"); });
    second.note("last", [] { return saying("two"); });
    EXPECT_FALSE(limit.isExceeded());
    second.note("last", [] { return saying("three"); });
    second.note("more", [] { return saying("four"); });

    EXPECT_TRUE(limit.isExceeded());
    EXPECT_EQ(OddityLimit::kMostTold - 1, first.texts("cell").size());
    EXPECT_EQ(std::vector<std::string>{ "two (and 1 more cell)" }, second.texts("cell"));
}
}
