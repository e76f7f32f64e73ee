#include "PeekedSource.h"

#include "Support/HostTestSupport.h"

#include <gtest/gtest.h>

#include <string>

namespace mekbom
{
TEST(PeekedSourceTest, WhatWasLookedAtIsReadAllTheSame)
{
    const std::string text = "Name,Length\nHEA200,6000\n";
    for (const std::size_t headSize : { 0u, 1u, 4u, 24u, 25u, 1000u })
        for (const std::size_t blockSize : { 1u, 3u, 1000u })
        {
            BlockSource source(text, blockSize);
            PeekedSource peeked(source, headSize);

            EXPECT_EQ(text.substr(0, headSize), peeked.head());
            EXPECT_EQ(text, peeked.readAll());
            EXPECT_EQ(text.substr(0, headSize), peeked.head()) << "still";
            EXPECT_EQ("", peeked.readAll());
        }
}

TEST(PeekedSourceTest, MessagesCallItAsItsSource)
{
    MemorySource source("parts.csv", "");

    EXPECT_EQ("parts.csv", PeekedSource(source, 4).name());
}
}
