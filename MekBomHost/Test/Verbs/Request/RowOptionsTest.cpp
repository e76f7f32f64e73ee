#include "RowOptions.h"

#include "Support/HostTestSupport.h"

#include <CLI/CLI.hpp>

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace mekbom
{
namespace
{
ReportRequest requestOf(const std::string& commandLine)
{
    CLI::App app;
    RowOptions rows;
    rows.declareOn(app, "Which rows are listed");
    app.parse(commandLine);
    ReportRequest request;
    rows.fillIn(request);
    return request;
}
}

TEST(RowOptionsTest, WhatIsGivenStandsInTheRequest)
{
    const ReportRequest request = requestOf("--input-unit %Paint=m2 --where %Weight --row-totals %Weight,%Paint");

    EXPECT_EQ((ReportRequest::Pairs{ { "%Paint", "m2" } }), request.inputUnits);
    EXPECT_EQ("%Weight", request.where);
    EXPECT_EQ((std::vector<std::string>{ "%Weight", "%Paint" }), request.rowTotals);
}

TEST(RowOptionsTest, NothingIsGivenByDefault)
{
    const ReportRequest request = requestOf("");

    EXPECT_TRUE(request.inputUnits.empty());
    EXPECT_EQ("", request.where);
    EXPECT_TRUE(request.rowTotals.empty());
}

TEST(RowOptionsTest, AnInputUnitThatIsNoPairIsRefused)
{
    EXPECT_EQ("2 --input-unit: found \"%Paint\", expected TOKEN=UNIT such as %Paint=m2\n",
              faultOf([] { requestOf("--input-unit %Paint"); }));
}

TEST(RowOptionsTest, HelpSaysWhatTheVerbSaysOfItsRows)
{
    CLI::App app;
    RowOptions rows;

    rows.declareOn(app, "Which rows are listed");

    EXPECT_NE(std::string::npos, app.help().find("--where CONDITION")) << app.help();
    EXPECT_NE(std::string::npos, app.help().find("Which rows are listed")) << app.help();
}
}
