#include "ListOption.h"

#include <CLI/CLI.hpp>

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace mekbom
{
namespace
{
using Words = std::vector<std::string>;

Words wordsIn(const std::string& commandLine)
{
    CLI::App app;
    ListOption option("--allow", "CODE,...");
    option.declareOn(app, "Mistakes to pass over");
    app.parse(commandLine);
    return option.words();
}
}

TEST(ListOptionTest, CommasAndFurtherOptionsAddWords)
{
    EXPECT_EQ((Words{ "MB105", "MB209", "MB307" }), wordsIn("--allow MB105,MB209 --allow=MB307"));
    EXPECT_EQ(Words(), wordsIn(""));
}

TEST(ListOptionTest, TheNextWordWasTakenForOneOfTheList)
{
    CLI::App app;
    ListOption option("--allow", "CODE,...");
    option.declareOn(app, "Mistakes to pass over");
    std::string file;
    app.add_option("file", file);

    app.parse("--allow MB105 list.json");

    EXPECT_EQ(Words{ "MB105" }, option.words());
    EXPECT_EQ("list.json", file);
}

TEST(ListOptionTest, HelpShowsTheForm)
{
    CLI::App app;
    ListOption option("--allow", "CODE,...");

    option.declareOn(app, "Mistakes to pass over");

    EXPECT_NE(std::string::npos, app.help().find("--allow CODE,...")) << app.help();
}
}
