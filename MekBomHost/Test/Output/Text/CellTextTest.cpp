#include "CellText.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace mekbom
{
namespace
{
using Lines = std::vector<std::string>;

OutputChoices choices(bool cuts, bool isAscii)
{
    OutputChoices choices;
    choices.cutsTexts = cuts;
    choices.isAscii = isAscii;
    return choices;
}
}

TEST(CellTextTest, TextsAreWrappedUnlessTheyAreToBeCut)
{
    EXPECT_EQ((Lines{ "Träger", "links" }), CellText(choices(false, false)).fitted("Träger links", 8));
    EXPECT_EQ((Lines{ "Träger …" }), CellText(choices(true, false)).fitted("Träger links", 8));
    EXPECT_EQ((Lines{ "one…" }), CellText(choices(true, false)).fitted("one\ntwo", 0));
}

TEST(CellTextTest, HeadingsAreNeverCut)
{
    EXPECT_EQ((Lines{ "Träger", "links" }), CellText(choices(true, false)).wrapped("Träger links", 8));
}

TEST(CellTextTest, TheWidthIsThatOfWhatIsWritten)
{
    EXPECT_EQ((Lines{ "Traeger" }), CellText(choices(false, true)).fitted("Träger", 7));
    EXPECT_EQ((Lines{ "Traege", "r" }), CellText(choices(false, true)).fitted("Träger", 6));
    EXPECT_EQ((Lines{ "Tra..." }), CellText(choices(true, true)).fitted("Träger", 6));
    EXPECT_EQ((Lines{ "m2" }), CellText(choices(false, true)).wrapped("m²", 0));
}
}
