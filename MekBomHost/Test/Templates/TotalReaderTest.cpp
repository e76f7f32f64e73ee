#include "TotalReader.h"

#include "TemplateReader.h"

#include "Support/HostTestSupport.h"

#include <gtest/gtest.h>

#include <string>

namespace mekbom
{
namespace
{
std::string listWith(const std::string& column, const std::string& order = "")
{
    return R"({ "columns": [ )" + column + R"( ], "sections": [ { "type": "kReportHeader", "children": [
      { "type": "kGroupHeader", )" +
           order + R"( "tuples": [ { "token": "%GroupBy:%Material" }, { "token": "%Material" } ],
        "children": [ { "type": "kDetails", "tuples": [ { "token": "%Name" }, { "token": "%Weight" } ] } ] },
      { "type": "kGroupFooter", "tuples": [ { "token": "%SumBy:%Weight" }, { "token": "%SumBy:%Cost" } ] } ] } ] })";
}

std::string faultIn(const std::string& text)
{
    return faultOf([&text] { TemplateReader::read("list.json", text); });
}

std::string faultInTotal(const std::string& total)
{
    return faultIn(listWith(R"({ "token": "%Weight", "total": )" + total + " }"));
}

std::string faultInOrder(const std::string& order)
{
    return faultIn(listWith("", R"("orderGroups": )" + order + ","));
}

bool contains(const std::string& text, const std::string& part)
{
    return text.find(part) != std::string::npos;
}
}

TEST(TotalReaderTest, ATotalIsOneOfFourOrAFormula)
{
    const auto kindIn = [](const std::string& total)
    {
        const std::string text = listWith(R"({ "token": "%Weight", "total": )" + total + " }");
        return TemplateReader::read("list.json", text).columns.front().total.kind;
    };
    EXPECT_EQ(ColumnTotal::kCount, kindIn(R"("count")"));
    EXPECT_EQ(ColumnTotal::kLeast, kindIn(R"("min")"));
    EXPECT_EQ(ColumnTotal::kGreatest, kindIn(R"("max")"));
    EXPECT_EQ(ColumnTotal::kMean, kindIn(R"("mean")"));
    EXPECT_EQ(ColumnTotal::kCalculated, kindIn(R"({ "formula": "%W*2", "of": { "%W": "%SumBy:%Weight" } })"));
    EXPECT_TRUE(contains(faultInTotal(R"("average")"), R"("count", "min", "max" or "mean")"))
        << faultInTotal(R"("average")");
    EXPECT_TRUE(contains(faultInTotal("5"), "/columns/0/total: found the number 5")) << faultInTotal("5");
}

TEST(TotalReaderTest, NamesAndSumsOfAFormulaBelongTogether)
{
    const auto faultOfFormula = [](const std::string& formula, const std::string& of)
    { return faultInTotal(R"({ "formula": ")" + formula + R"(", "of": )" + of + " }"); };
    EXPECT_EQ("", faultOfFormula("%W/%C", R"({ "%W": "%SumBy:%Weight", "%C": "%SumBy:%Cost" })"));
    EXPECT_TRUE(contains(faultOfFormula("%W/%C", R"({ "%W": "%SumBy:%Weight" })"), "\"%C\" in the formula"));
    EXPECT_TRUE(
        contains(faultOfFormula("%W*2", R"({ "%W": "%SumBy:%Weight", "%C": "%SumBy:%Cost" })"), "\"%C\" in \"of\""));
    EXPECT_TRUE(contains(faultOfFormula("%W*2", R"({ "%W": "%Weight" })"), "a total such as \"%SumBy:%Weight\""));
    EXPECT_TRUE(contains(faultOfFormula("%W*2", R"({ "%W": "%SumBy:%Length" })"),
                         "/columns/0/total/of/%W: found \"%SumBy:%Length\", expected \"%SumBy:%Weight\" or "
                         "\"%SumBy:%Cost\", which the footer has"));
    EXPECT_TRUE(contains(faultOfFormula("%W*(2", R"({ "%W": "%SumBy:%Weight" })"), "a formula over totals"));
    EXPECT_TRUE(contains(faultOfFormula("2*3", "{}"), "a formula over totals"));
    EXPECT_TRUE(contains(faultOfFormula("", "{}"), "/columns/0/total/formula"));
    EXPECT_TRUE(contains(faultInTotal(R"({ "formula": "%W*2" })"), "of"));
}

TEST(TotalReaderTest, GroupsAreOrderedByATotalOfTheirFooter)
{
    EXPECT_EQ("", faultInOrder(R"({ "by": "%SumBy:%Cost", "descending": true })"));
    EXPECT_TRUE(contains(faultInOrder(R"({ "by": "%SumBy:%Length" })"),
                         "/orderGroups: found \"%SumBy:%Length\", expected \"%SumBy:%Weight\" or \"%SumBy:%Cost\""));
    EXPECT_TRUE(contains(faultInOrder(R"({ "by": "%Weight" })"), "found \"%Weight\""));
    EXPECT_TRUE(contains(faultInOrder("{}"), "by"));
    EXPECT_TRUE(contains(faultInOrder(R"({ "by": "%SumBy:%Cost", "desc": true })"), "\"desc\""));
    EXPECT_TRUE(contains(faultIn(R"({ "sections": [ { "type": "kDetails", "orderGroups": { "by": "%SumBy:%Weight" },
                                      "tuples": [ { "token": "%Name" } ] } ] })"),
                         "expected a section that groups"));
}
}
