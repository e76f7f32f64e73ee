#include "WeightBars.h"

#include "Support/EvaluatedList.h"

#include <gtest/gtest.h>

#include <string>

namespace mekbom
{
namespace
{
std::string barsOf(const std::string& rows)
{
    const EvaluatedList list(weightsByMaterial(), "%Name,%Material,%Weight\n" + rows);
    const ListSurvey survey(list.report());
    const GroupWeights weights(list.report(), survey);
    std::string page;
    WeightBars(weights).append(page);
    return page;
}

const char* const kHeading = "<h2 id=\"weights\">Weight [kg] by group, of all lines</h2>\n<table class=\"bars\">\n";
}

TEST(WeightBarsTest, TheHeaviestComesFirst)
{
    EXPECT_EQ(std::string(kHeading) +
                  "<tr><th scope=\"row\">B<td><i style=\"margin-left:0.00%;width:100.00%\"></i><td>80</tr>\n"
                  "<tr><th scope=\"row\">A<td><i style=\"margin-left:0.00%;width:50.00%\"></i><td>40</tr>\n"
                  "</table>\n",
              barsOf("x,A,40\nx,B,80\n"));
}

TEST(WeightBarsTest, WhatWeighsLessThanNothingGoesTheOtherWay)
{
    EXPECT_EQ(
        std::string(kHeading) +
            "<tr><th scope=\"row\">A<td><i style=\"margin-left:20.00%;width:80.00%\"></i><td>80</tr>\n"
            "<tr><th scope=\"row\">B<td><td>0</tr>\n"
            "<tr><th scope=\"row\">C<td><i class=\"below\" style=\"margin-left:0.00%;width:20.00%\"></i><td>-20</tr>\n"
            "<tr><th scope=\"row\">D<td><td>no total</tr>\n"
            "</table>\n",
        barsOf("x,A,80\nx,B,0\nx,C,-20\nx,D,\n"));
}

TEST(WeightBarsTest, WeightsStandWithTheirPointsBelowEachOther)
{
    const std::string page = barsOf("x,A,40\nx,B,80.25\nx,C,9.5\nx,D,\n");

    EXPECT_NE(std::string::npos, page.find("<td data-fill=\".00\">40</tr>")) << page;
    EXPECT_NE(std::string::npos, page.find("<td>80.25</tr>"));
    EXPECT_NE(std::string::npos, page.find("<td data-fill=\"0\">9.5</tr>"));
    EXPECT_NE(std::string::npos, page.find("<td>no total</tr>"));
}

TEST(WeightBarsTest, GroupsThatAllWeighNothingHaveNoBars)
{
    EXPECT_EQ("", barsOf("x,A,0\nx,B,0\n"));
    EXPECT_EQ("", barsOf("x,A,\nx,B,\n"));
    EXPECT_EQ("", barsOf("x,A,1\n"));
}

TEST(WeightBarsTest, OfManyTheHeaviestOfEitherSignAreDrawn)
{
    std::string rows = "x,Credit,-500\n";
    for (int i = 1; i <= 41; ++i)
        rows += "x,M" + std::to_string(i) + "," + std::to_string(i) + "\n";
    const std::string page = barsOf(rows);

    EXPECT_NE(std::string::npos, page.find(">Credit<"));
    EXPECT_NE(std::string::npos, page.find(">M41<"));
    EXPECT_NE(std::string::npos, page.find(">M3<"));
    EXPECT_EQ(std::string::npos, page.find(">M2<"));
    EXPECT_NE(std::string::npos, page.find("Not drawn: 2 that weigh less or have no total"));
}

TEST(WeightBarsTest, NamesAreEscaped)
{
    const std::string page = barsOf("x,<b>,1\nx,,2\n");

    EXPECT_NE(std::string::npos, page.find("&lt;b&gt;"));
    EXPECT_NE(std::string::npos, page.find("(no name)"));
}
}
