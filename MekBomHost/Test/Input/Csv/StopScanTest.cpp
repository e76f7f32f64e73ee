#include "StopScan.h"

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

namespace mekbom
{
namespace
{
using Offsets = std::vector<std::size_t>;

// Of the stops among the first `length` bytes. Behind those it would find nothing but stops.
Offsets stopsOf(const std::string& text, std::size_t length, char delimiter = ',')
{
    const std::string bytes = text.substr(0, length) + std::string(StopScan::kBlockSize, '\n');
    const char* const pEnd = bytes.data() + length;
    StopScan scan(delimiter);
    scan.begin(bytes.data(), pEnd);
    Offsets stops;
    for (const char* pStop = scan.next(); pStop != pEnd; pStop = scan.next())
        stops.push_back(static_cast<std::size_t>(pStop - bytes.data()));
    EXPECT_EQ(pEnd, scan.next());
    return stops;
}

Offsets stopsByteByByte(const std::string& text, std::size_t length, char delimiter = ',')
{
    Offsets stops;
    for (std::size_t i = 0; i < length; ++i)
        if (const auto byte = static_cast<unsigned char>(text[i]); byte <= ',' || byte >= 0x80 || text[i] == delimiter)
            stops.push_back(i);
    return stops;
}
}

TEST(StopScanTest, CommasQuotesAndLineEndsAreStops)
{
    EXPECT_EQ((Offsets{ 1, 3, 4, 6, 7 }), stopsOf("a,b\r\nc\"\n", 8));
}

TEST(StopScanTest, EveryByteIsAStopOrNotWhereverItStands)
{
    for (int byte = 0; byte < 256; ++byte)
        for (std::size_t pos = 0; pos < 20; ++pos)
        {
            std::string text(20, 'x');
            text[pos] = static_cast<char>(byte);
            for (const char delimiter : { ',', ';', '|', '\t' })
                ASSERT_EQ(stopsByteByByte(text, text.size(), delimiter), stopsOf(text, text.size(), delimiter))
                    << byte << " at " << pos;
        }
}

TEST(StopScanTest, StopsAreTheSameWhereverTheTextEnds)
{
    std::mt19937 random(1);
    std::string text(300, 'x');
    for (char& byte : text)
        byte = static_cast<char>(random() % (random() % 2 == 0 ? 256 : 64));
    for (std::size_t length = 0; length <= text.size(); ++length)
        for (const char delimiter : { ',', ';' })
            ASSERT_EQ(stopsByteByByte(text, length, delimiter), stopsOf(text, length, delimiter)) << length << " bytes";
}
}
