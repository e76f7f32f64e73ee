#include "ByteSource.h"

#include "Support/HostTestSupport.h"

#include <gtest/gtest.h>

#include <string>

namespace mekbom
{
TEST(ByteSourceTest, EverythingIsReadWhereverTheSeamsAre)
{
    const std::string text(100'000, 'x');
    for (const std::size_t blockSize : { 1u, 7u, 65'536u, 1'000'000u })
        EXPECT_EQ(text, BlockSource(text, blockSize).readAll()) << blockSize;
}

TEST(ByteSourceTest, WhatIsLeftIsRead)
{
    MemorySource source("parts.csv", "abcdef");
    char bytes[2];

    EXPECT_EQ(2u, source.read(bytes, 2));

    EXPECT_EQ("cdef", source.readAll());
    EXPECT_EQ("", source.readAll());
}
}
