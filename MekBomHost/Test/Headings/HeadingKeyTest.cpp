#include "HeadingKey.h"

#include <gtest/gtest.h>

namespace mekbom
{
TEST(HeadingKeyTest, WaysOfWritingAHeadingHaveOneKey)
{
    for (const char* const heading : { "L\u00E4nge", "LAENGE", "Lange", " l\u00E4nge\n", "L\u00E4n-ge." })
        EXPECT_EQ("lange", headingKey(heading)) << heading;
    for (const char* const heading : { "Teile-Nr.", "Teile Nr", "TEILENR", "Teile\u00A0Nr.", "Teile\nNr." })
        EXPECT_EQ("teilenr", headingKey(heading)) << heading;
    EXPECT_EQ(headingKey("St\u00FCck"), headingKey("STUECK"));
    EXPECT_EQ(headingKey("N\u00B0 de pi\u00E8ce"), headingKey("n de piece"));
    EXPECT_EQ("weighteach", headingKey("Weight (each)"));
    EXPECT_EQ("weightpc", headingKey("Weight/pc."));
}

TEST(HeadingKeyTest, WhatMayChangeTheMeaningStays)
{
    EXPECT_NE(headingKey("Weight"), headingKey("Weight %"));
    EXPECT_NE(headingKey("Weight"), headingKey("Weight*"));
    EXPECT_NE(headingKey("Weight"), headingKey("Weight 2"));
    EXPECT_NE(headingKey("Part"), headingKey("Part #"));
    EXPECT_EQ("", headingKey(" .-"));
}
}
