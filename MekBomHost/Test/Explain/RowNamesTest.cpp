#include "RowNames.h"

#include "Support/ExplainSupport.h"

#include <gtest/gtest.h>

namespace mekbom
{
TEST(RowNamesTest, RowsAreCalledByTheirNumberInTheFileAndTheirHandle)
{
    const ExplainedParts parts(partsByMaterial("\"equalLines\": \"keep\", "), kFiveParts);
    const RowNames names(parts.explained().rowNumbers);

    EXPECT_EQ("row 2 (2A1), row 3 (2A2), row 4 (2A3) and row 5", names.names(parts.line(6).footerRows));
}

TEST(RowNamesTest, NoMoreThanTwentyAreNamed)
{
    std::string text = "%Name,%Material,%Quantity,%Weight [kg]\n";
    for (int i = 0; i < 22; ++i)
        text += "P" + std::to_string(i) + ",S235,1,2\n";
    const ExplainedParts parts(partsByMaterial(), text);

    const std::string names = RowNames(parts.explained().rowNumbers).names(parts.line(24).footerRows);

    EXPECT_EQ(", row 20 and 2 more", names.substr(names.rfind(", ")));
}
}
