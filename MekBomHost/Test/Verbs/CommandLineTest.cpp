#include "CommandLine.h"

#include "Support/HostTestSupport.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

namespace mekbom
{
namespace
{
CommandLine::Outcome parse(std::vector<const char*> arguments)
{
    arguments.insert(arguments.begin(), "mekbom");
    return CommandLine::parse(static_cast<int>(arguments.size()), arguments.data());
}

std::string faultWith(const std::vector<const char*>& arguments)
{
    return faultOf([&arguments] { parse(arguments); });
}
}

TEST(CommandLineTest, WithoutOptionsEverythingIsAsShipped)
{
    const CommandLine::Outcome outcome = parse({ "report" });

    EXPECT_TRUE(outcome.isReport);
    EXPECT_EQ("", outcome.options.data);
    EXPECT_EQ("", outcome.options.templateName);
    EXPECT_EQ("-", outcome.options.output);
    EXPECT_EQ("metric", outcome.options.units);
    EXPECT_EQ("", outcome.options.settingsFile);
    EXPECT_TRUE(outcome.options.inputUnits.empty());
    EXPECT_TRUE(outcome.options.unitChoices.empty());
    EXPECT_TRUE(outcome.options.settings.empty());
}

TEST(CommandLineTest, OptionsAreRead)
{
    const ReportOptions options = parse({ "report", "--data", "-", "--template", "list.json", "--units", "imperial",
                                          "-o", "a.txt", "--input-unit", "%Paint=m2", "--input-unit=Length=ft" })
                                      .options;

    EXPECT_EQ("-", options.data);
    EXPECT_EQ("list.json", options.templateName);
    EXPECT_EQ("imperial", options.units);
    EXPECT_EQ("a.txt", options.output);
    EXPECT_EQ((std::vector<std::pair<std::string, std::string>>{ { "%Paint", "m2" }, { "%Length", "ft" } }),
              options.inputUnits);
    EXPECT_EQ("b.txt", parse({ "report", "--output", "b.txt" }).options.output);
    EXPECT_EQ("shop.ini", parse({ "report", "--units", "shop.ini" }).options.units);
}

TEST(CommandLineTest, UnitsAndSettingsAreReadOneByOne)
{
    const ReportOptions options = parse({ "report", "--unit", "length=ft-in/16", "--unit=weight=lb/1", "--settings",
                                          "shop.ini", "--setting", "C40_SuppressZeroFeet=0" })
                                      .options;

    EXPECT_EQ((std::vector<std::pair<std::string, std::string>>{ { "length", "ft-in/16" }, { "weight", "lb/1" } }),
              options.unitChoices);
    EXPECT_EQ("shop.ini", options.settingsFile);
    EXPECT_EQ((std::vector<std::pair<std::string, std::string>>{ { "C40_SuppressZeroFeet", "0" } }), options.settings);
    EXPECT_EQ("2 --unit: found \"length\", expected KIND=UNIT such as length=ft-in/16\n",
              faultWith({ "report", "--unit", "length" }));
    EXPECT_EQ("2 --setting: found \"=1\", expected NAME=NUMBER such as C40_SuppressZeroFeet=0\n",
              faultWith({ "report", "--setting", "=1" }));
}

TEST(CommandLineTest, HelpShowsExamplesAndStatuses)
{
    for (const std::vector<const char*>& arguments :
         { std::vector<const char*>{ "--help" }, { "report", "--help" }, { "-h" }, { "report", "-h" } })
    {
        const CommandLine::Outcome outcome = parse(arguments);
        EXPECT_FALSE(outcome.isReport);
        for (const char* const text :
             { "mekbom report --data parts.csv", "Exit status", " 70  internal fault", "cutting-list" })
            EXPECT_NE(std::string::npos, outcome.text.find(text)) << text;
    }
    EXPECT_NE(std::string::npos, parse({ "report", "--help" }).text.find("Usage: mekbom report [OPTIONS]"));
}

TEST(CommandLineTest, UnitsAreAskedFor)
{
    EXPECT_TRUE(parse({ "units" }).isAboutUnits);
    EXPECT_FALSE(parse({ "units" }).isReport);
    EXPECT_FALSE(parse({ "report" }).isAboutUnits);
    EXPECT_EQ(UnitsOptions::kList, parse({ "units" }).units.task);
    EXPECT_EQ(UnitsOptions::kRead, parse({ "units", "read", "7'" }).units.task);
    EXPECT_EQ("7'", parse({ "units", "read", "7'" }).units.value);

    const UnitsOptions units = parse({ "units", "convert", "-2286", "mm", "ft-in/16", "--suppress-zeros", "0",
                                       "--suppress-zero-feet=0", "--suppress-zero-inch", "0", "--separator", "minus" })
                                   .units;
    EXPECT_EQ(UnitsOptions::kConvert, units.task);
    EXPECT_EQ("-2286", units.value);
    EXPECT_EQ("mm", units.from);
    EXPECT_EQ("ft-in/16", units.to);
    EXPECT_EQ(0, units.suppressLastZeros);
    EXPECT_EQ(0, units.suppressZeroFeet);
    EXPECT_EQ(0, units.suppressZeroInch);
    EXPECT_EQ("minus", units.separator);
}

TEST(CommandLineTest, EveryCommandHasItsHelp)
{
    for (const std::vector<const char*>& arguments :
         { std::vector<const char*>{ "units", "--help" }, { "units", "convert", "--help" }, { "units", "read", "-h" } })
    {
        const CommandLine::Outcome outcome = parse(arguments);
        EXPECT_FALSE(outcome.isAboutUnits);
        EXPECT_NE(std::string::npos, outcome.text.find("mekbom units read")) << outcome.text;
    }
    EXPECT_NE(std::string::npos,
              parse({ "units", "convert", "-h" }).text.find("Usage: mekbom units convert [OPTIONS]"));
}

TEST(CommandLineTest, TheVersionIsShown)
{
    EXPECT_EQ(0u, parse({ "--version" }).text.find("mekbom "));
}

TEST(CommandLineTest, WrongUsageIsNamed)
{
    EXPECT_EQ("2 A subcommand is required; see mekbom --help\n", faultWith({}));
    for (const std::vector<const char*>& arguments : { std::vector<const char*>{ "print" },
                                                       { "report", "--dta", "x" },
                                                       { "report", "parts.csv" },
                                                       { "report", "--data" },
                                                       { "report", "--data", "a", "--data", "b" },
                                                       { "report", "--input-unit", "%Paint=m2", "b" } })
        EXPECT_EQ(0u, faultWith(arguments).find("2 ")) << faultWith(arguments);
}

TEST(CommandLineTest, InputUnitsNameTokenAndUnit)
{
    for (const char* const text : { "Paint", "=m2", "Paint=", "=" })
        EXPECT_EQ("2 --input-unit: found \"" + std::string(text) + "\", expected TOKEN=UNIT such as %Paint=m2\n",
                  faultWith({ "report", "--input-unit", text }));
}
}
