#include "MemorySource.h"

#include <gtest/gtest.h>

namespace mekbom
{
TEST(MemorySourceTest, GivesItsBytesOnceAndThenNothing)
{
    MemorySource source("parts.csv", "Name,Length\n");
    char bytes[8];

    EXPECT_EQ(8u, source.read(bytes, sizeof(bytes)));
    EXPECT_EQ("Name,Len", std::string(bytes, 8));
    EXPECT_EQ(4u, source.read(bytes, sizeof(bytes)));
    EXPECT_EQ("gth\n", std::string(bytes, 4));
    EXPECT_EQ(0u, source.read(bytes, sizeof(bytes)));
}

TEST(MemorySourceTest, MessagesCallItByItsName)
{
    EXPECT_EQ("parts.csv", MemorySource("parts.csv", "").name());
}

TEST(MemorySourceTest, EverythingThatIsLeftIsReadAtOnce)
{
    MemorySource source("parts.csv", "Name");
    char byte;
    source.read(&byte, 1);

    EXPECT_EQ("ame", source.readAll());
}
}
