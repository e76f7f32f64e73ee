#include "JsonLines.h"

#include "Support/EvaluatedParts.h"

#include <nlohmann/json.hpp>

#include <gtest/gtest.h>

#include <string>

namespace mekbom
{
namespace
{
using Json = nlohmann::json;

const char* const kByMaterial = R"({ "sections": [
    { "type": "kGroupHeader",
      "tuples": [ { "token": "%GroupBy:%Material" }, { "token": "%SortAscBy:%Material" }, { "token": "%Material" } ],
      "children": [ { "type": "kDetails", "tuples": [ { "token": "%SortAscBy:%Name" }, { "token": "%Name" },
                                                      { "token": "%Weight" } ] } ] },
    { "type": "kGroupFooter", "label": "Total", "tuples": [ { "token": "%SumBy:%Weight" } ] } ] })";

const std::vector<Part> kParts = { { L"P1", L"S235", 2.5 }, { L"P2", L"S355", 4 }, { L"P3", L"S355", 8 } };

class JsonLinesTest : public testing::Test
{
protected:
    EvaluatedParts m_parts{ kByMaterial, kParts, { true, true } };
    JsonLines m_lines{ m_parts.report() };

    Json linesFrom(std::size_t first, std::size_t count) { return Json::parse(m_lines.textOf(first, count)); }
};
}

TEST_F(JsonLinesTest, LinesComeOneAfterTheOther)
{
    EXPECT_EQ(7u, m_lines.count());
    EXPECT_EQ(Json::parse(R"([
        { "line": 0, "level": 0, "role": "header", "values": [ "S235", null, null ], "shown": [ "S235", null, null ] },
        { "line": 1, "level": 1, "role": "line", "values": [ null, "P1", 2.5 ], "shown": [ null, "P1", "2.5" ],
          "handles": [ null ] },
        { "line": 2, "level": 0, "role": "footer", "label": "Total", "values": [ null, null, 2.5 ],
          "shown": [ null, null, "2.5" ] } ])"),
              linesFrom(0, 3));
}

TEST_F(JsonLinesTest, AnyRangeIsThatOfTheWholeList)
{
    const Json all = linesFrom(0, 100);
    ASSERT_EQ(7u, all.size());
    for (std::size_t first = 8; first-- > 0;)
        for (std::size_t count = 0; count < 9; ++count)
        {
            Json expected = Json::array();
            for (std::size_t i = first; i < std::min<std::size_t>(7, first + count); ++i)
                expected.push_back(all[i]);
            EXPECT_EQ(expected, linesFrom(first, count)) << first << " " << count;
        }
}

TEST_F(JsonLinesTest, ATotalHasTheRowsThatItCounts)
{
    EXPECT_EQ("{\"handles\": [null, null]}\n", m_lines.handlesOf(6));
    EXPECT_EQ("{\"handles\": [null]}\n", m_lines.handlesOf(1));
    EXPECT_EQ("{\"handles\": []}\n", m_lines.handlesOf(7));
    EXPECT_EQ("{\"handles\": [null, null]}\n", m_lines.handlesOf(6)) << "asked for once more";
}

TEST(JsonLinesOfNothingTest, AReportWithoutLinesHasNone)
{
    const EvaluatedParts parts(kByMaterial, {}, { true, true });
    JsonLines lines(parts.report());

    EXPECT_EQ(0u, lines.count());
    EXPECT_EQ("[]\n", lines.textOf(0, 10));
    EXPECT_EQ("{\"handles\": []}\n", lines.handlesOf(0));
}
}
