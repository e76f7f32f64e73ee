#include "Configuration.h"

#include "Support/HostTestSupport.h"

#include <gtest/gtest.h>

#include <string>

namespace mekbom
{
namespace
{
using Pairs = Configuration::Pairs;

Configuration configured(const std::string& ofUser, const std::string& ofFolder = std::string())
{
    Configuration configuration;
    configuration.read({ "config.ini", ofUser });
    if (!ofFolder.empty())
        configuration.read({ "mekbom.ini", ofFolder });
    return configuration;
}

std::string faultIn(const std::string& text)
{
    return faultOf([&text] { configured(text); });
}

std::string noteOf(const Configuration& configuration)
{
    const auto note = configuration.noteOfUnits();
    return note ? messageOf(*note) : std::string();
}
}

TEST(ConfigurationTest, WithoutFilesListsAreWhatTheyAre)
{
    const Configuration configuration;

    EXPECT_EQ("metric", configuration.units());
    EXPECT_TRUE(configuration.unitChoices().empty());
    EXPECT_TRUE(configuration.settings().empty());
    EXPECT_EQ(0U, configuration.output().given);
    EXPECT_TRUE(configuration.files().empty());
    EXPECT_EQ("", noteOf(configuration));
}

TEST(ConfigurationTest, EveryKeyIsTaken)
{
    const Configuration configuration = configured("; ours\n[Lists]\n"
                                                   "length = ft-in/16\nunits = imperial\n"
                                                   "C40_SuppressZeroFeet = 0\n"
                                                   "output-delimiter = ;\noutput-decimal = ,\n"
                                                   "output-encoding = utf-8-bom\npaper = letter\n");

    EXPECT_EQ("imperial", configuration.units());
    EXPECT_EQ(Pairs({ { "length", "ft-in/16" } }), configuration.unitChoices());
    EXPECT_EQ(Pairs({ { "C40_SuppressZeroFeet", "0" } }), configuration.settings());
    EXPECT_EQ(';', configuration.output().delimiter);
    EXPECT_EQ(',', configuration.output().decimalSign);
    EXPECT_TRUE(configuration.output().encoding.hasMark);
    EXPECT_EQ(kLetterPaper, configuration.output().paper);
    EXPECT_EQ(unsigned{ OutputChoices::kDelimiter | OutputChoices::kDecimalSign | OutputChoices::kEncoding |
                        OutputChoices::kPaper },
              configuration.output().given);
}

TEST(ConfigurationTest, TheNearerFileWins)
{
    const Configuration configuration =
        configured("C40_SuppressZeroFeet = 0\noutput-decimal = ,\npaper = letter\n", "paper = a4\n");

    EXPECT_EQ(kA4Paper, configuration.output().paper);
    EXPECT_EQ(',', configuration.output().decimalSign);
    EXPECT_EQ(std::vector<std::string>({ "config.ini", "mekbom.ini" }), configuration.files());
}

// A shop that works in metric units would get weights in pounds on account of a file in somebody's home.
TEST(ConfigurationTest, UnitsOfTheNearerFileLeaveNothingOfTheOther)
{
    const Configuration kinds = configured("units = imperial\nweight = kg/1\n", "length = m/2\n");
    const Configuration base = configured("units = imperial\nweight = lb/1\n", "length = m/2\nunits = metric\n");

    EXPECT_EQ("imperial", kinds.units());
    EXPECT_EQ(Pairs({ { "weight", "kg/1" }, { "length", "m/2" } }), kinds.unitChoices());
    EXPECT_EQ("metric", base.units());
    EXPECT_EQ(Pairs({ { "length", "m/2" } }), base.unitChoices());
}

TEST(ConfigurationTest, UnitsOfFilesAreTold)
{
    const std::string remedy = ": --units takes others, --no-config reads no such file";

    EXPECT_EQ("units of config.ini: imperial" + remedy, noteOf(configured("units = imperial\n")));
    EXPECT_EQ("units of config.ini and mekbom.ini: imperial, weight = kg/1, length = m/2" + remedy,
              noteOf(configured("units = imperial\nweight = kg/1\n", "length = m/2\n")));
    EXPECT_EQ("units of mekbom.ini: length = m/2" + remedy,
              noteOf(configured("units = imperial\n", "units = metric\nlength = m/2\n")));
}

TEST(ConfigurationTest, UnitsThatListsHaveAnywayAreNotTold)
{
    EXPECT_EQ("", noteOf(configured("units = metric\npaper = a4\n")));
    EXPECT_EQ("", noteOf(configured("units = imperial\n", "units = metric\n")));
}

TEST(ConfigurationTest, UnknownKeysAreRefused)
{
    const std::string keys = "one of units, length, angle, weight, area, weight-per-length, area-per-length, density, "
                             "output-delimiter, output-decimal, output-encoding, paper, C0_BOMSuppressLastZeros, "
                             "C40_SuppressZeroFeet, C40_SuppressZeroInch, C40_ShowMinusBetweenFeetAndInch";

    EXPECT_EQ("3 config.ini:2: found \"unit\", expected " + keys + ": did you mean \"units\"?\n",
              faultIn("paper = a4\nunit = imperial\n"));
    EXPECT_EQ("3 config.ini:1: found \"decimal\", expected " + keys + "\n", faultIn("decimal = ,\n"));
}

TEST(ConfigurationTest, ValuesThatAKeyCannotHaveAreRefused)
{
    EXPECT_EQ("3 config.ini:1: found \"imprial\" for units, expected metric or imperial: single kinds have lines of "
              "their own, such as length = ft-in/16\n",
              faultIn("units = imprial\n"));
    EXPECT_EQ(0U, faultIn("\nlength = lb\n").find("3 config.ini:2: found \"lb\", expected "));
    EXPECT_EQ("3 config.ini:1: found \"0.5\" for C40_SuppressZeroFeet, expected a whole number\n",
              faultIn("C40_SuppressZeroFeet = 0.5\n"));
    EXPECT_EQ("3 config.ini:1: found \"comma\" for output-decimal, expected one of . ,\n",
              faultIn("output-decimal = comma\n"));
    EXPECT_EQ("3 config.ini:1: found \":\" for output-delimiter, expected one of , ; tab |\n",
              faultIn("output-delimiter = :\n"));
    EXPECT_EQ("3 config.ini:1: found \"latin1\" for output-encoding, expected one of utf-8 utf-8-bom utf-16le "
              "windows-1252\n",
              faultIn("output-encoding = latin1\n"));
    EXPECT_EQ("3 config.ini:1: found \"A4\" for paper, expected one of a4 letter\n", faultIn("paper = A4\n"));
}

TEST(ConfigurationTest, LinesThatAreNoneAreRefused)
{
    EXPECT_EQ("3 config.ini:1: found \"imperial\", expected a line such as key = value\n", faultIn("imperial\n"));
    EXPECT_NE("", faultIn("paper = a4\npaper = letter\n"));
    EXPECT_NE("", faultIn("paper = \xFF\n"));
}
}
