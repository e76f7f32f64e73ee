#include "HandleCheck.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace mekbom
{
namespace
{
std::string foundIn(const std::vector<std::string>& handles)
{
    HandleCheck check;
    for (const std::string& handle : handles)
        check.add(handle);
    std::string text;
    for (const Finding& finding : check.findings())
        text += finding.code + " " + messageOf(finding) + "\n";
    return text;
}
}

TEST(HandleCheckTest, DifferentHandlesAreFine)
{
    EXPECT_EQ("", foundIn({}));
    EXPECT_EQ("", foundIn({ "2A0", "2A1", "2a0", "1LDUm30000534qCZarEJSo", "1LDUm300003p4qCZoDJOm3" }));
}

TEST(HandleCheckTest, TheFirstFewThatComeAgainAreNamedAndTheOthersCounted)
{
    EXPECT_EQ("MB606 handle \"2A0\" stands in rows 1 and 3\n", foundIn({ "2A0", "2A1", "2A0" }));
    EXPECT_EQ("MB606 handle \"a\" stands in rows 1 and 2, handle \"a\" stands in rows 1 and 3, handle "
              "\"1LDUm30000534qCZarEJSo\" stands in rows 4 and 5, and 1 more row repeats one\n",
              foundIn({ "a", "a", "a", "1LDUm30000534qCZarEJSo", "1LDUm30000534qCZarEJSo", "a" }));
    EXPECT_EQ("MB606 handle \"a\" stands in rows 1 and 2, handle \"a\" stands in rows 1 and 3, handle \"a\" stands "
              "in rows 1 and 4, and 2 more rows repeat one\n",
              foundIn({ "a", "a", "a", "a", "a", "a" }));
}

TEST(HandleCheckTest, RowsWithoutHandleAreCounted)
{
    EXPECT_EQ("MB606 row 2 has no handle\n", foundIn({ "a", "" }));
    EXPECT_EQ("MB606 row 1 has no handle, nor has 1 other row\n", foundIn({ "", "", "a" }));
    EXPECT_EQ("MB606 row 1 has no handle, nor have 2 other rows\n", foundIn({ "", "a", "", "" }));
}

// Of texts of more than eight bytes the table has hashes alone, which two of them may share.
TEST(HandleCheckTest, EveryPairIsFoundAmongMany)
{
    std::vector<std::string> handles;
    for (int i = 0; i < 100000; ++i)
        handles.push_back(std::to_string(i * 7919LL) + (i % 2 == 0 ? "" : "-of-an-object"));
    EXPECT_EQ("", foundIn(handles));

    const std::string last = handles.back();
    handles.insert(handles.begin() + 500, last);
    EXPECT_EQ("MB606 handle \"" + last + "\" stands in rows 501 and 100001\n", foundIn(handles));
}
}
