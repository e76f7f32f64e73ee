#include "VorUtf8.h"

#include "Support/TestSupport.h"

#include <gtest/gtest.h>

#include <string>

namespace
{
std::string there(const char* bytes)
{
    return VorUtf8::toBytes(VorUtf8::toText(bytes));
}

const char kReplaced[] = "\xEF\xBF\xBD";
}

TEST(VorUtf8Test, TextsComeBackAsTheyWere)
{
    for (const char* text :
         { "", "S355", "Tr\xC3\xA4ger", "\xE6\xA2\x81", "a\xF0\x9D\x84\x9E z", "\xC2\x80", "\xDF\xBF", "\xE0\xA0\x80",
           "\xEF\xBF\xBF", "\xF0\x90\x80\x80", "\xF4\x8F\xBF\xBF", "\xED\x9F\xBF" })
        EXPECT_EQ(std::string(text), there(text));
    EXPECT_EQ(VorString(L"Tr\u00E4ger"), VorUtf8::toText("Tr\xC3\xA4ger"));
    EXPECT_EQ(VorString(L"\u6881"), VorUtf8::toText("\xE6\xA2\x81"));
    EXPECT_EQ(VorString(L"\U0001D11E"), VorUtf8::toText("\xF0\x9D\x84\x9E")) << "a pair where wchar_t has 16 bits";
}

// Every code point there is.
TEST(VorUtf8Test, AllCodePointsComeBack)
{
    for (int codePoint = 1; codePoint < 0x110000; ++codePoint)
    {
        if (codePoint == 0xD800)
            codePoint = 0xE000;
        char bytes[VorUtf8::kMostBytes];
        const int length = VorUtf8::encode(codePoint, bytes);
        int decoded = 0;
        ASSERT_EQ(length, VorUtf8::decode(bytes, static_cast<std::size_t>(length), decoded)) << codePoint;
        ASSERT_EQ(codePoint, decoded);
        if (length > 1)
        {
            ASSERT_EQ(0, VorUtf8::decode(bytes, static_cast<std::size_t>(length) - 1, decoded)) << "cut off";
        }
        const std::string text(bytes, static_cast<std::size_t>(length));
        ASSERT_EQ(text, VorUtf8::toBytes(VorUtf8::toText(text))) << codePoint;
    }
}

// Each byte that belongs to no sequence is replaced by itself, so that what follows is read as it should be.
TEST(VorUtf8Test, InvalidBytesAreReplacedOneByOne)
{
    const std::string x = kReplaced;

    EXPECT_EQ("Tr" + x + "ger", there("Tr\xE4ger")) << "another encoding";
    EXPECT_EQ(x + x, there("\xC0\x80")) << "overlong";
    EXPECT_EQ(x + x + x, there("\xE0\x9F\xBF")) << "overlong";
    EXPECT_EQ(x + x + x + x, there("\xF0\x8F\xBF\xBF")) << "overlong";
    EXPECT_EQ(x + x + x, there("\xED\xA0\x80")) << "a surrogate";
    EXPECT_EQ(x + x + x + x, there("\xF4\x90\x80\x80")) << "beyond U+10FFFF";
    EXPECT_EQ("a" + x + x, there("a\xE6\xA2")) << "cut off";
    EXPECT_EQ(x + "a", there("\x80"
                             "a"));
    EXPECT_EQ(x + x, there("\xFE\xFF"));
}

TEST(VorUtf8Test, WideCharactersThatAreNoneAreReplaced)
{
    const wchar_t lone[] = { L'a', static_cast<wchar_t>(0xD800), L'b', static_cast<wchar_t>(0xDC00), 0 };
    EXPECT_EQ(std::string("a") + kReplaced + "b" + kReplaced, VorUtf8::toBytes(lone));
    if (sizeof(wchar_t) == 4)
    {
        const wchar_t beyond[] = { static_cast<wchar_t>(0x110000), static_cast<wchar_t>(-1), 0 };
        EXPECT_EQ(std::string(kReplaced) + kReplaced, VorUtf8::toBytes(beyond));
    }
}

TEST(VorUtf8Test, ZeroBytesAreCharacters)
{
    const VorString text = VorUtf8::toText("a\0b", 3);

    EXPECT_EQ(3, text.length());
    EXPECT_EQ(std::string("a\0b", 3), VorUtf8::toBytes(text));
    EXPECT_EQ(0, VorUtf8::toText(nullptr, 0).length());
}

TEST(VorUtf8Test, NothingIsLeaked)
{
    const LeakCheck leaks;

    for (int i = 0; i < 10; ++i)
        there("Tr\xC3\xA4ger");
}
