#include "Finding.h"

#include "FindingCodes.h"
#include "MistakeCodes.h"

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
    EXPECT_EQ("found nothing", messageOf(Finding::of(FindingCodes::kNoHeaderRow, "nothing")));
}

TEST(FindingTest, ASentenceNeedsNoPlaceInFront)
{
    Finding finding = Finding::saying(FindingCodes::kColumnMissing, "parts.csv has no column for %Weight");
    finding.source = "parts.csv";
    finding.begin = { 1, 1 };

    EXPECT_EQ("parts.csv has no column for %Weight", messageOf(finding));
    finding.remedy = "did you mean its column \"Wieght\"?";
    EXPECT_EQ("parts.csv has no column for %Weight: did you mean its column \"Wieght\"?", messageOf(finding));
}

TEST(FindingTest, AFieldIsNamedInsteadOfTheColumnOfTheText)
{
    Finding finding = cellFinding();
    finding.begin.column = 17;
    finding.field = "A\nB";

    EXPECT_EQ("parts.csv:3: column \"A?B\": found \"n/a\", expected a number", messageOf(finding));
}

TEST(FindingTest, CodeAndSeverityAreThoseOfTheCode)
{
    const Finding finding = Finding::saying(FindingCodes::kColumnMissing, "no column");

    EXPECT_EQ("MB716", finding.code);
    EXPECT_EQ(Finding::kNote, finding.severity);
    EXPECT_EQ(Finding::kError, Finding::of(FindingCodes::kNoJson, "no valid JSON").severity);
}

TEST(FindingTest, AMistakeInACellOfAWorkbookNamesTheCell)
{
    Finding finding = Finding::of(MistakeCodes::kKindsMixed, "\"M16\"", "a number");
    finding.source = "parts.xlsx";
    finding.path = "Parts!C7";
    finding.field = "Price";

    EXPECT_EQ("parts.xlsx: Parts!C7: error MB601: column \"Price\": found \"M16\", expected a number",
              messageOf(finding));
}

TEST(FindingTest, AMistakeIsPrintedAsCompilersPrintTheirs)
{
    Finding finding = Finding::stating(MistakeCodes::kDetailsEmpty, "the details show nothing");
    finding.path = "/sections/0";
    EXPECT_EQ("error MB105: the details show nothing", messageOf(finding));

    finding.source = "list.json";
    finding.begin = { 8, 17 };
    finding.remedy = "write \"summary\": true";
    EXPECT_EQ("list.json:8:17: error MB105: the details show nothing; help: write \"summary\": true",
              messageOf(finding));

    finding.severity = Finding::kNote;
    EXPECT_EQ(0u, messageOf(finding).find("list.json:8:17: note MB105: "));
}
}
