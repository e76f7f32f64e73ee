#include "XmlNames.h"

#include <gtest/gtest.h>

namespace mekbom
{
TEST(XmlNamesTest, PrefixesAreLeftOut)
{
    EXPECT_EQ("row", XmlNames::withoutPrefix("row"));
    EXPECT_EQ("row", XmlNames::withoutPrefix("x:row"));
    EXPECT_EQ("", XmlNames::withoutPrefix("x:"));
    EXPECT_EQ("", XmlNames::withoutPrefix(""));
}

TEST(XmlNamesTest, ElementsAndAttributesAreFoundByTheirNames)
{
    pugi::xml_document document;
    document.load_string("<x:sheet name=\"Parts\" r:id=\"rId1\"/>");
    const pugi::xml_node sheet = document.first_child();

    EXPECT_TRUE(XmlNames::isNamed(sheet, "sheet"));
    EXPECT_FALSE(XmlNames::isNamed(sheet, "x:sheet"));
    EXPECT_EQ("Parts", XmlNames::attribute(sheet, "name"));
    EXPECT_EQ("rId1", XmlNames::attribute(sheet, "id"));
    EXPECT_EQ("", XmlNames::attribute(sheet, "state"));
}
}
