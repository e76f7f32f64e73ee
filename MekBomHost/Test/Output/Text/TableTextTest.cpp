#include "TableText.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace mekbom
{
namespace
{
using Lines = std::vector<std::string>;

OutputChoices choicesOf(bool cuts, bool isAscii)
{
    OutputChoices choices;
    choices.cutsTexts = cuts;
    choices.isAscii = isAscii;
    return choices;
}
}

TEST(TableTextTest, TextsAreWrappedUnlessTheyAreToBeCut)
{
    EXPECT_EQ((Lines{ "Träger", "links" }), TableText(choicesOf(false, false)).fitted("Träger links", 8));
    EXPECT_EQ((Lines{ "Träger …" }), TableText(choicesOf(true, false)).fitted("Träger links", 8));
    EXPECT_EQ((Lines{ "one…" }), TableText(choicesOf(true, false)).fitted("one\ntwo", 0));
}

TEST(TableTextTest, HeadingsAreNeverCut)
{
    EXPECT_EQ((Lines{ "Träger", "links" }), TableText(choicesOf(true, false)).wrapped("Träger links", 8));
}

TEST(TableTextTest, TheWidthIsThatOfWhatIsWritten)
{
    EXPECT_EQ((Lines{ "Traeger" }), TableText(choicesOf(false, true)).fitted("Träger", 7));
    EXPECT_EQ((Lines{ "Traege", "r" }), TableText(choicesOf(false, true)).fitted("Träger", 6));
    EXPECT_EQ((Lines{ "Tra..." }), TableText(choicesOf(true, true)).fitted("Träger", 6));
    EXPECT_EQ((Lines{ "m2" }), TableText(choicesOf(false, true)).wrapped("m²", 0));
}
}
