#include "FindingCodes.h"

#include "Support/HostTestSupport.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <set>
#include <string>

namespace mekbom
{
namespace
{
// How many codes the header defines.
std::size_t numDefined()
{
    const std::string header = readFile(MEK_TEST_DIR "/../Src/Faults/FindingCodes.h");
    const std::string definition = "inline constexpr FindingCode ";
    std::size_t count = 0;
    for (std::size_t pos = header.find(definition); pos != std::string::npos; pos = header.find(definition, pos + 1))
        ++count;
    return count;
}
}

// The last code of a hundred leaves no gap when it is forgotten.
TEST(FindingCodesTest, NoneIsForgottenInTheList)
{
    EXPECT_EQ(numDefined(), FindingCodes::all().size());
}

TEST(FindingCodesTest, NumbersFollowEachOtherWithoutGapsWithinTheirHundred)
{
    const int firstOfWorkbooks = 740; // they have ten numbers of their own
    const int firstOfHeadings = 760;
    const int firstOfNesting = 770;
    const int noteOnMergedRows = 717; // which the foot of a list tells now; its number is not given away
    int last = 700;
    for (const FindingCode& code : FindingCodes::all())
    {
        const std::string name = code.name;
        ASSERT_EQ("MB", name.substr(0, 2));
        ASSERT_EQ(5U, name.size());
        const int number = std::stoi(name.substr(2));
        const bool beginsHundred = number % 100 == 1 && number / 100 == last / 100 + 1;
        const bool comesBehindRetired =
            (number == 705 && last == 703) || // MB704 is gone, as what it said is no error now
            (last + 1 == noteOnMergedRows && number == last + 2) ||
            (number == 815 && last == 812); // MB813 and MB814 are gone, and not given again
        const bool beginsFormat = number == firstOfWorkbooks || number == firstOfHeadings || number == firstOfNesting;
        EXPECT_TRUE(number == last + 1 || beginsHundred || beginsFormat || comesBehindRetired)
            << name << " after " << last;
        last = number;
    }
    EXPECT_EQ(9, last / 100);
}

TEST(FindingCodesTest, EachSaysSomethingElseInASentence)
{
    std::set<std::string> sentences;
    for (const FindingCode& code : FindingCodes::all())
    {
        const std::string sentence = code.sentence;
        EXPECT_EQ('.', sentence.back()) << code.name;
        EXPECT_TRUE(sentence.front() >= 'A' && sentence.front() <= 'Z') << code.name;
        EXPECT_TRUE(sentences.insert(sentence).second) << code.name;
    }
}

TEST(FindingCodesTest, CodesAreFoundByTheirNames)
{
    for (const FindingCode& code : FindingCodes::all())
        EXPECT_EQ(&code, FindingCodes::find(code.name));
    EXPECT_EQ(nullptr, FindingCodes::find("MB700"));
    EXPECT_EQ(nullptr, FindingCodes::find("MB813"));
    EXPECT_EQ("MB101", std::string(FindingCodes::find("MB101")->name));
    EXPECT_EQ(nullptr, FindingCodes::find(""));
}
}
