#include "UntypedCells.h"

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
    { { "1e3" }, VorBomDataValue::kDoubleData },
    { { "4", "12.5", "M16" }, VorBomDataValue::kStringData },
    { { "M16", "4" }, VorBomDataValue::kStringData },
    { { "4", "1,5" }, VorBomDataValue::kStringData },
    { { "0417", "12" }, VorBomDataValue::kStringData }, // numbers of things
    { { "4006381333931", "12" }, VorBomDataValue::kStringData },
    { { "2147483647" }, VorBomDataValue::kIntData },
    { { "2147483648" }, VorBomDataValue::kStringData },
    { { "2147483648", "0.5" }, VorBomDataValue::kDoubleData },
    { { " " }, VorBomDataValue::kStringData },
    { { "inf" }, VorBomDataValue::kStringData },
};
}

TEST(UntypedCellsTest, AllCellsTogetherDecideTheType)
{
    for (const TypeCase& test : kTypes)
    {
        UntypedCells column;
        for (const std::string& cell : test.cells)
            column.add(cell);
        EXPECT_EQ(test.type, column.type()) << (test.cells.empty() ? "" : test.cells.front());
    }
}

TEST(UntypedCellsTest, CellsComeBackInTheirOrderAndType)
{
    UntypedCells numbers;
    numbers.add("4");
    numbers.add("12.5");
    UntypedCells texts;
    texts.add("M16");
    texts.add("007");
    texts.add("M16");

    EXPECT_EQ(VorBomDataValue::kDoubleData, numbers.type());
    EXPECT_EQ(VorString(L"4"), numbers.takeNext().asString());
    EXPECT_EQ(VorString(L"12.5"), numbers.takeNext().asString());
    EXPECT_EQ(VorString(L"M16"), texts.takeNext().asString());
    EXPECT_EQ(VorString(L"007"), texts.takeNext().asString());
    EXPECT_EQ(VorString(L"M16"), texts.takeNext().asString());
}
}
