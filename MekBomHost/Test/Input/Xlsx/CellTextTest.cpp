#include "CellText.h"

#include <gtest/gtest.h>

#include <string>

namespace mekbom
{
namespace
{
std::string unescaped(const std::string& text)
{
    std::string buffer = "|";
    return CellText::appendUnescaped(text, buffer);
}

std::string textOf(const char* pItem)
{
    pugi::xml_document document;
    EXPECT_TRUE(document.load_string(pItem, pugi::parse_default | pugi::parse_ws_pcdata));
    std::string buffer = "what was there";
    return std::string(CellText::textOf(document.first_child(), buffer));
}
}

TEST(CellTextTest, EscapesStandForTheirCharacters)
{
    struct
    {
        const char* text;
        const char* expected;
    } const cases[] = {
        { "", "|" },
        { "a_x000D_b_x000a_", "|a\rb\n" },
        { "_x005F_x0041_", "|_x0041_" },
        { "_x20AC_", "|\xE2\x82\xAC" },
        { "_x00G0_", "|_x00G0_" },
        { "_x004", "|_x004" },
        { "_x0041", "|_x0041" },
        { "_x-041_", "|_x-041_" },
        { "_x_x0041_", "|_xA" },
        { "_x0000_", "|_x0000_" }, // no text has a zero
        { "_xD83D_", "|_xD83D_" }, // half a character
    };
    for (const auto& testCase : cases)
        EXPECT_EQ(testCase.expected, unescaped(testCase.text)) << testCase.text;
}

TEST(CellTextTest, PartsOfSeveralFontsAreOneText)
{
    EXPECT_EQ("HEA200", textOf("<si><r><t>HEA</t></r><r><rPr><b/></rPr><t>200</t></r></si>"));
    EXPECT_EQ("HEA 200", textOf("<si><t>HEA<!-- --> <![CDATA[200]]></t></si>"));
    EXPECT_EQ(" ", textOf("<si><t xml:space=\"preserve\"> </t></si>"));
    EXPECT_EQ("", textOf("<si/>"));
}

TEST(CellTextTest, HowATextIsPronouncedIsNoPartOfIt)
{
    EXPECT_EQ("a", textOf("<si><t>a</t><rPh sb=\"0\" eb=\"1\"><t>b</t></rPh><phoneticPr fontId=\"1\"/></si>"));
}
}
