#include "TokenRequest.h"

#include <gtest/gtest.h>

#include <string>

namespace mekbom
{
namespace
{
// "%A+ %B- ": each element with its direction, in brackets what is no token.
std::string elementsOf(const std::string& token)
{
    std::string text;
    for (const TokenRequest::Element& element : TokenRequest::of(token).elements)
        text += (element.kind == TokenRequest::kToken ? element.token : "[" + element.token + "]") +
                (element.isDescending ? "-" : "+") + (element.hasDirection ? "! " : " ");
    return text;
}
}

TEST(TokenRequestTest, KindsAreToldByTheirPrefix)
{
    EXPECT_EQ(TokenRequest::kShow, TokenRequest::of("%Weight").kind);
    EXPECT_EQ(TokenRequest::kShow, TokenRequest::of("%Sumby:%Weight").kind); // case counts
    EXPECT_EQ(TokenRequest::kGroup, TokenRequest::of("%GroupBy:%A").kind);
    EXPECT_EQ(TokenRequest::kSort, TokenRequest::of("%SortDescBy:%A").kind);
    EXPECT_EQ(TokenRequest::kSum, TokenRequest::of("%SumBy:%A").kind);
    EXPECT_EQ(TokenRequest::kFilter, TokenRequest::of("%FilterBy:3").kind);
    EXPECT_EQ(TokenRequest::kFormula, TokenRequest::of("%Formula:%A*2").kind);
    EXPECT_EQ(" %A", TokenRequest::of("%SumBy: %A").subject);
}

TEST(TokenRequestTest, ListsAreSplitAsTheEngineSplitsThem)
{
    EXPECT_EQ("%A+ %B+ ", elementsOf("%GroupBy: %A , %B"));
    EXPECT_EQ("%A+ [,%B]+ ", elementsOf("%GroupBy:%A,,%B"));
    EXPECT_EQ("[,%A]+ ", elementsOf("%GroupBy:,%A"));
    EXPECT_EQ("%A+ []+ ", elementsOf("%GroupBy:%A,"));
    EXPECT_EQ("[%A;%B]+ ", elementsOf("%GroupBy:%A;%B"));
    EXPECT_EQ("[%A\t%B]+ ", elementsOf("%GroupBy:%A\t%B"));
}

TEST(TokenRequestTest, ADirectionHoldsUntilAnotherIsNamed)
{
    EXPECT_EQ("%A-! %B- %C+! %D+ ", elementsOf("%SortDescBy:%A,%B,%SortAscBy:%C,%D"));
}

TEST(TokenRequestTest, WhatIsNoTokenIsToldApart)
{
    const auto kindOf = [](const char* token) { return TokenRequest::of(token).elements.front().kind; };

    EXPECT_EQ(TokenRequest::kWithoutPercent, kindOf("%GroupBy:Material"));
    EXPECT_EQ(TokenRequest::kRequest, kindOf("%GroupBy:%SortAscBy:%A"));
    EXPECT_EQ(TokenRequest::kComputed, kindOf("%GroupBy:%Formula:%A*2"));
    EXPECT_EQ(TokenRequest::kMalformed, kindOf("%GroupBy:"));
}

TEST(TokenRequestTest, RowsAreAskedForTheTokensOfAFormulaSummedOrNot)
{
    const std::vector<std::string> both = { "%Weight", "%Quantity" };
    EXPECT_EQ(both, dataTokensOf(TokenRequest::of("%Formula:%Weight*%Quantity")));
    EXPECT_EQ(both, dataTokensOf(TokenRequest::of("%SumBy:%Formula:%Weight*%Quantity")));
    EXPECT_EQ(both, dataTokensOf(TokenRequest::of("%SortDescBy:%Weight,%Quantity")));
    EXPECT_EQ(std::vector<std::string>{ "%Weight" }, dataTokensOf(TokenRequest::of("%SumBy:%Weight")));
    EXPECT_EQ(std::vector<std::string>{ "%Weight" }, dataTokensOf(TokenRequest::of("%Weight")));
}
}
