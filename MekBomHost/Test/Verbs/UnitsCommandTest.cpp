#include "UnitsCommand.h"

#include "Support/HostTestSupport.h"
#include "Support/ProgramRun.h"

#include "MekRoots/Test/Support/TestSupport.h"
#include "MekUnits/Src/VorUnitDefinition.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

namespace mekbom
{
namespace
{
UnitsOptions conversion(const std::string& value, const std::string& from, const std::string& to)
{
    UnitsOptions options;
    options.task = UnitsOptions::kConvert;
    options.value = value;
    options.from = from;
    options.to = to;
    return options;
}

std::string converted(const std::string& value, const std::string& from, const std::string& to)
{
    return UnitsCommand::textOf(conversion(value, from, to));
}

UnitsOptions reading(const std::string& value)
{
    UnitsOptions options;
    options.task = UnitsOptions::kRead;
    options.value = value;
    return options;
}

std::string faultOfCommand(const UnitsOptions& options)
{
    return faultOf([&options] { UnitsCommand::textOf(options); });
}
}

TEST(UnitsCommandTest, AQuantityIsPrintedInAnotherUnit)
{
    EXPECT_EQ("7' 6\"\n", converted("2286", "mm", "ft-in/16"));
    EXPECT_EQ("7.5\n", converted("2286", "mm", "ft"));
    EXPECT_EQ("2298.7\n", converted("7'-6 1/2\"", "ft-in", "mm"));
    EXPECT_EQ("2286\n", converted("7.5", "feet", "mm"));
    EXPECT_EQ("220.5\n", converted("100", "kg", "lb/1"));
    EXPECT_EQ("12°30'\n", converted("12.5", "deg", "dms"));
    EXPECT_EQ("-7' 6\"\n", converted("-2286", "mm", "ft-in/16"));
}

TEST(UnitsCommandTest, TheLayoutIsTheEnginesUnlessSaidOtherwise)
{
    UnitsOptions options = conversion("0", "mm", "ft-in/16");
    EXPECT_EQ("0\"\n", UnitsCommand::textOf(options));
    options.suppressZeroFeet = 0;
    EXPECT_EQ("0'\n", UnitsCommand::textOf(options));
    options.suppressZeroInch = 0;
    EXPECT_EQ("0' 0\"\n", UnitsCommand::textOf(options));
    options.separator = UnitsOptions::kMinus;
    EXPECT_EQ("0'-0\"\n", UnitsCommand::textOf(options));
    options = conversion("7.5", "mm", "mm/2");
    EXPECT_EQ("7.5\n", UnitsCommand::textOf(options));
    options.suppressLastZeros = 0;
    EXPECT_EQ("7.50\n", UnitsCommand::textOf(options));
}

TEST(UnitsCommandTest, AQuantityIsReadInTheModelsUnitOfItsKind)
{
    EXPECT_EQ("2298.7\n", UnitsCommand::textOf(reading("7'-6 1/2\"")));
    EXPECT_EQ("2286\n", UnitsCommand::textOf(reading("2286")));
    EXPECT_EQ("2286\n", UnitsCommand::textOf(reading("7.5 ft")));
    EXPECT_EQ("45.359237\n", UnitsCommand::textOf(reading("100 lb")));
    EXPECT_EQ("1000000\n", UnitsCommand::textOf(reading("1 m²")));
    EXPECT_EQ("1.5707963267948966\n", UnitsCommand::textOf(reading("90°")));
    EXPECT_EQ("9144\n", UnitsCommand::textOf(reading("30'"))); // feet, without a degree sign before it
}

TEST(UnitsCommandTest, WhatIsNoQuantityIsRefused)
{
    const std::string expected = "expected a quantity such as 2286, 7.5 ft, 7'-6 1/2\" or 12°30'";
    EXPECT_EQ("2 found \"1,234.5\", " + expected + ": digits are not grouped, and the decimal sign is a point\n",
              faultOfCommand(reading("1,234.5")));
    EXPECT_EQ("2 found \"12°60'\", " + expected + ": inches after feet stay below 12, minutes and seconds below 60\n",
              faultOfCommand(reading("12°60'")));
    EXPECT_EQ("2 found \"abc\", " + expected + "\n", faultOfCommand(reading("abc")));
    EXPECT_EQ("2 found \"abc\", expected a quantity in mm\n", faultOfCommand(conversion("abc", "mm", "ft")));
    EXPECT_EQ("2 found \"90\", expected a quantity in ft-in: every number needs its mark\n",
              faultOfCommand(conversion("90", "ft-in", "mm")));
}

TEST(UnitsCommandTest, WordsThatAreNoUnitsAreRefused)
{
    EXPECT_EQ("2 found \"mn\", expected a unit such as mm, ft-in or lb; mekbom units lists them all\n",
              faultOfCommand(conversion("1", "mn", "ft")));
    EXPECT_EQ("2 found \"ft/99\", expected a unit, and after a slash a precision if need be, such as mm, lb/1 or "
              "ft-in/16\n",
              faultOfCommand(conversion("1", "mm", "ft/99")));
    EXPECT_EQ("2 found \"mm\", expected a unit of weight such as kg or lb, as kg is\n",
              faultOfCommand(conversion("1", "kg", "mm")));
}

TEST(UnitsCommandTest, TheCatalogueIsListedWhole)
{
    const std::string list = UnitsCommand::textOf(UnitsOptions());

    for (int i = 0; i < VorUnitsTransformArray::numUnits(); ++i)
        for (const wchar_t* const word :
             { VorUnitsTransformArray::unitAt(i).symbol, VorUnitsTransformArray::unitAt(i).names,
               VorUnitsTransformArray::unitAt(i).source })
            EXPECT_NE(std::string::npos, list.find("  " + toUtf8(word))) << toUtf8(word);
    EXPECT_NE(std::string::npos, list.find("\nweight             lb           lb/1           0.45359237 kg "));
    EXPECT_NE(std::string::npos, list.find("\nlength             ft-in        ft-in/16       inch: 25.4 mm "));
    EXPECT_EQ(VorUnitsTransformArray::numUnits() + 3, std::count(list.begin(), list.end(), '\n'));
}

TEST(UnitsCommandTest, TheProgramPrintsTheTextAlone)
{
    EXPECT_EQ("7' 6\"\n", runProgram("units convert 2286 mm ft-in/16").output);
    EXPECT_EQ("7'-6\"\n", runProgram("units convert 2286 mm ft-in/16 --separator minus").output);
    EXPECT_EQ("0'-6\"\n",
              runProgram("units convert 152.4 mm ft-in/16 --separator minus --suppress-zero-feet 0").output);
    EXPECT_EQ("7' 0\"\n", runProgram("units convert 2133.6 mm ft-in/16 --suppress-zero-inch 0").output);
    EXPECT_EQ("2.50\n", runProgram("units convert 2.5 mm mm/2 --suppress-zeros 0").output);
    EXPECT_EQ("-1/2\"\n", runProgram("units convert -12.7 mm ft-in/16").output);
    EXPECT_EQ("2298.7\n", runProgram("units read \"7'-6 1/2\\\"\"").output);
    EXPECT_EQ(UnitsCommand::textOf(UnitsOptions()), runProgram("units").output);
    EXPECT_EQ(2, runProgram("units read x").status);
    EXPECT_EQ(2, runProgram("units convert 1 mm ft --separator dash").status);
    EXPECT_EQ(2, runProgram("units convert 1 mm ft --suppress-zeros 2").status);
    EXPECT_EQ(2, runProgram("units convert 1 mm").status);
}
}
