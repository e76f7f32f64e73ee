#include "SourceBytes.h"

#include "Support/HostTestSupport.h"

#include <gtest/gtest.h>

#include <string>

namespace mekbom
{
namespace
{
std::string textOf(const SourceBytes& bytes)
{
    return std::string(bytes.begin(), bytes.end());
}

const std::string& longText()
{
    static const std::string text = []
    {
        std::string lines;
        for (int i = 0; lines.size() < 2'000'000; ++i)
            lines += std::to_string(i) + "\n";
        return lines;
    }();
    return text;
}
}

TEST(SourceBytesTest, ThereAreNoneBeforeSomeAreRead)
{
    MemorySource source("parts.csv", "abc");
    SourceBytes bytes(source);

    EXPECT_EQ("", textOf(bytes));
    EXPECT_FALSE(bytes.areLast());

    bytes.readMore();

    EXPECT_EQ("abc", textOf(bytes));
    EXPECT_TRUE(bytes.areLast());
}

TEST(SourceBytesTest, ALineEndStandsBehindThem)
{
    BlockSource source("abc", 1);
    SourceBytes bytes(source);

    EXPECT_EQ('\n', *bytes.end());
    bytes.readMore();
    EXPECT_EQ('\n', *bytes.end());
}

TEST(SourceBytesTest, WhatIsDroppedMakesRoomAndWhatIsNotStays)
{
    BlockSource source(longText(), 70'000);
    SourceBytes bytes(source);
    std::string text;

    for (bytes.readMore(); bytes.begin() != bytes.end(); bytes.readMore())
    {
        const char* const pUsed = bytes.begin() + (bytes.end() - bytes.begin() + 1) / 2;
        text.append(bytes.begin(), pUsed);
        bytes.dropTo(pUsed);
    }

    EXPECT_TRUE(bytes.areLast());
    EXPECT_EQ(longText(), text);
}

TEST(SourceBytesTest, BytesThatAreNotDroppedAreAllKept)
{
    MemorySource source("parts.csv", longText());
    SourceBytes bytes(source);
    int numReads = 0;

    for (; !bytes.areLast(); ++numReads)
        bytes.readMore();

    EXPECT_EQ(longText(), textOf(bytes));
    EXPECT_LE(numReads, 6); // each time twice as many
}
}
