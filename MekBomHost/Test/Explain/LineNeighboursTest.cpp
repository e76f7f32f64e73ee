#include "LineNeighbours.h"

#include "Support/EvaluatedParts.h"

#include <gtest/gtest.h>

namespace mekbom
{
namespace
{
// Lines: S235, IPE360, its footer, S355, HEA200, its footer, total.
const EvaluatedParts& parts()
{
    static const EvaluatedParts two(kPartsByMaterial, { { L"HEA200", L"S355", 10.5 }, { L"IPE360", L"S235", 2 } });
    return two;
}
}

TEST(LineNeighboursTest, ALineHasThoseBeforeAndAfterIt)
{
    const LineNeighbours second(parts().report(), 2);

    EXPECT_EQ("IPE360", second.line()->texts[1].view());
    EXPECT_EQ("S235", second.before()->texts[0].view());
    EXPECT_TRUE(second.after()->place.hasFooter);
}

TEST(LineNeighboursTest, TheFirstAndTheLastLineHaveOne)
{
    EXPECT_EQ(nullptr, LineNeighbours(parts().report(), 1).before());
    EXPECT_NE(nullptr, LineNeighbours(parts().report(), 1).after());
    EXPECT_NE(nullptr, LineNeighbours(parts().report(), 7).before());
    EXPECT_EQ(nullptr, LineNeighbours(parts().report(), 7).after());
}

TEST(LineNeighboursTest, WithoutSuchALineAllAreCounted)
{
    EXPECT_EQ(nullptr, LineNeighbours(parts().report(), 8).line());
    EXPECT_EQ(7, LineNeighbours(parts().report(), 8).numLines());
    EXPECT_EQ(nullptr, LineNeighbours(parts().report(), 1000).line());
    EXPECT_EQ(7, LineNeighbours(parts().report(), 1000).numLines());
    EXPECT_EQ(nullptr, LineNeighbours(parts().report(), 0).line());
    EXPECT_EQ(7, LineNeighbours(parts().report(), 0).numLines());
    EXPECT_EQ(nullptr, LineNeighbours(parts().report(), -3).line());
}
}
