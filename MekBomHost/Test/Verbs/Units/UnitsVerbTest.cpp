#include "UnitTable.h"

#include "Support/ProgramRun.h"

#include "MekRoots/Exp/VorUnitsTransformArray.h"
#include "MekRoots/Test/Support/TestSupport.h"
#include "MekUnits/Src/VorUnitDefinition.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

namespace mekbom
{
TEST(UnitsVerbTest, TheCatalogueIsListedWhole)
{
    const std::string list = runHere({ "units" }).output;

    EXPECT_EQ(UnitTable::text(), list);
    for (int i = 0; i < VorUnitsTransformArray::numUnits(); ++i)
        for (const wchar_t* const word :
             { VorUnitsTransformArray::unitAt(i).symbol, VorUnitsTransformArray::unitAt(i).names,
               VorUnitsTransformArray::unitAt(i).source })
            EXPECT_NE(std::string::npos, list.find("  " + toUtf8(word))) << toUtf8(word);
    EXPECT_NE(std::string::npos, list.find("\nweight             lb           lb/1           0.45359237 kg "));
    EXPECT_NE(std::string::npos, list.find("\nlength             ft-in        ft-in/16       inch: 25.4 mm "));
    EXPECT_EQ(VorUnitsTransformArray::numUnits() + 3, std::count(list.begin(), list.end(), '\n'));
}

TEST(UnitsVerbTest, TheVerbsBelowItAreRunInstead)
{
    EXPECT_EQ("7.5\n", runHere({ "units", "convert", "2286", "mm", "ft" }).output);
    EXPECT_EQ("2286\n", runHere({ "units", "read", "2286" }).output);
}

TEST(UnitsVerbTest, EachHasItsHelp)
{
    for (const std::vector<std::string>& arguments :
         { std::vector<std::string>{ "units", "--help" }, { "units", "convert", "--help" }, { "units", "read", "-h" } })
    {
        const ProgramRun run = runHere(arguments);
        EXPECT_EQ(kDone, run.status);
        EXPECT_NE(std::string::npos, run.output.find("mekbom units read")) << run.output;
    }
    EXPECT_NE(std::string::npos,
              runHere({ "units", "convert", "-h" }).output.find("Usage: mekbom units convert [OPTIONS]"));
}

TEST(UnitsVerbTest, OtherWordsAreRefused)
{
    EXPECT_EQ("mekbom: units: found \"list\", expected one of convert, read\n", runHere({ "units", "list" }).errors);
}
}
