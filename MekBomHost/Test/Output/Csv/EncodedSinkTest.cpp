#include "EncodedSink.h"

#include "Support/HostTestSupport.h"

#include <gtest/gtest.h>

#include <string>

namespace mekbom
{
namespace
{
std::string encoded(const std::string& text, OutputEncoding encoding)
{
    StringSink sink;
    EncodedSink encodedSink(sink, encoding);
    encodedSink.write(text);
    encodedSink.finish();
    return sink.isFinished ? sink.text : "not finished";
}
}

TEST(EncodedSinkTest, Utf8StaysAsItIs)
{
    EXPECT_EQ("Träger 柱", encoded("Träger 柱", { TextEncoding::kUtf8, false }));
    EXPECT_EQ("\xEF\xBB\xBFTräger", encoded("Träger", { TextEncoding::kUtf8, true }));
}

TEST(EncodedSinkTest, Utf16HasTwoBytesAndFourBeyondTheFirstPlane)
{
    EXPECT_EQ(std::string("\xFF\xFE"
                          "A\0"
                          "\xE4\0"
                          "\xF1\x67"
                          "\x3D\xD8\x00\xDE",
                          12),
              encoded("Aä柱\xF0\x9F\x98\x80", { TextEncoding::kUtf16LittleEndian, true }));
}

TEST(EncodedSinkTest, WesternCharactersHaveAByteOfWindows1252)
{
    EXPECT_EQ("Tr\xE4ger m\xB2 \x80 \x96", encoded("Träger m² € –", { TextEncoding::kWindows1252, false }));
}

TEST(EncodedSinkTest, ACharacterThatTheEncodingHasNotIsRefused)
{
    EXPECT_EQ("4 --output-encoding: windows-1252 has no character \"柱\": take utf-8-bom, which spreadsheets know as "
              "well\n",
              faultOf(
                  [] {
                      encoded("柱", { TextEncoding::kWindows1252, false });
                  }));
    EXPECT_NE("", faultOf([] { encoded("\xC2\x81", { TextEncoding::kWindows1252, false }); }));
}

TEST(EncodedSinkTest, TheMarkStandsAtTheBeginAlone)
{
    StringSink sink;
    EncodedSink encodedSink(sink, { TextEncoding::kUtf8, true });
    encodedSink.write("a");
    encodedSink.write("b");
    encodedSink.finish();

    EXPECT_EQ("\xEF\xBB\xBF"
              "ab",
              sink.text);
    EXPECT_EQ("\xEF\xBB\xBF", encoded("", { TextEncoding::kUtf8, true }));
}
}
