#include "AllVerbs.h"

#include <CLI/CLI.hpp>

#include <gtest/gtest.h>

#include <set>
#include <string>

namespace mekbom
{
TEST(AllVerbsTest, EveryVerbOfTheProgramHasItsHelp)
{
    CLI::App app;
    VerbList verbs = allVerbs();

    verbs.declareOn(app);

    std::set<std::string> names;
    for (const CLI::App* const pSubcommand : app.get_subcommands(nullptr))
    {
        names.insert(pSubcommand->get_name());
        EXPECT_NE("", pSubcommand->get_description()) << pSubcommand->get_name();
        EXPECT_NE("", pSubcommand->get_footer()) << pSubcommand->get_name();
    }
    for (const char* const name : { "report", "demo", "describe", "new-list", "tokens", "formula", "units", "help" })
        EXPECT_EQ(1u, names.count(name)) << name;
}
}
