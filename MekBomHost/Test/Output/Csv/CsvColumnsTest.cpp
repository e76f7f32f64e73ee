#include "CsvColumns.h"

#include "CsvWriter.h"

#include "Support/ReportTestSupport.h"

#include <gtest/gtest.h>

#include <string>

namespace mekbom
{
namespace
{
// "Material, Name | 2" : the headings, and the level that records end at, with "footer" behind it where that is one.
std::string fieldsOf(const std::string& templateText)
{
    const std::unique_ptr<Report> pReport =
        reportOf(templateText, "Name,PNum,Material,Weight,Quantity\nHEA200,B1,S355,10.5,2\n");
    pReport->evaluate();
    const CsvColumns fields = CsvColumns::of(pReport->evaluated(), false);
    std::string text;
    for (const CsvColumn& column : fields.columns)
        text += (text.empty() ? "" : ", ") + column.heading;
    return text + " | " + std::to_string(fields.last.level) + (fields.last.isFooter ? " footer" : "");
}

// Groups by material; `header` and `details` are tuples, `others` members of the details.
std::string groupsOf(const std::string& header, const std::string& details, const std::string& others = std::string(),
                     const std::string& footer = R"({ "token": "%SumBy:%Weight", "value": 0.0 })")
{
    return R"({ "sections": [ { "type": "kReportHeader", "children": [
        { "type": "kGroupHeader", "tuples": [ { "token": "%GroupBy:%Material" }, { "token": "%SortAscBy:%Material" })" +
           header + R"( ], "children": [ { "type": "kDetails", )" + others + R"("tuples": [ )" + details + R"( ] } ] },
        { "type": "kGroupFooter", "label": "Total", "tuples": [ )" +
           footer + R"( ] } ] } ], "equalLines": "keep" })";
}

const char* const kMaterial = R"(, { "token": "%Material" })";
}

TEST(CsvColumnsTest, HeadersOfGroupsAreFieldsOfTheirLines)
{
    EXPECT_EQ("Material, Name, Weight [kg] | 2",
              fieldsOf(groupsOf(kMaterial, R"({ "token": "%Name" }, { "token": "%Weight" })")));
}

TEST(CsvColumnsTest, ColumnsOfTotalsAloneAreNone)
{
    EXPECT_EQ("Material, Name | 2", fieldsOf(groupsOf(kMaterial, R"({ "token": "%Name" })")));
}

TEST(CsvColumnsTest, WhatALineRepeatsIsOneField)
{
    EXPECT_EQ("Material, Name | 2", fieldsOf(groupsOf(kMaterial, R"({ "token": "%Material" }, { "token": "%Name" })")));
}

TEST(CsvColumnsTest, TwoDataInOneColumnAreTwoFields)
{
    EXPECT_EQ("Material (group 1), Material | 2",
              fieldsOf(groupsOf(kMaterial, R"({ "token": "%Name", "column": "%Material" })")));
}

// A line of a group of two pieces would add two pieces to whoever sums the column.
TEST(CsvColumnsTest, NumbersOfGroupsAreCalledSo)
{
    EXPECT_EQ("Material, Quantity (group 1), Name | 2",
              fieldsOf(groupsOf(R"(, { "token": "%Material" }, { "token": "%Quantity" })", R"({ "token": "%Name" })")));
}

TEST(CsvColumnsTest, TotalsAreFieldsWhereGroupsAreTheRecords)
{
    EXPECT_EQ("Material, Weight [kg] | 1 footer",
              fieldsOf(groupsOf(kMaterial, R"({ "token": "%Name" })", R"("print": false, )")));
}

TEST(CsvColumnsTest, AHeaderAndATotalInOneColumnAreTwoFields)
{
    EXPECT_EQ("Material, Weight [kg] (group 1), Weight [kg] | 1 footer",
              fieldsOf(groupsOf(R"(, { "token": "%Material" }, { "token": "%Weight" })", R"({ "token": "%Name" })",
                                R"("print": false, )")));
}
}
