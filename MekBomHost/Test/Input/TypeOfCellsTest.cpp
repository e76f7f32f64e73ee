#include "TypeOfCells.h"

#include "MekRoots/Test/Support/TestSupport.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace mekbom
{
namespace
{
struct TypeCase
{
    std::vector<std::string> cells;
    VorBomDataValue::eBomDataValueType type;
};

const TypeCase kTypes[] = {
    { {}, VorBomDataValue::kStringData },
    { { "4", "-12", "+3" }, VorBomDataValue::kIntData },
    { { "0" }, VorBomDataValue::kIntData },
    { { "4", "12.5" }, VorBomDataValue::kDoubleData },
    { { "12.5", "4" }, VorBomDataValue::kDoubleData },
    { { "1E5" }, VorBomDataValue::kStringData }, // a mark rather than a hundred thousand
    { { "4", "1e3" }, VorBomDataValue::kStringData },
    { { "4", "12.5", "M16" }, VorBomDataValue::kStringData },
    { { "M16", "4" }, VorBomDataValue::kStringData },
    { { "4", "1,5" }, VorBomDataValue::kStringData },
    { { "0417", "12" }, VorBomDataValue::kStringData }, // numbers of things
    { { "4006381333931", "12" }, VorBomDataValue::kDoubleData },
    { { "12", "4006381333931" }, VorBomDataValue::kDoubleData },
    { { "340123450000000018" }, VorBomDataValue::kStringData }, // no double has so many digits
    { { "2147483647" }, VorBomDataValue::kIntData },
    { { "2147483648" }, VorBomDataValue::kDoubleData },
    { { "2147483648", "0.5" }, VorBomDataValue::kDoubleData },
    { { " " }, VorBomDataValue::kStringData },
    { { "inf" }, VorBomDataValue::kStringData },
};

const TypeCase kTypesOfNumbersAlone[] = {
    { {}, VorBomDataValue::kStringData },
    { { "4", "0417" }, VorBomDataValue::kIntData },
    { { "4", "1e3" }, VorBomDataValue::kDoubleData },
    { { "340123450000000018" }, VorBomDataValue::kDoubleData },
};
}

TEST(TypeOfCellsTest, AllCellsTogetherDecideTheType)
{
    for (const TypeCase& test : kTypes)
    {
        TypeOfCells column;
        for (const std::string& cell : test.cells)
            column.add(cell);
        EXPECT_EQ(test.type, column.type()) << (test.cells.empty() ? "" : test.cells.front());
    }
}

TEST(TypeOfCellsTest, ColumnsThatMustBeNumbersAreNumbersHoweverWritten)
{
    for (const TypeCase& test : kTypesOfNumbersAlone)
    {
        TypeOfCells column;
        column.takeNumbersAlone();
        for (const std::string& cell : test.cells)
            column.add(cell);
        EXPECT_EQ(test.type, column.type()) << (test.cells.empty() ? "" : test.cells.back());
    }
}

TEST(TypeOfCellsTest, NumbersAreWrittenAsTheNotationSays)
{
    const NumberNotation comma(NumberNotation::kComma, NumberNotation::kShown, "");
    const TypeCase cases[] = {
        { { "4", "12,50" }, VorBomDataValue::kDoubleData },
        { { "4", "12.5" }, VorBomDataValue::kStringData },     // the class of a bolt, say
        { { "4", "1.234" }, VorBomDataValue::kStringData },    // would be shown without its point
        { { "4", "1.234,50" }, VorBomDataValue::kStringData }, // the same
        { { "4", "0417" }, VorBomDataValue::kStringData },
        { { "4", "1,5E3" }, VorBomDataValue::kStringData },
    };
    for (const TypeCase& test : cases)
    {
        TypeOfCells column;
        column.setNotation(comma);
        for (const std::string& cell : test.cells)
            column.add(cell);
        EXPECT_EQ(test.type, column.type()) << test.cells.back();
    }
}

TEST(TypeOfCellsTest, DecimalsAreTheMostOfAnyCell)
{
    TypeOfCells column;
    EXPECT_EQ(0, column.numDecimals());
    for (const char* const cell : { "4", "0.25", "12.5" })
        column.add(cell);

    EXPECT_EQ(2, column.numDecimals());
}
}
