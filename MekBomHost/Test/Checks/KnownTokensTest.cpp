#include "KnownTokens.h"

#include "TemplateReader.h"

#include <gtest/gtest.h>

namespace mekbom
{
namespace
{
class KnownTokensTest : public testing::Test
{
protected:
    void SetUp() override { m_template.pTemplate->setUnitsForTokens(nullptr); }

    ReportTemplate m_template = TemplateReader::read("list.json", R"({
        "tokens": { "%Price": "number", "%Shift": "text" },
        "tokenUnits": { "%Gap": "kDistanceUnit" },
        "columns": [ { "token": "%Phase", "order": "natural" }, { "token": "%Name", "order": "plain" } ],
        "sections": [ { "type": "kDetails", "tuples": [ { "token": "%Phase" }, { "token": "%Name" } ] } ] })");
    KnownTokens m_tokens{ m_template, { "%PosNum" } };
};
}

TEST_F(KnownTokensTest, TokensAreKnownFromFourSources)
{
    for (const char* const token : { "%Weight", "%UserAttr12", "%Handle", "%Price", "%Shift", "%Gap", "%PosNum" })
        EXPECT_TRUE(m_tokens.knows(token)) << token;
    for (const char* const token : { "%weight", "%posNum", "Weight", "%PaintMeter", "%SumBy:%Weight", "" })
        EXPECT_FALSE(m_tokens.knows(token)) << token;
}

TEST_F(KnownTokensTest, KindsAreThoseOfTheCatalogueOrTheTemplate)
{
    EXPECT_EQ(KnownTokens::kNumber, m_tokens.kindOf("%Weight"));
    EXPECT_EQ(KnownTokens::kWhole, m_tokens.kindOf("%Quantity"));
    EXPECT_EQ(KnownTokens::kText, m_tokens.kindOf("%Handle"));
    EXPECT_EQ(KnownTokens::kNumber, m_tokens.kindOf("%Price"));
    EXPECT_EQ(KnownTokens::kText, m_tokens.kindOf("%Shift"));
    EXPECT_EQ(KnownTokens::kNumber, m_tokens.kindOf("%Gap"));
    EXPECT_EQ(KnownTokens::kOpen, m_tokens.kindOf("%PosNum"));
}

TEST_F(KnownTokensTest, AColumnsOrderComesBeforeThatOfTheCatalogue)
{
    EXPECT_TRUE(m_tokens.isNatural("%PNum"));
    EXPECT_TRUE(m_tokens.isNatural("%Phase"));
    EXPECT_FALSE(m_tokens.isNatural("%Name"));
    EXPECT_FALSE(m_tokens.isNatural("%Material"));
}

TEST_F(KnownTokensTest, TheNearestTokenIsTheOneThatWasMeant)
{
    EXPECT_EQ("%Weight", m_tokens.nearestTo("%Wieght"));
    EXPECT_EQ("%Weight", m_tokens.nearestTo("Weight"));
    EXPECT_EQ("%%PaintMeter", m_tokens.nearestTo("%PaintMeter"));
    EXPECT_EQ("%PosNum", m_tokens.nearestTo("%posNum"));
    EXPECT_EQ("%SumBy:%Weight", m_tokens.nearestTo("%Sumby:%Weight"));
    EXPECT_EQ("", m_tokens.nearestTo("%Zeppelin"));
}

TEST_F(KnownTokensTest, WhatIsOfAnAssemblyAPhaseOrTheModelIsSharedByRows)
{
    for (const char* const token : { "%AssemblyWeight", "%AssemblyExactWeight", "%MQuantity", "%MQuantityInPhase",
                                     "%PaintInAssembly", "%WeightInAllAssemblyInPhase", "%SawLengthInModel" })
        EXPECT_TRUE(m_tokens.isSharedByRows(token)) << token;
    for (const char* const token : { "%Weight", "%Quantity", "%IsMP", "%Shift", "%GapInModel" })
        EXPECT_FALSE(m_tokens.isSharedByRows(token)) << token;
}
}
