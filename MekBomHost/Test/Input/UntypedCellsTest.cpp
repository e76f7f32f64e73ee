#include "UntypedCells.h"

#include "MekRoots/Test/Support/TestSupport.h"

#include <gtest/gtest.h>

#include <string>

namespace mekbom
{
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

TEST(UntypedCellsTest, NumbersAreReadAsTheNotationSaysAndTextsStayAsTheyAre)
{
    struct NotationCase
    {
        const char* cell;
        const char* value;
    };
    const NotationCase cases[] = { { "12,50", "12.5" }, { "12.5", "12.5" }, { "1.234,50", "1.234,50" } };
    for (const NotationCase& test : cases)
    {
        UntypedCells column;
        column.setNotation(NumberNotation(NumberNotation::kComma, NumberNotation::kShown, ""));
        column.add(test.cell);
        EXPECT_EQ(test.value, toUtf8(column.takeNext().asString()));
    }
}
}
