#include "DescriptionText.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <string>
#include <vector>

namespace mekbom
{
namespace
{
PartsDescription twoColumns()
{
    PartsDescription description;
    description.name = "a.csv";
    description.numRows = 20;
    description.hasPieces = true;
    description.columns = {
        { "Length [ft]", "%Length", "length", "ft", 18, "2", "7.5", "10", "17.5", "50" },
        { "Name", "%Name", "text", "", 20, "more than 100000", "HEA200", "IPE360", "", "" },
    };
    return description;
}

TemplateCover coverOf(const std::string& name, std::size_t numTokens, const std::vector<std::string>& missing)
{
    TemplateCover cover;
    cover.name = name;
    cover.numTokens = numTokens;
    cover.missing = missing;
    return cover;
}

bool holds(const std::string& text, const std::string& part)
{
    return text.find(part) != std::string::npos;
}
}

TEST(DescriptionTextTest, EachColumnHasALineAndNumbersStandToTheRight)
{
    EXPECT_EQ("a.csv: 20 rows, 2 columns\n"
              "\n"
              "Heading      Token    Kind    Unit    Filled          Distinct  Smallest  Largest  Sum of rows  Sum of "
              "pieces\n"
              "Length [ft]  %Length  length  ft    18 of 20                 2       7.5       10         17.5          "
              "   50\n"
              "Name         %Name    text          20 of 20  more than 100000    HEA200   IPE360\n"
              "\n"
              "Sum of rows adds up the cells as they stand, Sum of pieces each as often as its row has pieces.\n",
              DescriptionText::of(twoColumns(), {}));
}

TEST(DescriptionTextTest, WithoutPiecesThereIsOneSum)
{
    PartsDescription description = twoColumns();
    description.hasPieces = false;

    EXPECT_FALSE(holds(DescriptionText::of(description, {}), "Sum of pieces"));
    EXPECT_FALSE(holds(DescriptionText::of(description, {}), "50"));
}

TEST(DescriptionTextTest, RowsAreCountedInWords)
{
    PartsDescription description = twoColumns();
    description.numRows = 1;
    description.numEmptyRows = 2;

    EXPECT_TRUE(holds(DescriptionText::of(description, {}), "a.csv: 1 row, 2 columns; 2 empty rows passed over\n"));
}

TEST(DescriptionTextTest, WhatIsOddStandsBelow)
{
    PartsDescription description = twoColumns();
    description.oddities = { "a.csv:1: odd", "a.csv:2: odd as well" };

    EXPECT_TRUE(holds(DescriptionText::of(description, {}), "\n\nOdd\n  a.csv:1: odd\n  a.csv:2: odd as well\n"));
}

TEST(DescriptionTextTest, ListsSayWhatTheyLack)
{
    PartsDescription description = twoColumns();
    description.doubtfulTokens = { "%PNum" };
    TemplateCover bolts = coverOf("bolt-list", 2, { "%BoltName" });
    bolts.canRowsPass = false;
    bolts.filter = "%BoltName";

    const std::string text =
        DescriptionText::of(description, { coverOf("parts-list", 3, { "%PNum" }), coverOf("all", 1, {}), bolts });

    EXPECT_TRUE(holds(text, "\n\n"
                            "List        Suits  Finds   Lacks\n"
                            "parts-list  yes    2 of 3  %PNum (in doubt)\n"
                            "all         yes    1 of 1\n"
                            "bolt-list   no     1 of 2  %BoltName; rows where %BoltName\n"
                            "\n"
                            "Without --template mekbom report takes parts-list.\n"))
        << text;
}

TEST(DescriptionTextTest, WhereNoListSuitsThatIsSaid)
{
    EXPECT_TRUE(holds(DescriptionText::of(twoColumns(), { coverOf("parts-list", 3, { "%A", "%B" }) }),
                      "Without --template mekbom report prints every column as it is.\n"));
}

TEST(DescriptionTextTest, HeadingsAreHarmlessToTheTerminal)
{
    PartsDescription description = twoColumns();
    description.columns[0].heading = "Length\x1B[31m";
    description.columns[0].token = "%" + std::string(100, 'x');

    const std::string text = DescriptionText::of(description, {});

    EXPECT_FALSE(holds(text, "\x1B"));
    EXPECT_FALSE(holds(text, std::string(61, 'x')));
}
}
