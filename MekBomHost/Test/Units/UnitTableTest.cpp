#include "UnitTable.h"

#include "UnitKinds.h"
#include "Utf8.h"

#include "MekRoots/Exp/VorUnitsTransformArray.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>
#include <string>
#include <vector>

namespace mekbom
{
namespace
{
// The lines of the table up to the blank line behind them, the headings first.
std::vector<std::string> linesOfTable()
{
    std::istringstream text(UnitTable::text());
    std::vector<std::string> lines;
    for (std::string line; std::getline(text, line) && !line.empty();)
        lines.push_back(line);
    return lines;
}

std::string wordOf(const std::string& line, int index)
{
    std::istringstream words(line);
    std::string word;
    for (int i = 0; i <= index; ++i)
        words >> word;
    return word;
}
}

TEST(UnitTableTest, EveryUnitHasItsLine)
{
    const std::vector<std::string> lines = linesOfTable();

    EXPECT_EQ(static_cast<std::size_t>(VorUnitsTransformArray::numUnits()) + 1, lines.size());
    EXPECT_EQ(0U, lines[0].find("Kind "));
}

TEST(UnitTableTest, KindsFollowInTheOrderInWhichTheyAreListed)
{
    std::vector<std::string> kinds;
    const std::vector<std::string> lines = linesOfTable();
    for (std::size_t i = 1; i < lines.size(); ++i)
        if (kinds.empty() || kinds.back() != wordOf(lines[i], 0))
            kinds.push_back(wordOf(lines[i], 0));

    ASSERT_EQ(UnitKinds::all().size(), kinds.size());
    for (std::size_t i = 0; i < kinds.size(); ++i)
        EXPECT_EQ(UnitKinds::all()[i].name, kinds[i]);
}

TEST(UnitTableTest, AFactorIsOneOfTheUnitInTheUnitOfTheModel)
{
    const std::vector<std::string> lines = linesOfTable();
    const auto lineOf = [&lines](const std::string& symbol)
    {
        return *std::find_if(lines.begin(), lines.end(),
                             [&symbol](const std::string& line) { return wordOf(line, 1) == symbol; });
    };

    EXPECT_NE(std::string::npos, lineOf("in").find(" 25.4 mm "));
    EXPECT_NE(std::string::npos, lineOf("ft-in").find(" inch: 25.4 mm "));
    EXPECT_NE(std::string::npos, lineOf("kg").find(" 1 kg "));
}

TEST(UnitTableTest, ColumnsStandBelowTheirHeadings)
{
    const std::vector<std::string> lines = linesOfTable();
    const auto textAt = [](const std::string& line, int column)
    {
        std::string_view rest = line;
        while (column-- > 0)
            Utf8::takeCodePoint(rest);
        return rest;
    };
    const int symbolColumn = static_cast<int>(lines[0].find("Symbol"));

    for (const std::string& line : lines)
        EXPECT_EQ(0U, textAt(line, symbolColumn).find(wordOf(line, 1))) << line;
}
}
