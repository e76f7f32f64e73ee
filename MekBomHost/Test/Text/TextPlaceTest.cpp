#include "TextPlace.h"

#include <gtest/gtest.h>

#include <string>

namespace mekbom
{
namespace
{
std::string placeOf(PlaceCounter& places, std::size_t offset)
{
    const TextPlace place = places.placeOf(offset);
    return std::to_string(place.line) + ":" + std::to_string(place.column);
}
}

TEST(TextPlaceTest, LinesAndColumnsCountFromOne)
{
    PlaceCounter places("ab\n\nc");

    EXPECT_EQ("1:1", placeOf(places, 0));
    EXPECT_EQ("1:3", placeOf(places, 2));
    EXPECT_EQ("2:1", placeOf(places, 3));
    EXPECT_EQ("3:1", placeOf(places, 4));
}

TEST(TextPlaceTest, ColumnsCountCharacters)
{
    PlaceCounter places("\u00E4\u20ACx");

    EXPECT_EQ("1:2", placeOf(places, 2));
    EXPECT_EQ("1:3", placeOf(places, 5));
}

TEST(TextPlaceTest, PlacesMayBeAskedForBackwards)
{
    PlaceCounter places("ab\ncd", 7);

    EXPECT_EQ("8:2", placeOf(places, 4));
    EXPECT_EQ("7:2", placeOf(places, 1));
    EXPECT_EQ("8:1", placeOf(places, 3));
}

TEST(TextPlaceTest, BehindTheTextIsItsEnd)
{
    PlaceCounter places("ab");

    EXPECT_EQ("1:3", placeOf(places, 2));
    EXPECT_EQ("1:3", placeOf(places, 100));
}
}
