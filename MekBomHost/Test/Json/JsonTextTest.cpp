#include "JsonText.h"

#include "JsonReader.h"

#include <gtest/gtest.h>

#include <string>

namespace mekbom
{
TEST(JsonTextTest, TextsStandInQuotes)
{
    EXPECT_EQ("\"\"", jsonText(""));
    EXPECT_EQ("\"%Length\"", jsonText("%Length"));
    EXPECT_EQ("\"Träger\"", jsonText("Träger"));
}

TEST(JsonTextTest, WhatWouldEndTheTextIsEscaped)
{
    EXPECT_EQ(R"("a\"b\\c")", jsonText(R"(a"b\c)"));
    EXPECT_EQ(R"("a\u000ab\u0009\u001b\u007f")", jsonText("a\nb\t\x1B\x7F"));
}

TEST(JsonTextTest, WhatIsWrittenIsReadAgain)
{
    std::string text;
    for (int code = 1; code < 128; ++code)
        text += static_cast<char>(code);
    text += "Größe m²";

    EXPECT_EQ(text, JsonReader("list.json", "[ " + jsonText(text) + " ]").read().children[0].text);
}
}
