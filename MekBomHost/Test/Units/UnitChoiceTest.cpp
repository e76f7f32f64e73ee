#include "UnitChoice.h"

#include "FindingCodes.h"

#include "Support/HostTestSupport.h"

#include "MekRoots/Test/Support/TestSupport.h"
#include "MekUnits/Src/VorUnitNotation.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

namespace mekbom
{
namespace
{
using Choices = UnitChoice::Choices;
using Systems = VorUnitsTransformArray;

// The units of all kinds as words: "mm/1 kg/2 m2/2 deg/1 kg/m/2 m2/m/3 kg/m3/0".
std::string wordsOf(const VorUnitsManager& units)
{
    std::string words;
    for (const Systems::eSystems system : { Systems::kDistance, Systems::kWeight, Systems::kArea, Systems::kAngle,
                                            Systems::kWeightPerDistance, Systems::kAreaPerDistance, Systems::kDensity })
        words += (words.empty() ? "" : " ") + toUtf8(VorUnitNotation::write(units.getUnit(system)));
    return words;
}

const char* const kMetricWords = "mm/1 kg/2 m2/2 deg/1 kg/m/2 m2/m/3 kg/m3/0";
const char* const kImperialWords = "ft-in/16 lb/1 ft2/2 deg/1 lb/ft/2 ft2/ft/2 lb/ft3/1";

std::string wordsOf(const std::string& base, const Choices& choices = Choices())
{
    return wordsOf(UnitChoice::unitsOf(base, choices));
}

std::string wordsOfFile(const std::string& text, const Choices& choices = Choices())
{
    return wordsOf(UnitChoice::unitsOf(NamedText{ "shop.ini", text }, choices));
}

std::string faultInFile(const std::string& text)
{
    return faultOf([&text] { wordsOfFile(text); });
}

std::string faultWith(const std::string& base, const Choices& choices = Choices())
{
    return faultOf([&] { UnitChoice::unitsOf(base, choices); });
}
}

TEST(UnitChoiceTest, PresetsHaveTheirNames)
{
    EXPECT_EQ(kMetricWords, wordsOf("metric"));
    EXPECT_EQ(kImperialWords, wordsOf("imperial"));
}

TEST(UnitChoiceTest, SingleKindsAreChosenOverTheRest)
{
    EXPECT_EQ("ft-in/32 kg/0 ft2/2 deg/1 lb/ft/2 ft2/ft/2 lb/ft3/1",
              wordsOf("imperial", { { "length", "ft-in/32" }, { "weight", "t" }, { "weight", "kg/0" } }));
    EXPECT_EQ("mm/1 kg/2 m2/2 deg-min-sec/0 t/m/4 in2/ft/1 lb/in3/4",
              wordsOf("metric", { { "angle", "dms" },
                                  { "weight-per-distance", "t/m" },
                                  { "area-per-length", "in2/ft/1" },
                                  { "density", "lb/in3" } }));
}

TEST(UnitChoiceTest, WordsThatAreNoChoiceAreNamed)
{
    EXPECT_EQ("2 --unit lenght=mm: found \"lenght\", expected one of length, angle, weight, area, weight-per-length, "
              "area-per-length, density: did you mean \"length\"?\n",
              faultWith("metric", { { "lenght", "mm" } }));
    EXPECT_EQ("2 --unit weight=mm: found \"mm\", expected a unit of weight such as kg or lb, and after a slash a "
              "precision if need be: lb/1, ft-in/16\n",
              faultWith("metric", { { "weight", "mm" } }));
    EXPECT_EQ(0U, faultWith("metric", { { "length", "mm/10" } }).find("2 --unit length=mm/10: found \"mm/10\""));
    EXPECT_EQ("2 --units: found \"metrics\", expected metric, imperial or a file of units: did you mean \"metric\"?\n",
              faultWith("metrics"));
    EXPECT_EQ("2 --units: found \"inch\", expected metric, imperial or a file of units\n", faultWith("inch"));
}

TEST(UnitChoiceTest, AFileNamesUnitsOverABase)
{
    const char* const ours =
        "\xEF\xBB\xBF; ours\r\n[units]\r\nlength = ft-in/32\r\narea=m\u00B2/1\r\nbase = imperial\r\n";

    EXPECT_EQ("ft-in/32 lb/1 m2/1 deg/1 lb/ft/2 ft2/ft/2 lb/ft3/1", wordsOfFile(ours));
    EXPECT_EQ("m/3 lb/1 m2/1 deg/1 lb/ft/2 ft2/ft/2 lb/ft3/1", wordsOfFile(ours, { { "length", "m" } }));
    EXPECT_EQ("cm/2 kg/2 m2/2 deg/1 kg/m/2 m2/m/3 kg/m3/0", wordsOfFile("length=cm"));
    EXPECT_EQ(kMetricWords, wordsOfFile(""));
}

TEST(UnitChoiceTest, AMalformedFileIsNamedWithItsLine)
{
    EXPECT_EQ("3 shop.ini:2: found \"abc\", expected a line such as key = value\n", faultInFile("length=mm\nabc\n"));
    EXPECT_EQ("3 shop.ini:1: found \"lenght\", expected one of length, angle, weight, area, weight-per-length, "
              "area-per-length, density: did you mean \"length\"?\n",
              faultInFile("lenght=mm\n"));
    EXPECT_EQ("3 shop.ini:3: found \"metrical\", expected metric or imperial: did you mean \"metric\"?\n",
              faultInFile("\n\nbase=metrical\n"));
    EXPECT_EQ("3 shop.ini:2: found \"\", expected a unit of distance such as mm, m, in or ft, and after a slash a "
              "precision if need be: lb/1, ft-in/16\n",
              faultInFile("; ours\nlength=\n"));
    EXPECT_EQ("3 shop.ini:2: found \"length\", expected it once, as in line 1\n", faultInFile("length=mm\nlength=m\n"));
    EXPECT_EQ("3 shop.ini:1:1: found byte 0xFF, expected text in UTF-8\n", faultInFile("\xFF\n"));
}

TEST(UnitChoiceTest, FindingsHaveTheirCodeAndPlace)
{
    try
    {
        wordsOfFile("; ours\nlength = lb\n");
        FAIL() << "nothing was thrown";
    }
    catch (const Fault& fault)
    {
        const Finding& finding = fault.findings()[0];
        EXPECT_EQ(FindingCodes::kUnitUnknown.name, finding.code);
        EXPECT_EQ("shop.ini", finding.source);
        EXPECT_EQ(2, finding.begin.line);
        EXPECT_EQ("\"lb\"", finding.found);
    }
}

TEST(UnitChoiceTest, OneChoiceDoesNotReachAnother)
{
    const VorUnitsManager ours = UnitChoice::unitsOf("imperial", { { "weight", "kg/0" } });
    const VorUnitsManager theirs = UnitChoice::unitsOf(NamedText{ "shop.ini", "length = cm" }, {});

    EXPECT_EQ("ft-in/16 kg/0 ft2/2 deg/1 lb/ft/2 ft2/ft/2 lb/ft3/1", wordsOf(ours));
    EXPECT_EQ("cm/2 kg/2 m2/2 deg/1 kg/m/2 m2/m/3 kg/m3/0", wordsOf(theirs));
    EXPECT_EQ(kMetricWords, wordsOf("metric"));
}

TEST(UnitChoiceTest, BasesAreToldFromFiles)
{
    EXPECT_TRUE(UnitChoice::isBase("metric"));
    EXPECT_TRUE(UnitChoice::isBase("imperial"));
    EXPECT_FALSE(UnitChoice::isBase("shop.ini"));
    EXPECT_FALSE(UnitChoice::isBase(""));
}

TEST(UnitChoiceTest, ChoicesAreCheckedWithoutBeingMade)
{
    EXPECT_FALSE(UnitChoice::faultIn("length", "ft-in/16"));
    EXPECT_EQ(FindingCodes::kUnitUnknown.name, UnitChoice::faultIn("length", "kg").value().code);
    EXPECT_EQ(FindingCodes::kKindUnknown.name, UnitChoice::faultIn("lenght", "m").value().code);
}
}
