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
}
