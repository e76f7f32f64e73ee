#include "VorQuantityText.h"
#include "MekRoots/Test/Support/TestSupport.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <random>

namespace
{
const std::uint64_t kLargestParts = 125000000000000; // of what is shown without an exponent and told quickly

std::uint64_t powerOfTen(int exponent)
{
    std::uint64_t power = 1;
    for (; exponent > 0; --exponent)
        power *= 10;
    return power;
}

VorString pieceByPiece(bool isNegative, std::uint64_t parts, int numDecimals, int suppressLastZeros)
{
    VorQuantityText text;
    if (isNegative)
        text.addCharacter(L'-');
    text.addInteger(parts / powerOfTen(numDecimals));
    text.addDecimals(parts % powerOfTen(numDecimals), numDecimals, suppressLastZeros);
    return text.text();
}

void expectAsPieceByPiece(std::uint64_t parts)
{
    for (int numDecimals = 0; numDecimals <= 9; ++numDecimals)
        for (const int suppressLastZeros : { 0, 1 })
            for (const bool isNegative : { false, true })
                ASSERT_EQ(pieceByPiece(isNegative, parts, numDecimals, suppressLastZeros),
                          VorQuantityText::ofDecimal(isNegative, parts, numDecimals, suppressLastZeros))
                    << parts << " with " << numDecimals << " decimals";
}
}

TEST(VorQuantityTextTest, ADecimalIsWrittenInOneGo)
{
    EXPECT_EQ(VorString(L"0"), VorQuantityText::ofDecimal(false, 0, 0, 0));
    EXPECT_EQ(VorString(L"0.00"), VorQuantityText::ofDecimal(false, 0, 2, 0));
    EXPECT_EQ(VorString(L"0"), VorQuantityText::ofDecimal(false, 0, 2, 1));
    EXPECT_EQ(VorString(L"-12.50"), VorQuantityText::ofDecimal(true, 1250, 2, 0));
    EXPECT_EQ(VorString(L"-12.5"), VorQuantityText::ofDecimal(true, 1250, 2, 1));
    EXPECT_EQ(VorString(L"0.05"), VorQuantityText::ofDecimal(false, 5, 2, 1));
    EXPECT_EQ(VorString(L"100"), VorQuantityText::ofDecimal(false, 100, 0, 1)); // no decimals, so none to drop
    EXPECT_EQ(VorString(L"100"), VorQuantityText::ofDecimal(false, 10000, 2, 1));
    EXPECT_EQ(VorString(L"-0.000000001"), VorQuantityText::ofDecimal(true, 1, 9, 0));
}

TEST(VorQuantityTextTest, DecimalsReadAsPieceByPieceAtEveryPowerOfTen)
{
    for (int exponent = 0; exponent <= 19; ++exponent)
        for (const std::uint64_t parts :
             { powerOfTen(exponent) - 1, powerOfTen(exponent), powerOfTen(exponent) + 1, 5 * powerOfTen(exponent) / 2 })
            expectAsPieceByPiece(parts);
    expectAsPieceByPiece(~std::uint64_t{ 0 });
}

TEST(VorQuantityTextTest, DecimalsOfFewDigitsReadAsPieceByPiece)
{
    for (std::uint64_t parts = 0; parts < 12000; ++parts)
        expectAsPieceByPiece(parts);
    for (std::uint64_t parts = 9990000; parts < 10010000; parts += 7) // where more digits than a word holds begin
        expectAsPieceByPiece(parts);
}

TEST(VorQuantityTextTest, RandomDecimalsReadAsPieceByPiece)
{
    std::mt19937_64 random(1);
    for (int i = 0; i < 20000; ++i)
        expectAsPieceByPiece(random() % kLargestParts >> random() % 48);
}
