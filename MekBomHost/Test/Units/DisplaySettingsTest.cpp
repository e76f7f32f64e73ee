#include "DisplaySettings.h"

#include "FindingCodes.h"

#include "Support/HostTestSupport.h"

#include "MekRoots/Exp/KTRepositoryProxy.h"
#include "MekRoots/Test/Support/TestSupport.h"

#include <gtest/gtest.h>

#include <iterator>
#include <string>

namespace mekbom
{
namespace
{
using Origins = DisplaySettings::Origins;

// The numbers of all settings in their order: "1 1 1 0".
std::string numbersOf(const DisplaySettings& settings)
{
    std::string numbers;
    for (const int number : { settings.suppressLastZeros, settings.suppressZeroFeet, settings.suppressZeroInch,
                              settings.showMinusBetweenFeetAndInch })
        numbers += (numbers.empty() ? "" : " ") + std::to_string(number);
    return numbers;
}

std::string numbersFrom(const Origins& origins)
{
    FindingList findings;
    return numbersOf(DisplaySettings::read(origins, findings));
}

Origins fromFile(const std::string& text)
{
    return { {}, {}, NamedText{ "shop.ini", text }, {} };
}

std::string faultFrom(const Origins& origins)
{
    return faultOf([&origins] { numbersFrom(origins); });
}

VorString lengthShownBy(const DisplaySettings& settings, double millimetres)
{
    const VorUnitsManager imperial = VorUnitsManager::imperial();
    VorBomTemplateUnits units;
    units.setUnits(&imperial);
    settings.applyTo(units);
    return units.getDisplayString(VorBomTemplateUnits::kDistanceUnit, millimetres);
}
}

TEST(DisplaySettingsTest, WithoutAnythingNumbersAreShownAsTheEngineDoes)
{
    EXPECT_EQ("1 1 1 0", numbersFrom({}));
}

TEST(DisplaySettingsTest, NamesAreThoseOfTheRepository)
{
    const std::vector<std::string> names = DisplaySettings::names();

    ASSERT_EQ(std::size(KTRepositoryProxy::kDisplayKeys), names.size());
    for (std::size_t i = 0; i < names.size(); ++i)
        EXPECT_EQ(toUtf8(KTRepositoryProxy::kDisplayKeys[i]), names[i]);
}

TEST(DisplaySettingsTest, FilesComeOverTheEnvironmentAndTheConfigurationAndOptionsOverAll)
{
    Origins origins;
    origins.configuration = { { "C40_SuppressZeroFeet", "5" }, { "C40_ShowMinusBetweenFeetAndInch", "1" } };
    EXPECT_EQ("1 5 1 1", numbersFrom(origins));

    origins.configuration.pop_back();
    origins.environment = { { "C40_SuppressZeroFeet", "4" }, { "HOME", "/" } };
    EXPECT_EQ("1 4 1 0", numbersFrom(origins));

    origins.file = NamedText{ "shop.ini", "C40_SuppressZeroFeet = 2\nC40_SuppressZeroInch = 0\n" };
    EXPECT_EQ("1 2 0 0", numbersFrom(origins));

    origins.options = { { "C40_SuppressZeroFeet", "3" }, { "C0_BOMSuppressLastZeros", "0" } };
    EXPECT_EQ("0 3 0 0", numbersFrom(origins));
}

TEST(DisplaySettingsTest, NamesThatNoListUsesAreNoted)
{
    FindingList findings;

    const DisplaySettings settings =
        DisplaySettings::read(fromFile("; ours\nC7_Other=5\nC40_SuppressZeroFeet=0\n"), findings);

    EXPECT_EQ("1 0 1 0", numbersOf(settings));
    ASSERT_EQ(1U, findings.all().size());
    EXPECT_EQ("shop.ini sets C7_Other, which lists do not use", messageOf(findings.all()[0]));
    EXPECT_EQ(FindingCodes::kSettingUnused.name, findings.all()[0].code);
    EXPECT_EQ(Finding::kNote, findings.all()[0].severity);
    EXPECT_EQ("shop.ini", findings.all()[0].source);
    EXPECT_EQ(2, findings.all()[0].begin.line);
}

TEST(DisplaySettingsTest, AMalformedFileIsNamedWithItsLine)
{
    EXPECT_EQ("3 shop.ini:2: found \"no\" for C40_SuppressZeroFeet, expected a whole number\n",
              faultFrom(fromFile("C40_SuppressZeroInch=0\nC40_SuppressZeroFeet=no\n")));
    EXPECT_EQ("3 shop.ini:1: found \"2147483648\" for C7_Other, expected a whole number\n",
              faultFrom(fromFile("C7_Other=2147483648")));
    EXPECT_EQ("3 shop.ini:2: found \"abc\", expected a line such as key = value\n", faultFrom(fromFile("\nabc\n")));
    EXPECT_EQ("3 shop.ini:1:3: found byte 0xE4, expected text in UTF-8\n", faultFrom(fromFile("; \xE4")));
}

// A file from anywhere could have cleared the terminal with its mistakes.
TEST(DisplaySettingsTest, WhatAFileSaysReachesNoTerminalAsACommand)
{
    FindingList findings;

    DisplaySettings::read(fromFile("C7_\x1B[2J=5\n"), findings);

    ASSERT_EQ(1U, findings.all().size());
    EXPECT_EQ("shop.ini sets C7_?[2J, which lists do not use", messageOf(findings.all()[0]));
    EXPECT_EQ("3 shop.ini:1: found \"?[2J\" for C7_?[2J, expected a whole number\n",
              faultFrom(fromFile("C7_\x1B[2J=\x1B[2J")));
    EXPECT_EQ("3 shop.ini:1: found \"?[2J\", expected a line such as key = value\n", faultFrom(fromFile("\x1B[2J")));
}

TEST(DisplaySettingsTest, ValuesAreCheckedWithoutBeingSet)
{
    EXPECT_FALSE(DisplaySettings::faultIn("C40_SuppressZeroFeet", "0"));
    EXPECT_EQ("found \"0.5\" for C40_SuppressZeroFeet, expected a whole number",
              messageOf(DisplaySettings::faultIn("C40_SuppressZeroFeet", "0.5").value()));
}

TEST(DisplaySettingsTest, OptionsAreChecked)
{
    EXPECT_EQ("2 --setting: found \"C40_SupressZeroFeet\", expected one of C0_BOMSuppressLastZeros, "
              "C40_SuppressZeroFeet, C40_SuppressZeroInch, C40_ShowMinusBetweenFeetAndInch: did you mean "
              "\"C40_SuppressZeroFeet\"?\n",
              faultFrom({ {}, {}, {}, { { "C40_SupressZeroFeet", "1" } } }));
    EXPECT_EQ("2 --setting C40_SuppressZeroFeet: found \"yes\", expected a whole number\n",
              faultFrom({ {}, {}, {}, { { "C40_SuppressZeroFeet", "yes" } } }));
}

TEST(DisplaySettingsTest, AVariableThatIsNoWholeNumberIsNamed)
{
    EXPECT_EQ("2 environment: found \"yes\" for C40_SuppressZeroFeet, expected a whole number\n",
              faultFrom({ {}, { { "C40_SuppressZeroFeet", "yes" } }, {}, {} }));
}

TEST(DisplaySettingsTest, AVariableWithBlanksAroundItsNumberIsRefused)
{
    EXPECT_EQ("2 environment: found \" 1\" for C40_SuppressZeroFeet, expected a whole number\n",
              faultFrom({ {}, { { "C40_SuppressZeroFeet", " 1" } }, {}, {} }));
    EXPECT_EQ("2 environment: found \"1 \" for C40_SuppressZeroFeet, expected a whole number\n",
              faultFrom({ {}, { { "C40_SuppressZeroFeet", "1 " } }, {}, {} }));
}

TEST(DisplaySettingsTest, TwoReportsShowTheSameLengthByTheirOwnSettings)
{
    FindingList findings;
    const DisplaySettings ours =
        DisplaySettings::read(fromFile("C40_SuppressZeroInch = 0\nC40_ShowMinusBetweenFeetAndInch = 1\n"), findings);
    const DisplaySettings theirs;

    EXPECT_EQ(VorString(L"7'-0\""), lengthShownBy(ours, 2133.6));
    EXPECT_EQ(VorString(L"7'"), lengthShownBy(theirs, 2133.6));
    EXPECT_EQ(VorString(L"7'-0\""), lengthShownBy(ours, 2133.6));
}
}
