#include "TextColumns.h"

#include "Support/EvaluatedParts.h"
#include "Support/HostTestSupport.h"

#include <gtest/gtest.h>

#include <string>

namespace mekbom
{
namespace
{
// Details of a name and a weight, whose columns are described by `columns`.
std::string details(const std::string& columns)
{
    return R"({ "columns": [ )" + columns + R"( ], "sections": [ { "type": "kReportHeader", "children": [
        { "type": "kDetails", "tuples": [ { "token": "%Name" }, { "token": "%Weight" } ] } ] } ] })";
}

std::vector<int> widthsOf(const std::string& columns, const std::vector<Part>& parts)
{
    std::vector<int> widths;
    const EvaluatedParts evaluated(details(columns), parts);
    for (const TextColumn& column : TextColumns::of(evaluated.report()))
        widths.push_back(column.width);
    return widths;
}

using Widths = std::vector<int>;
}

TEST(TextColumnsTest, AColumnIsAsWideAsItsWidestTextOrHeading)
{
    EXPECT_EQ((Widths{ 6, 11 }), widthsOf("", { { L"HEA200", L"", 1 }, { L"L50", L"", 2 } })) << "Weight [kg]";
    EXPECT_EQ((Widths{ 4, 11 }), widthsOf("", { { L"L50", L"", 1 } })) << "Name";
}

TEST(TextColumnsTest, WidthsCountColumnsOfATerminal)
{
    EXPECT_EQ((Widths{ 7, 11 }), widthsOf("", { { L"Träger2", L"", 1 } }));
    EXPECT_EQ((Widths{ 6, 11 }), widthsOf("", { { L"柱脚板", L"", 1 } }));
}

TEST(TextColumnsTest, TheTemplatesWidthHoldsButForNumbersAndUnits)
{
    const char* const narrow = R"({ "token": "%Name", "width": 5 }, { "token": "%Weight", "label": "W", "width": 2 })";

    EXPECT_EQ((Widths{ 5, 4 }), widthsOf(narrow, { { L"IPE360", L"", 1 } })) << "[kg] is not cut";
    EXPECT_EQ((Widths{ 5, 7 }), widthsOf(narrow, { { L"IPE360", L"", 1234.56 } }));
    EXPECT_EQ((Widths{ 5, 4 }), widthsOf(narrow, { { L"Träger", L"", 1 } }));
}

namespace
{
// The widths of a list of names and weights that has to fit into `width`.
Widths fitted(const std::string& columns, const std::vector<Part>& parts, int width)
{
    OutputChoices choices;
    choices.width = width;
    Widths widths;
    const EvaluatedParts evaluated(details(columns), parts);
    for (const TextColumn& column : TextColumns::of(evaluated.report(), choices))
        widths.push_back(column.width);
    return widths;
}
}

TEST(TextColumnsTest, WhereDecimalPointsStandBelowEachOtherBothSidesHaveRoom)
{
    EXPECT_EQ((Widths{ 4, 8 }), widthsOf(R"({ "token": "%Name" }, { "token": "%Weight", "label": "W", "width": 1 })",
                                         { { L"A", L"", 12345 }, { L"B", L"", 0.25 } }));
}

TEST(TextColumnsTest, ATableThatFitsStaysAsItIs)
{
    EXPECT_EQ((Widths{ 16, 11 }), fitted("", { { L"Base plate, long", L"", 1 } }, 29));
}

TEST(TextColumnsTest, TheWidestColumnsGiveWayFirst)
{
    EXPECT_EQ((Widths{ 11, 11 }), fitted("", { { L"Base plate, long", L"", 1 } }, 24));
    EXPECT_EQ((Widths{ 10, 10 }), fitted("", { { L"Base plate, long", L"", 1 } }, 22)) << "Weight / [kg]";
    EXPECT_EQ((Widths{ 8, 6 }), fitted("", { { L"Base plate, long", L"", 1 } }, 16));
}

TEST(TextColumnsTest, NumbersAreNotNarrowed)
{
    EXPECT_EQ((Widths{ 8, 10 }), fitted("", { { L"Base plate, long", L"", 1234567.89 } }, 20));
    EXPECT_EQ("2 --width: found 19, expected 20 or more, which numbers and the words of headings need\n",
              faultOf(
                  [] {
                      fitted("", { { L"Base plate, long", L"", 1234567.89 } }, 19);
                  }));
}
}
