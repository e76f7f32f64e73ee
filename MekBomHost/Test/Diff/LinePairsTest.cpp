#include "LinePairs.h"

#include "Support/DiffSupport.h"

#include <gtest/gtest.h>

#include <string>

namespace mekbom
{
namespace
{
const char* const kListByMark = R"({ "equalLines": "count", "sections": [
  { "type": "kReportHeader", "children": [
    { "type": "kDetails", "tuples": [ { "token": "%SortAscBy:%PNum" }, { "token": "%PNum" }, { "token": "%Name" },
      { "token": "%Quantity" } ] } ] },
  { "type": "kReportFooter", "tuples": [ { "token": "%SumBy:%Quantity", "value": 0 } ] } ] })";

// "P1>P7 P2>- ->P9": the marks of each pair.
std::string pairsOf(const std::string& oldRows, const std::string& newRows)
{
    const ListOfParts oldParts(kListByMark, oldRows);
    const ListOfParts newParts(kListByMark, newRows);
    std::string text;
    for (const LinePair& pair : LinePairs::of(oldParts.list, newParts.list))
        text += (text.empty() ? "" : " ") + (pair.pOld == nullptr ? "-" : pair.pOld->texts[0]) + ">" +
                (pair.pNew == nullptr ? "-" : pair.pNew->texts[0]);
    return text;
}
}

TEST(LinePairsTest, ObjectsTellAPartThatWasRenamed)
{
    EXPECT_EQ("P2>P2 P1>P7", pairsOf("Handle,PNum,Name\nh1,P1,A\nh2,P2,B\n", "Handle,PNum,Name\nh1,P7,A\nh2,P2,B\n"));
}

TEST(LinePairsTest, AMarkThatWasGivenToAnotherPartIsNoReasonToPairThem)
{
    EXPECT_EQ("->P1 P1>P7", pairsOf("Handle,PNum,Name\nh1,P1,A\n", "Handle,PNum,Name\nh9,P1,C\nh1,P7,A\n"));
}

TEST(LinePairsTest, WithoutHandlesMarksTell)
{
    EXPECT_EQ("P1>P1 ->P3 P2>-", pairsOf("PNum,Name\nP1,A\nP2,B\n", "PNum,Name\nP1,C\nP3,B\n"));
}

TEST(LinePairsTest, PartsThatWereModelledAnewAreTheSameByTheirMarks)
{
    EXPECT_EQ("P1>P1", pairsOf("Handle,PNum,Name\nh1,P1,A\n", "Handle,PNum,Name\nh5,P1,A\n"));
}

TEST(LinePairsTest, HandlesOfOneListAloneTellNothing)
{
    EXPECT_EQ("P1>P1 P2>P2", pairsOf("PNum,Name\nP1,A\nP2,B\n", "Handle,PNum,Name\n2,P1,A\n1,P2,B\n"));
}

TEST(LinePairsTest, OfALineThatCameApartTheGreaterPartGoesOn)
{
    EXPECT_EQ("->P8 P1>P9", pairsOf("Handle,PNum,Name\nh1,P1,A\nh2,P1,A\nh3,P1,A\n",
                                    "Handle,PNum,Name\nh1,P8,A\nh2,P9,A\nh3,P9,A\n"));
}

TEST(LinePairsTest, LinesOfOneKeyArePairedInTheirOrder)
{
    EXPECT_EQ("P1>P1 P1>P1 P1>-", pairsOf("PNum,Name\nP1,A\nP1,B\nP1,C\n", "PNum,Name\nP1,D\nP1,E\n"));
}

TEST(LinePairsTest, EmptyListsHaveNoPairs)
{
    EXPECT_EQ("", pairsOf("PNum,Name\n", "PNum,Name\n"));
    EXPECT_EQ("P1>-", pairsOf("PNum,Name\nP1,A\n", "PNum,Name\n"));
}
}
