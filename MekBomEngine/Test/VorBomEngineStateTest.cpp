#include "VorBomEngineState.h"

#include "Support/BomTestSupport.h"

#include <gtest/gtest.h>

#include <type_traits>

namespace
{
using Item = VorBomTemplateItem;

// Two rows in an open group of a level that has everything.
struct OpenLevel
{
    OpenLevel()
    {
        state.m_pHeader = &header;
        state.m_pFooter = &footer;
        state.m_dataRows.append(&rows[0]);
        state.m_dataRows.append(&rows[1]);
        state.m_pEvaluatedHeader = &evaluatedHeader;
        state.m_pEvaluatedFooter = &evaluatedFooter;
        state.m_pCollector = &collector;
        state.m_bGroupOpen = 1;
    }

    void expectEqual(const VorBomEngineState& other) const
    {
        EXPECT_EQ(&header, other.m_pHeader);
        EXPECT_EQ(&footer, other.m_pFooter);
        ASSERT_EQ(2, other.m_dataRows.length());
        EXPECT_EQ(&rows[0], other.m_dataRows[0]);
        EXPECT_EQ(&rows[1], other.m_dataRows[1]);
        EXPECT_EQ(2000, other.m_dataRows.growBy());
        EXPECT_EQ(&evaluatedHeader, other.m_pEvaluatedHeader);
        EXPECT_EQ(&evaluatedFooter, other.m_pEvaluatedFooter);
        EXPECT_EQ(&collector, other.m_pCollector);
        EXPECT_EQ(1, other.m_bGroupOpen);
    }

    Item header;
    Item footer;
    Item evaluatedHeader;
    Item evaluatedFooter;
    VorBomItemBase collector;
    VorBomDataRow rows[2];
    VorBomEngineState state;
};
}

TEST(VorBomEngineStateTest, StartsClosedAndPointsToNothing)
{
    const VorBomEngineState state;

    EXPECT_EQ(nullptr, state.m_pHeader);
    EXPECT_EQ(nullptr, state.m_pFooter);
    EXPECT_EQ(0, state.m_dataRows.length());
    EXPECT_EQ(2000, state.m_dataRows.growBy());
    EXPECT_EQ(nullptr, state.m_pEvaluatedHeader);
    EXPECT_EQ(nullptr, state.m_pEvaluatedFooter);
    EXPECT_EQ(nullptr, state.m_pCollector);
    EXPECT_EQ(0, state.m_bGroupOpen);
}

TEST(VorBomEngineStateTest, CopiesHoldEveryFieldAndRowsOfTheirOwn)
{
    const LeakCheck leaks;
    OpenLevel level;
    VorBomEngineState target;
    target.m_dataRows.setGrowBy(5);

    const VorBomEngineState copy(level.state);
    target = level.state;
    level.state.m_dataRows.empty();

    level.expectEqual(copy);
    level.expectEqual(target);
}

TEST(VorBomEngineStateTest, DestroyingAStateLeavesWhatItPointsTo)
{
    const LeakCheck leaks;
    OpenLevel level;
    {
        const VorBomEngineState copy(level.state); // NOLINT(performance-unnecessary-copy-initialization)
    }

    level.expectEqual(level.state);
    EXPECT_EQ(Item::kUnkTemplateItemType, level.header.type());
}

TEST(VorBomEngineStateTest, RowsAreAnArrayAsHostsSpellIt)
{
    EXPECT_TRUE((std::is_same<VorArray<VorBomDataRow*>, decltype(VorBomEngineState::m_dataRows)>::value));
}
