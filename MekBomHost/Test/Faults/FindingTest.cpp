#include "Finding.h"

#include <gtest/gtest.h>

namespace mekbom
{
namespace
{
Finding cellFinding()
{
    Finding finding;
    finding.source = "parts.csv";
    finding.begin.line = 3;
    finding.field = "Weight";
    finding.found = "\"n/a\"";
    finding.expected = "a number";
    return finding;
}
}

TEST(FindingTest, NamesPlaceFoundAndExpected)
{
    EXPECT_EQ("parts.csv:3: column \"Weight\": found \"n/a\", expected a number", messageOf(cellFinding()));
}

TEST(FindingTest, NamesTheColumnOfTheTextAndThePathInATemplate)
{
    Finding finding;
    finding.source = "list.json";
    finding.begin = { 12, 34 };
    finding.path = "/columns/0/width";
    finding.found = "the number 500";
    finding.expected = "one from 1 to 200";

    EXPECT_EQ("list.json:12:34: /columns/0/width: found the number 500, expected one from 1 to 200",
              messageOf(finding));
}

TEST(FindingTest, AStatementStandsForItself)
{
    Finding finding;
    finding.source = "parts.csv";
    finding.statement = "cannot be read: No such file or directory";

    EXPECT_EQ("parts.csv: cannot be read: No such file or directory", messageOf(finding));
}

TEST(FindingTest, TheRemedyComesLast)
{
    Finding finding = cellFinding();
    finding.remedy = "leave the cell empty";

    EXPECT_EQ("parts.csv:3: column \"Weight\": found \"n/a\", expected a number: leave the cell empty",
              messageOf(finding));
}

TEST(FindingTest, WithoutAPlaceOnlyTheContentIsSaid)
{
    Finding finding;
    finding.found = "nothing";

    EXPECT_EQ("found nothing", messageOf(finding));
}
}
