#include "WordOption.h"

#include <gtest/gtest.h>

#include <string>

namespace mekbom
{
namespace
{
const WordChoices::Choices<int> kNumbers = { { "one", 1 }, { "two", 2 } };

int numberIn(const std::string& commandLine)
{
    CLI::App app;
    int number = 0;
    WordOption::declare(app, "--number", "WORD", "A number", kNumbers, [&number](int value) { number = value; });
    app.parse(commandLine);
    return number;
}
}

TEST(WordOptionTest, EachWordStandsForItsValue)
{
    EXPECT_EQ(1, numberIn("--number one"));
    EXPECT_EQ(2, numberIn("--number=two"));
    EXPECT_EQ(0, numberIn(""));
}

TEST(WordOptionTest, AnotherWordIsRefusedWithThoseThereAre)
{
    try
    {
        numberIn("--number three");
        FAIL() << "nothing was refused";
    }
    catch (const CLI::ValidationError& error)
    {
        EXPECT_EQ("--number: \"three\" is none of one two", std::string(error.what()));
    }
}
}
