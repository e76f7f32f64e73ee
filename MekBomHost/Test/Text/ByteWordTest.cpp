#include "ByteWord.h"

#include <gtest/gtest.h>

#include <string>

namespace mekbom
{
namespace
{
std::uint64_t byteByByte(const std::string& bytes)
{
    std::uint64_t word = 0;
    for (std::size_t i = bytes.size(); i-- > 0;)
        word = word << 8 | static_cast<unsigned char>(bytes[i]);
    return word;
}
}

TEST(ByteWordTest, TheFirstByteIsTheLowest)
{
    const std::string text = "B37304\xC3\xA4";
    for (std::size_t length = 0; length <= text.size(); ++length)
    {
        const std::string bytes(text, 0, length); // with nothing behind it that may be read
        EXPECT_EQ(byteByByte(bytes), ByteWord::of(std::string_view(bytes.data(), length))) << bytes;
    }
}

TEST(ByteWordTest, WordsBecomeBytesAgain)
{
    char bytes[ByteWord::kSize];
    for (const char* const text : { "", "a", "ab", "abc", "B37304", "S355J2+N", "\xC3\xA4" })
        EXPECT_EQ(text, ByteWord::write(ByteWord::of(text), bytes));
}

TEST(ByteWordTest, HashesOfLongTextsAreNoWordsOfShortOnes)
{
    const std::string text = "1LDUm30000534qCZarEJSo";
    for (std::size_t length = ByteWord::kSize + 1; length <= text.size(); ++length)
    {
        const std::string bytes(text, 0, length);
        EXPECT_EQ(0u, ByteWord::hashOf(bytes) & 0xFF);
        EXPECT_NE(0u, ByteWord::hashOf(bytes));
        for (std::size_t i = 0; i < length; ++i)
        {
            std::string other = bytes;
            ++other[i];
            EXPECT_NE(ByteWord::hashOf(bytes), ByteWord::hashOf(other)) << other;
        }
    }
}
}
