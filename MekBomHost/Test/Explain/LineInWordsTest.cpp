#include "LineInWords.h"

#include "Support/ExplainSupport.h"
#include "Support/HostTestSupport.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <string>

namespace mekbom
{
namespace
{
const std::string kMerge = partsByMaterial("\"equalLines\": \"merge\", ");
const std::string kCount = partsByMaterial("\"equalLines\": \"count\", ");

std::string wordsAbout(const std::string& templateText, int line)
{
    const ExplainedParts parts(templateText, kFiveParts);
    return LineInWords(parts.explained()).text(line);
}

// The additions among the words, "1 + 1 + 4 = 6 kg", each as far as it is numbers.
std::vector<std::string> additionsIn(const std::string& words)
{
    const std::string kBegin = " added up: ";
    std::vector<std::string> additions;
    for (std::size_t begin = words.find(kBegin); begin != std::string::npos; begin = words.find(kBegin, begin + 1))
        additions.push_back(words.substr(begin + kBegin.size(), words.find('\n', begin) - begin - kBegin.size()));
    return additions;
}

// What the summands come to, read as decimal numbers; of those that are left out, what stands in brackets.
double sumOf(const std::string& addition)
{
    const std::string summands = addition.substr(0, addition.find(" = "));
    double sum = 0;
    for (std::size_t begin = 0; begin != std::string::npos;)
    {
        const std::size_t end = summands.find(" + ", begin);
        const std::string summand = summands.substr(begin, end - begin);
        const std::size_t bracket = summand.find('(');
        sum += std::strtod(summand.c_str() + (bracket == std::string::npos ? 0 : bracket + 1), nullptr);
        begin = end == std::string::npos ? end : end + 3;
    }
    return sum;
}

double totalOf(const std::string& addition)
{
    return std::strtod(addition.c_str() + addition.find(" = ") + 3, nullptr);
}

// Checks every addition about every line: the summands as they read add up to the total, but for the rounding of each,
// and where the words do not speak of rounding, to the last digit; and the total is one that the line shows.
int checkAdditions(const ExplainedParts& parts)
{
    const bool isMetric = parts.explained().units.getUnit(VorUnitsTransformArray::kWeight).unit() ==
                          VorUnitsManager::metric().getUnit(VorUnitsTransformArray::kWeight).unit();
    const double halfADigit = isMetric ? 0.005 : 0.05; // of kg with two decimals, of lb with one
    int numChecked = 0;
    ReportLines lines = parts.report().lines();
    ReportLine line;
    for (int number = 1; lines.next(line); ++number)
        for (const std::string& addition : additionsIn(LineInWords(parts.explained()).text(number)))
        {
            const bool isRounded = addition.find("rounded") != std::string::npos;
            const auto numPlus = std::count(addition.begin(), addition.end(), '+');
            EXPECT_NEAR(totalOf(addition), sumOf(addition),
                        isRounded ? halfADigit * static_cast<double>(numPlus + 2) : 1e-6)
                << addition;
            EXPECT_TRUE(std::any_of(line.texts.begin(), line.texts.end(),
                                    [&addition](const ShownText& text)
                                    {
                                        return text.length > 0 &&
                                               std::fabs(std::strtod(std::string(text.view()).c_str(), nullptr) -
                                                         totalOf(addition)) < 1e-9;
                                    }))
                << addition;
            ++numChecked;
        }
    return numChecked;
}
}

TEST(LineInWordsTest, ALineOfDetailsHasItsRowAndItsNeighbours)
{
    EXPECT_EQ("Line 4, level 2, details: Name \"PL12\", Pieces \"3\", Each [kg] \"3.58\", Weight [kg] \"10.74\"\n"
              "Made by row 5.\n"
              "Weight: %Weight*%Quantity, with %Weight 3.58 kg and %Quantity 3, is 10.74 kg\n"
              "The line before it, line 3, differs in %Name: \"PL10\", here \"PL12\", %Quantity: \"4\", here \"3\", "
              "%Weight: \"0.88\", here \"3.58\" and %Formula:%Weight*%Quantity: \"3.52\", here \"10.74\".\n",
              wordsAbout(kMerge, 4));
}

TEST(LineInWordsTest, MergedRowsAreInNoTotal)
{
    const std::string line = wordsAbout(kMerge, 2);
    const std::string footer = wordsAbout(kMerge, 5);

    EXPECT_NE(std::string::npos, line.find("Made by row 2 (2A1).\nMerged into it, and in no total: row 3 (2A2).\n"));
    EXPECT_NE(std::string::npos, line.find("with %Weight 366.59 kg and %Quantity 1, is 366.59 kg\n")) << line;
    EXPECT_EQ("Line 5, level 1, footer: \"Sum\", Pieces \"8\", Weight [kg] \"380.85\"\n"
              "Counts row 2 (2A1), row 4 (2A3) and row 5.\n"
              "Pieces, %Quantity added up: 1 + 4 + 3 = 8\n"
              "Weight, %Weight*%Quantity added up: 366.59 + 3.52 + 10.74 = 380.85 kg\n",
              footer);
}

TEST(LineInWordsTest, CountedRowsAreAddedUp)
{
    const std::string line = wordsAbout(kCount, 2);
    const std::string footer = wordsAbout(kCount, 5);

    EXPECT_NE(std::string::npos, line.find("Made by row 2 (2A1).\n"
                                           "Counted into it: row 3 (2A2).\n"
                                           "Pieces, %Quantity added up: 1 + 1 = 2\n"
                                           "Weight, %Weight*%Quantity added up: 366.59 + 366.59 = 733.18 kg\n"))
        << line;
    EXPECT_NE(std::string::npos, footer.find("366.59 + 366.59 + 3.52 + 10.74 = 747.44 kg\n")) << footer;
}

// Pieces and what grows with them may differ among rows that are counted into one line, so they keep none apart.
TEST(LineInWordsTest, WhatIsCountedKeepsNoLinesApart)
{
    const std::string line = wordsAbout(kCount, 3);

    EXPECT_NE(std::string::npos, line.find("The line before it, line 2, differs in %Name: \"IPE240\", here \"PL10\" "
                                           "and %Weight: \"366.59\", here \"0.88\".\n"))
        << line;
}

TEST(LineInWordsTest, AHeaderHasTheRowThatOpenedIt)
{
    EXPECT_EQ("Line 1, level 1, header: Material \"S235\"\nOpened by row 2 (2A1).\n", wordsAbout(kMerge, 1));
}

TEST(LineInWordsTest, ALineOutOfRangeIsRefusedWithTheNumberOfLines)
{
    const ExplainedParts parts(kMerge, kFiveParts);
    const LineInWords words(parts.explained());

    EXPECT_EQ("2 --line: found 10, expected a line of the list, from 1 to 9\n", faultOf([&] { words.text(10); }));
    EXPECT_EQ("2 --line: found 0, expected a line of the list, from 1 to 9\n", faultOf([&] { words.text(0); }));
    EXPECT_EQ("2 --line: found -1, expected a line of the list, from 1 to 9\n", faultOf([&] { words.text(-1); }));
}

TEST(LineInWordsTest, TheOverviewNumbersAllLines)
{
    const ExplainedParts parts(kMerge, kFiveParts);

    const std::string overview = LineInWords(parts.explained()).overview();

    EXPECT_EQ(0U, overview.find("Line 1, level 1, header: Material \"S235\"\nLine 2, level 2, details: "));
    EXPECT_NE(std::string::npos, overview.find("Line 9, level 0, footer: \"Total\", Pieces \"10\""));
}

TEST(LineInWordsTest, AdditionsComeToTheTotalsThatArePrinted)
{
    for (const std::string units : { "metric", "imperial" })
        for (const char* const equalLines : { "merge", "count", "keep" })
        {
            SCOPED_TRACE(units + " " + equalLines);
            const ExplainedParts parts(partsByMaterial("\"equalLines\": \"" + std::string(equalLines) + "\", "),
                                       kFiveParts, units);

            EXPECT_EQ(equalLines == std::string("count") ? 8 : 6, checkAdditions(parts));
        }
}

TEST(LineInWordsTest, AdditionsOfManyRowsComeToTheTotalsThatArePrinted)
{
    std::string text = "%Name,%Material,%Quantity,%Weight [kg]\n";
    for (int i = 0; i < 200; ++i)
        text += "P" + std::to_string(i / 3) + (i % 2 == 0 ? ",S235," : ",S355,") + std::to_string(i % 5 + 1) + "," +
                std::to_string(i) + ".377\n";
    for (const std::string units : { "metric", "imperial" })
        for (const char* const equalLines : { "merge", "count" })
        {
            SCOPED_TRACE(units + " " + equalLines);
            EXPECT_LE(6, checkAdditions(ExplainedParts(
                             partsByMaterial("\"equalLines\": \"" + std::string(equalLines) + "\", "), text, units)));
        }
}
}
