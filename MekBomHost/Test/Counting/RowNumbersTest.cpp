#include "RowNumbers.h"

#include <gtest/gtest.h>

namespace mekbom
{
TEST(RowNumbersTest, RowsAreNumberedFromOneAsTheyHang)
{
    VorBomData data;
    auto* const pFirst = new VorBomDataRow();
    auto* const pSecond = new VorBomDataRow();
    const VorBomDataRow stranger;
    data.addChild(pFirst);
    data.addChild(pSecond);

    const RowNumbers numbers(data);

    EXPECT_EQ(1, numbers.numberOf(*pFirst));
    EXPECT_EQ(2, numbers.numberOf(*pSecond));
    EXPECT_EQ(0, numbers.numberOf(stranger));
    EXPECT_EQ(0, RowNumbers().numberOf(*pFirst));
    data.empty();
}
}
