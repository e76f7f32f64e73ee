#include "TemplateCover.h"

#include <gtest/gtest.h>

#include <set>
#include <string>
#include <vector>

namespace mekbom
{
namespace
{
TemplateCover coverOf(const std::set<std::string>& columns, const std::string& members)
{
    const NamedText file = { "list.json", "{ " + members + " }" };
    return TemplateCover::of(file, [&columns](const std::string& token) { return columns.count(token) > 0; });
}

const char* const kFour = R"("title": "Four", "sections": [ { "type": "kDetails", "tuples": [
    { "token": "%B" }, { "token": "%A" }, { "token": "%C" }, { "token": "%D" } ] } ])";
const char* const kOneOfBolts = R"("queryFilter": "%BoltName", "sections": [ { "type": "kDetails", "tuples": [
    { "token": "%A" } ] } ])";
const char* const kNone = R"("sections": [ { "type": "kDetails" } ])";
}

TEST(TemplateCoverTest, WhatATemplateFindsAndLacksIsTold)
{
    const TemplateCover cover = coverOf({ "%D", "%A", "%Z" }, kFour);

    EXPECT_EQ("list.json", cover.name);
    EXPECT_EQ("Four", cover.title);
    EXPECT_EQ(4u, cover.numTokens);
    EXPECT_EQ(2u, cover.numFound());
    EXPECT_EQ((std::vector<std::string>{ "%B", "%C" }), cover.missing);
    EXPECT_TRUE(cover.suits());
    EXPECT_FALSE(coverOf({ "%D" }, kFour).suits());
}

TEST(TemplateCoverTest, RowsMustBeAbleToPassTheFilter)
{
    const TemplateCover cover = coverOf({ "%A" }, kOneOfBolts);

    EXPECT_EQ("%BoltName", cover.filter);
    EXPECT_FALSE(cover.canRowsPass);
    EXPECT_FALSE(cover.suits());
    EXPECT_FALSE(cover.suitsBetterThan(coverOf({}, kFour)));
    EXPECT_TRUE(coverOf({ "%A", "%BoltName" }, kOneOfBolts).suits());
}

TEST(TemplateCoverTest, ATemplateWithoutDataSuitsNothing)
{
    EXPECT_FALSE(coverOf({ "%A" }, kNone).suits());
    EXPECT_TRUE(coverOf({ "%A" }, kFour).suitsBetterThan(coverOf({ "%A" }, kNone)));
}

TEST(TemplateCoverTest, PartsAreCompared)
{
    const TemplateCover half = coverOf({ "%A", "%B" }, kFour);
    const TemplateCover most = coverOf({ "%A", "%B", "%C" }, kFour);

    EXPECT_TRUE(most.suitsBetterThan(half));
    EXPECT_FALSE(half.suitsBetterThan(most));
    EXPECT_FALSE(half.suitsBetterThan(half));
}
}
