#include "DecodedSource.h"

#include "Support/HostTestSupport.h"
#include "Utf8.h"

#include <gtest/gtest.h>

#include <string>

namespace mekbom
{
namespace
{
std::string decoded(const std::string& bytes, TextEncoding::eEncoding encoding, std::size_t blockSize = 1 << 20)
{
    BlockSource source(bytes, blockSize);
    return DecodedSource(source, encoding).readAll();
}

std::string faultIn(const std::string& bytes, TextEncoding::eEncoding encoding)
{
    return faultOf([&] { decoded(bytes, encoding); });
}

// `text`, which is UTF-8, in UTF-16.
std::string inUtf16(std::string_view text, bool isLittleEndian)
{
    std::string bytes;
    const auto addUnit = [&bytes, isLittleEndian](int unit)
    {
        bytes += static_cast<char>(isLittleEndian ? unit & 0xFF : unit >> 8);
        bytes += static_cast<char>(isLittleEndian ? unit >> 8 : unit & 0xFF);
    };
    while (!text.empty())
    {
        const int codePoint = Utf8::takeCodePoint(text);
        if (codePoint >= 0x10000)
            addUnit(0xD800 + ((codePoint - 0x10000) >> 10));
        addUnit(codePoint >= 0x10000 ? 0xDC00 + ((codePoint - 0x10000) & 0x3FF) : codePoint);
    }
    return bytes;
}
}

TEST(DecodedSourceTest, Utf8IsPassedOnAsItIs)
{
    EXPECT_EQ("Tr\xC3\xA4ger \xFF", decoded("Tr\xC3\xA4ger \xFF", TextEncoding::kUtf8));
}

TEST(DecodedSourceTest, Windows1252BecomesUtf8)
{
    for (const std::size_t blockSize : { 1U, 3U, 1000U })
        EXPECT_EQ("Tr\xC3\xA4ger \xE2\x82\xAC\n", decoded("Tr\xE4ger \x80\n", TextEncoding::kWindows1252, blockSize));
}

TEST(DecodedSourceTest, Utf16BecomesUtf8WhereverItsBlocksEnd)
{
    const std::string text = "\xEF\xBB\xBFTr\xC3\xA4ger\r\n\xE6\x9F\xB1 \xF0\x9F\x8D\x8B\n";
    for (const std::size_t blockSize : { 1U, 2U, 3U, 5U, 1000U })
    {
        EXPECT_EQ(text, decoded(inUtf16(text, true), TextEncoding::kUtf16LittleEndian, blockSize));
        EXPECT_EQ(text, decoded(inUtf16(text, false), TextEncoding::kUtf16BigEndian, blockSize));
    }
}

TEST(DecodedSourceTest, LongTextsAreReadInAnySteps)
{
    std::string text;
    for (int i = 0; i < 30'000; ++i)
        text += "\xC3\xA4" + std::to_string(i);
    const std::string bytes = inUtf16(text, true);
    MemorySource source("parts.csv", bytes);
    DecodedSource decodedSource(source, TextEncoding::kUtf16LittleEndian);
    std::string result(text.size() + 1, '\0');
    std::size_t length = 0;
    for (std::size_t step = 1; const std::size_t numRead = decodedSource.read(&result[length], step % 1000 + 1); ++step)
        length += numRead;
    result.resize(length);

    EXPECT_EQ(text, result);
}

TEST(DecodedSourceTest, WhatIsNoCharacterIsNamedWithItsLine)
{
    const std::string twoLines("a\0\r\0\n\0\r\0", 8);
    const std::string remedy = ": give --encoding if it is in another one\n";

    EXPECT_EQ("3 parts.csv:3: found half a surrogate pair, expected text in utf-16le" + remedy,
              faultIn(twoLines + std::string("\0\xDC", 2), TextEncoding::kUtf16LittleEndian));
    EXPECT_EQ("3 parts.csv:3: found half a surrogate pair, expected text in utf-16le" + remedy,
              faultIn(twoLines + std::string("\0\xD8"
                                             "a\0",
                                             4),
                      TextEncoding::kUtf16LittleEndian));
    EXPECT_EQ("3 parts.csv:3: found an end within a character, expected text in utf-16le" + remedy,
              faultIn(twoLines + std::string("\0\xD8", 2), TextEncoding::kUtf16LittleEndian));
    EXPECT_EQ("3 parts.csv:3: found an end within a character, expected text in utf-16le" + remedy,
              faultIn(twoLines + "a", TextEncoding::kUtf16LittleEndian));
    EXPECT_EQ("3 parts.csv:2: found a byte that is no character, expected text in windows-1252" + remedy,
              faultIn("a\n\x81", TextEncoding::kWindows1252));
}
}
