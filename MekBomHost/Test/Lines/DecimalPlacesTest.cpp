#include "DecimalPlaces.h"

#include <gtest/gtest.h>

namespace mekbom
{
TEST(DecimalPlacesTest, APointAndTheDigitsBehindItAreCounted)
{
    EXPECT_EQ(3u, DecimalPlaces::lengthIn("1234.25"));
    EXPECT_EQ(2u, DecimalPlaces::lengthIn("-0.5"));
    EXPECT_EQ(2u, DecimalPlaces::lengthIn(".5"));
    EXPECT_EQ(3u, DecimalPlaces::lengthIn("1 234 567.89"));
}

TEST(DecimalPlacesTest, WhatDoesNotEndInThemHasNone)
{
    for (const char* const text : { "", "1234", "-5", "7' 6\"", "7' 6.5\"", "12.5 mm",
                                    "12\xC2\xB0"
                                    "30'",
                                    "1.5e+20", "5.", "inf", "HEA200", "." })
        EXPECT_EQ(0u, DecimalPlaces::lengthIn(text)) << text;
}
}
