#include "SessionOptions.h"

#include "Support/HostTestSupport.h"

#include <gtest/gtest.h>

#include <string>

namespace mekbom
{
namespace
{
ReportRequest requestOf(const std::string& options)
{
    ReportRequest request;
    SessionOptions::read(options).fillIn(request);
    return request;
}

std::string faultIn(const std::string& options)
{
    return faultOf([&options] { SessionOptions::read(options); });
}
}

TEST(SessionOptionsTest, NoOptionsAreThoseOfAPlainReport)
{
    const ReportRequest request = requestOf("{}");

    EXPECT_EQ("metric", request.units);
    EXPECT_EQ(1, request.pieces.numSets);
    EXPECT_FALSE(request.isSummary);
    EXPECT_EQ(0u, SessionOptions::read("{}").output().given);
}

TEST(SessionOptionsTest, EachOptionIsThatOfTheCommandLine)
{
    const ReportRequest request = requestOf(R"({
        "units": "imperial", "unit": { "length": "ft-in/16" }, "setting": { "C40_SuppressZeroFeet": 0 },
        "where": "%Length > 6 m", "row-totals": [ "%Weight" ], "allow": [ "MB105" ], "input-unit": { "%Paint": "m2" },
        "map": { "Cost code": "UserAttr1" }, "sheet": "Parts", "flatten": true, "sets": 10, "delimiter": "tab",
        "decimal": ",", "encoding": "windows-1252", "summary": true, "check-totals": true })");

    EXPECT_EQ("imperial", request.units);
    EXPECT_EQ((ReportRequest::Pairs{ { "length", "ft-in/16" } }), request.unitChoices);
    EXPECT_EQ((ReportRequest::Pairs{ { "C40_SuppressZeroFeet", "0" } }), request.settings);
    EXPECT_EQ("%Length > 6 m", request.where);
    EXPECT_EQ((std::vector<std::string>{ "%Weight" }), request.rowTotals);
    EXPECT_EQ((std::vector<std::string>{ "MB105" }), request.allowed);
    EXPECT_EQ((ReportRequest::Pairs{ { "%Paint", "m2" } }), request.inputUnits);
    ASSERT_EQ(1u, request.input.headings.size());
    EXPECT_EQ("%UserAttr1", request.input.headings.front().token);
    EXPECT_EQ("Parts", request.input.sheet);
    EXPECT_TRUE(request.pieces.isFlattened);
    EXPECT_EQ(10, request.pieces.numSets);
    EXPECT_EQ('\t', request.input.delimiter);
    EXPECT_EQ(NumberNotation::kComma, request.input.decimalSign);
    EXPECT_EQ(TextEncoding::kWindows1252, request.input.encoding);
    EXPECT_TRUE(request.isSummary);
    EXPECT_TRUE(request.checksTotals);
}

TEST(SessionOptionsTest, OptionsOfOutputsAreNotedAsGiven)
{
    const OutputChoices output = SessionOptions::read(R"({ "values": "plain", "foot": true, "output-delimiter": ";",
        "output-decimal": ",", "output-encoding": "utf-8-bom", "width": 80, "cut": true, "ascii": true,
        "paper": "letter" })")
                                     .output();

    EXPECT_TRUE(output.hasPlainValues);
    EXPECT_TRUE(output.hasFoot);
    EXPECT_EQ(';', output.delimiter);
    EXPECT_EQ(',', output.decimalSign);
    EXPECT_TRUE(output.encoding.hasMark);
    EXPECT_EQ(80, output.width);
    EXPECT_TRUE(output.cutsTexts);
    EXPECT_TRUE(output.isAscii);
    EXPECT_EQ(kLetterPaper, output.paper);
    for (unsigned bit = 1; bit <= OutputChoices::kPaper; bit <<= 1)
        EXPECT_TRUE(output.has(static_cast<OutputChoices::eChoice>(bit))) << bit;
}

TEST(SessionOptionsTest, WhatCannotBeUnderstoodIsToldWithItsPlace)
{
    EXPECT_NE(std::string::npos, faultIn("{ \"unit").find("3 options:1:")) << faultIn("{ \"unit");
    EXPECT_NE(std::string::npos, faultIn("[]").find("options:1:1: ")) << faultIn("[]");
    const std::string unknown = faultIn("{ \"untis\": \"metric\" }");
    EXPECT_NE(std::string::npos, unknown.find("options:1:3: ")) << unknown;
    EXPECT_NE(std::string::npos, unknown.find("\"units\"")) << unknown;
    EXPECT_NE(std::string::npos, faultIn("{ \"sets\": 0 }").find("found the number 0")) << faultIn("{ \"sets\": 0 }");
    EXPECT_NE(std::string::npos, faultIn("{ \"paper\": \"a5\" }").find("/paper")) << faultIn("{ \"paper\": \"a5\" }");
    EXPECT_NE(std::string::npos, faultIn("{ \"unit\": { \"length\": true } }").find("/unit/length"));
    EXPECT_NE(std::string::npos, faultIn("{ \"allow\": \"MB105\" }").find("an array"));
    EXPECT_EQ(0u, faultIn("{ \"map\": { \"Cost\": \"%Formula:%A\" } }").find("2 --map Cost="));
}

TEST(SessionOptionsTest, AllMistakesAreToldAtOnce)
{
    const std::string fault = faultIn("{ \"sets\": 0, \"width\": 0, \"where\": 5 }");
    EXPECT_EQ(3, std::count(fault.begin(), fault.end(), '\n')) << fault;
}
}
