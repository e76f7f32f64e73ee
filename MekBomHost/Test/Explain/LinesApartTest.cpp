#include "LinesApart.h"

#include "Support/ExplainSupport.h"

#include <gtest/gtest.h>

namespace mekbom
{
TEST(LinesApartTest, DataThatReadDifferentlyAreNamed)
{
    const ExplainedParts parts(partsByMaterial("\"equalLines\": \"keep\", "), kFiveParts);
    const LinesApart apart(parts.explained());

    EXPECT_EQ("differs in %Name: \"PL12\", here \"PL10\", %Quantity: \"3\", here \"4\", %Weight: \"3.58\", here "
              "\"0.88\" and %Formula:%Weight*%Quantity: \"10.74\", here \"3.52\"",
              apart.text(parts.line(4), parts.line(5)));
    EXPECT_EQ("reads the same", apart.text(parts.line(2), parts.line(3)));
}

TEST(LinesApartTest, LinesOfTwoGroupsAreKeptApartByThem)
{
    const ExplainedParts parts(partsByMaterial("\"equalLines\": \"keep\", "), kFiveParts);

    EXPECT_EQ("is in another group: %Material: \"S235\", here \"S355\"",
              LinesApart(parts.explained()).text(parts.line(8), parts.line(5)));
}

TEST(LinesApartTest, DataThatHaveNoColumnKeepLinesApartToo)
{
    const char* const kHidden = R"({ "columns": [ { "token": "%Handle", "hidden": true } ],
      "sections": [ { "type": "kReportHeader", "children": [
        { "type": "kDetails", "tuples": [ { "token": "%Handle" }, { "token": "%Name" } ] } ] } ] })";
    const ExplainedParts parts(kHidden, "%Handle,%Name\n2A0,HEA200\n2A1,HEA200\n");

    EXPECT_EQ("differs in %Handle: \"2A1\", here \"2A0\"",
              LinesApart(parts.explained()).text(parts.line(1), parts.line(2)));
}
}
