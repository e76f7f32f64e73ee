#include "ManNotes.h"

#include <gtest/gtest.h>

namespace mekbom
{
namespace
{
const char* const kNotes = "Prints a line\n"
                           "for each column.\n"
                           "\n"
                           "And no more.\n"
                           "\n"
                           "Settings\n"
                           "  --zero-feet     0 shows 0' 6\"\n"
                           "  --zero-inch     0 shows 7' 0\"\n"
                           "  Variables count\n"
                           "  too.\n"
                           "\n"
                           "Examples\n"
                           "  steel print a.csv  # twice\n"
                           "  steel print .b\n"
                           "\n"
                           "Exit status\n"
                           "   0  done";
}

TEST(ManNotesTest, HeadingsBecomeSections)
{
    EXPECT_EQ(".PP\n"
              "Prints a line\n"
              "for each column.\n"
              ".PP\n"
              "And no more.\n"
              ".SH SETTINGS\n"
              ".TP\n\\fB\\-\\-zero\\-feet\\fR\n0 shows 0\\(aq 6\\(dq\n"
              ".TP\n\\fB\\-\\-zero\\-inch\\fR\n0 shows 7\\(aq 0\\(dq\n"
              ".PP\n"
              "Variables count\n"
              "too.\n"
              ".SH EXAMPLES\n"
              ".nf\n"
              "steel print a.csv  # twice\n"
              "steel print .b\n"
              ".fi\n"
              ".SH EXIT STATUS\n"
              ".TP\n\\fB0\\fR\ndone\n",
              ManNotes::sectionsOf(kNotes));
}

TEST(ManNotesTest, HeadingsWithinASectionAreWords)
{
    EXPECT_EQ(".PP\n\\fBData\\fR\n.br\nA list\nof parts.\n", ManNotes::paragraphsOf("Data\n  A list\n  of parts."));
    EXPECT_EQ(".PP\n\\fBExamples\\fR\n.br\n.nf\nsteel\n.fi\n", ManNotes::paragraphsOf("Examples\n  steel"));
    EXPECT_EQ(".PP\n\\fBExit status\\fR\n.TP\n\\fB0\\fR\ndone\n", ManNotes::paragraphsOf("Exit status\n  0  done"));
}

TEST(ManNotesTest, NoNotesAreNothing)
{
    EXPECT_EQ("", ManNotes::sectionsOf(""));
    EXPECT_EQ("", ManNotes::paragraphsOf(""));
}
}
