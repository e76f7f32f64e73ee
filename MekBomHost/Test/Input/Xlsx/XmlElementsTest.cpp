#include "XmlElements.h"

#include "XlsxLimits.h"
#include "XmlNames.h"

#include "Support/HostTestSupport.h"
#include "Support/RepeatingSource.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <sstream>
#include <string>

namespace mekbom
{
namespace
{
// The wanted elements as text without blanks, one to a line.
std::string elementsOf(const std::string& text, std::size_t blockSize = 1 << 20)
{
    BlockSource source(text, blockSize);
    XmlElements elements(source, "parts.xlsx", { "list/row", "others/row" });
    std::ostringstream lines;
    while (const pugi::xml_node element = elements.next())
    {
        element.print(lines, "", pugi::format_raw);
        lines << '\n';
    }
    return lines.str();
}

// What is found and expected in the part.
std::string faultIn(const std::string& text)
{
    const std::string fault = faultOf([&] { elementsOf(text); });
    const std::string start = "3 parts.xlsx: parts.csv: found ";
    EXPECT_EQ(start, fault.substr(0, start.size()));
    return fault.substr(std::min(fault.size(), start.size()), fault.rfind(": ") - start.size());
}

std::string repeated(const std::string& text, int times)
{
    std::string all;
    for (int i = 0; i < times; ++i)
        all += text;
    return all;
}
}

TEST(XmlElementsTest, WantedElementsAreFoundByTheirNameAndTheOneAround)
{
    EXPECT_EQ("<row a=\"1\"/>\n<row><c/>text</row>\n<x:row/>\n",
              elementsOf("<?xml version=\"1.0\"?><book><row/><list><row a=\"1\"/> <col><row/></col><row><c/>text</row>"
                         "</list><x:others><x:row/></x:others><row/></book>"));
}

TEST(XmlElementsTest, WhatLooksLikeATagMayBeNone)
{
    EXPECT_EQ("<row a=\">/row>\">x<![CDATA[</row>]]></row>\n",
              elementsOf("<list><!-- <row> --><?p <row> ?><![CDATA[<row/>]]><row a='&gt;/row>'>x<!-- </row> -->"
                         "<![CDATA[</row>]]></row></list>"));
}

TEST(XmlElementsTest, ItDoesNotMatterWhereTheBytesEnd)
{
    const std::string text = "\xEF\xBB\xBF<?xml version='1.0' encoding='utf-8'?><a><!-- > --><list><row a='>'>" +
                             repeated("<c><![CDATA[]]]></c>", 2000) + "</row >\n<row/></list></a>\n";
    const std::string atOnce = elementsOf(text);

    EXPECT_EQ(2000U * 20 + 18 + 7, atOnce.size());
    for (const std::size_t blockSize : { 1u, 2u, 3u, 7u, 4096u })
        EXPECT_EQ(atOnce, elementsOf(text, blockSize)) << blockSize;
}

TEST(XmlElementsTest, ElementsThatFillTheBufferAreReadWhole)
{
    const std::string row = "<row>" + std::string(300000, 'x') + "</row>";

    EXPECT_EQ(row + "\n" + row + "\n", elementsOf("<list>" + row + row + "</list>", 1000));
}

TEST(XmlElementsTest, DefinitionsAreRefused)
{
    EXPECT_EQ("\"!DOCTYPE\", expected elements, and no definitions",
              faultIn("<!DOCTYPE list [<!ENTITY a \"b\">]><list><row>&a;</row></list>"));
    EXPECT_EQ("\"!ENTITY\", expected elements, and no definitions", faultIn("<list><!ENTITY a \"b\"></list>"));
}

TEST(XmlElementsTest, OtherEncodingsAreRefused)
{
    EXPECT_EQ("text in iso-8859-1, expected text in UTF-8",
              faultIn("<?xml version=\"1.0\" encoding=\"ISO-8859-1\"?><list/>"));
    EXPECT_EQ("a zero byte, expected text in UTF-8", faultIn(std::string("\xFF\xFE<\0l\0", 6)));
    EXPECT_EQ("a zero byte, expected text in UTF-8", faultIn(std::string("\0<\0l", 4)));
}

TEST(XmlElementsTest, WhatIsNoXmlIsRefused)
{
    struct
    {
        const char* text;
        const char* expected;
    } const cases[] = {
        { "", "nothing, expected XML" },
        { "plain text", "nothing, expected XML" },
        { "<list>", "its end within <list>, expected </list>" },
        { "<list><row>", "its end within an element, expected the rest of it" },
        { "<list><row", "its end within a tag, expected '>'" },
        { "<list><row a=\">", "its end within a tag, expected '>'" },
        { "<list><!-- ", "its end within a tag, expected '>'" },
        { "<list><!-->", "its end within a tag, expected '>'" },
        { "<list><!", "its end within a tag, expected '>'" },
        { "<list></other>", "</other>, expected </list>" },
        { "<list/></list>", "</list>, expected no more" },
        { "<list><row></c></row></list>", "an element that is no XML (Start-end tags mismatch), expected XML" },
        { "<list><row a=1/></list>", "an element that is no XML (Error parsing element attribute), expected XML" },
        { "<list><row>4&#0;0</row></list>", "a zero character, expected text" },
        { "<list><row>4&#x000;0</row></list>", "a zero character, expected text" },
    };
    for (const auto& testCase : cases)
        EXPECT_EQ(testCase.expected, faultIn(testCase.text)) << testCase.text;
}

TEST(XmlElementsTest, AZeroByteEndsNoText)
{
    for (const char* const pText : { "<row>4|0</row>", "<row a='4|0'/>", "<row><v>4|</v></row>", "<row|/>", "|" })
    {
        std::string text = std::string("<list>") + pText + "</list>";
        text[text.find('|')] = '\0';
        EXPECT_EQ("a zero byte, expected text in UTF-8", faultIn(text)) << pText;
    }
}

TEST(XmlElementsTest, ElementsAThousandDeepAreRefused)
{
    const std::string tooDeep = "elements within each other, more than 64, expected fewer";

    EXPECT_EQ(tooDeep, faultIn(repeated("<list>", 1000)));
    EXPECT_EQ(tooDeep, faultIn("<list><row>" + repeated("<c>", 1000)));
    EXPECT_EQ(
        "", faultOf([&] { elementsOf("<list><row>" + repeated("<c>", 62) + repeated("</c>", 62) + "</row></list>"); }));
    EXPECT_EQ(tooDeep, faultIn("<list><row>" + repeated("<c>", 63) + repeated("</c>", 63) + "</row></list>"));
}

TEST(XmlElementsTest, WhatDoesNotEndIsGivenUpEarly)
{
    for (const char* const pStart :
         { "<list><row><c>", "<list><row a=\"", "<list><!--", "<?", "<list><![CDATA[", "<list a=\"" })
    {
        RepeatingSource source("sheet.xml", pStart, std::string(1000, 'x'), 1'000'000);
        EXPECT_EQ(
            "3 parts.xlsx: sheet.xml: found a row, a text or a tag of more than 8 MB, expected less: a file of parts "
            "this large is damaged, or made to do harm\n",
            faultOf([&] { XmlElements(source, "parts.xlsx", { "list/row" }).next(); }));
        EXPECT_LE(source.numGiven, 4 * XlsxLimits::kMostElementBytes) << pStart;
    }
}
}
