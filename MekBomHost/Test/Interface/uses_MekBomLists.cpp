// A host in C++ that knows the header and the shared library and nothing else of the program.
#include "MekBomLists.h"

#include <gtest/gtest.h>

#include <cmath>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

namespace mekbom
{
namespace
{
const char* const kList = R"({ "title": "Beams", "equalLines": "count", "sections": [
    { "type": "kReportHeader", "children": [
      { "type": "kDetails",
        "tuples": [ { "token": "%SortAscBy:%Name" }, { "token": "%Name" }, { "token": "%Length" } ] } ] },
    { "type": "kReportFooter", "label": "Total", "tuples": [ { "token": "%SumBy:%Length" } ] } ] })";

const std::vector<ListColumn> kRows = { { "Handle", {}, { "2A0", "2A1" } },
                                        { "Name", {}, { "HEA200", "IPE360" } },
                                        { "Length [mm]", { 6000, NAN }, { "", "5'" } } };

ListSession sessionOfRows()
{
    ListSession session;
    session.setTemplate("list.json", kList);
    session.addRows("model", kRows, 2);
    return session;
}
}

TEST(ListSessionTest, AListIsMadeOfRows)
{
    ListSession session = sessionOfRows();
    session.evaluate();

    EXPECT_EQ("Name,Length [mm]\r\nHEA200,6000\r\nIPE360,1524\r\n", session.written("csv"));
    EXPECT_EQ(3u, session.numLines());
    EXPECT_NE(std::string::npos, session.lines(2, 1).find("7524"));
    EXPECT_EQ("{\"handles\": [\"2A0\", \"2A1\"]}\n", session.handles(2));
    EXPECT_NE(std::string::npos, session.columns().find("Length [mm]"));
    EXPECT_EQ("[]\n", session.findings());
}

TEST(ListSessionTest, PartsTemplatesAndOptionsAreTexts)
{
    ListSession session;
    session.offerTemplate("list.json", kList);
    session.addParts("parts.csv", "Name,Length\nHEA200,6000\n");
    session.setOptions(R"({ "unit": { "length": "m/2" } })");
    session.evaluate();
    EXPECT_NE(std::string::npos, session.written("text").find("6\n")) << session.written("text");

    ListSession moved = std::move(session);
    moved.removeParts();
    moved.addParts("parts.csv", "Name,Length\nHEA200,7000\n");
    moved.evaluate();
    EXPECT_NE(std::string::npos, moved.lines(0, 1).find("\"7\"")) << moved.lines(0, 1);
}

TEST(ListSessionTest, WhatIsWrongIsThrownWithItsFindings)
{
    ListSession session = sessionOfRows();
    session.setTemplate("list.json", "{");
    try
    {
        session.evaluate();
        FAIL() << "nothing was thrown";
    }
    catch (const ListError& error)
    {
        EXPECT_EQ(MEKBOM_INVALID_INPUT, error.status());
        EXPECT_NE(std::string::npos, error.findings().find("\"source\": \"list.json\"")) << error.findings();
    }
    EXPECT_EQ("", session.written("csv"));
    EXPECT_FALSE(session.check());
    EXPECT_THROW(session.setOptions("{ \"sets\": 0 }"), ListError);
    EXPECT_THROW(session.addRows("model", { { "Name", {}, { "one" } } }, 2), std::invalid_argument);
    session.setTemplate("list.json", kList);
    EXPECT_TRUE(session.check()) << session.findings();
    session.evaluate();
    EXPECT_THROW(session.written("pdf"), ListError);
}

TEST(ListSessionTest, ProgressStopsAndThrows)
{
    ListSession session = sessionOfRows();
    int steps[2] = {};
    session.evaluate(
        [&steps](int step, std::size_t)
        {
            ++steps[step];
            return true;
        });
    EXPECT_LT(0, steps[0]);
    EXPECT_LT(0, steps[1]);
    EXPECT_THROW(session.evaluate([](int, std::size_t) { return false; }), ListError);
    EXPECT_THROW(session.evaluate([](int, std::size_t) -> bool { throw std::out_of_range("host"); }),
                 std::out_of_range);
    session.evaluate();
    EXPECT_EQ(3u, session.numLines());
}

TEST(ListSessionTest, WhatThereIsToChooseFromIsDescribed)
{
    EXPECT_NE(std::string::npos, ListSession().described("tokens").find("%Weight"));
    EXPECT_EQ("", ListSession().described("colours"));
}
}
