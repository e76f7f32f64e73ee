// Sections whose copies are read and destroyed on other threads.
#include "VorBomTemplateItem.h"

#include "Support/BomTestSupport.h"

#include <gtest/gtest.h>

#include <atomic>
#include <memory>
#include <thread>
#include <utility>

TEST(VorBomTemplateItemThreadTest, CachesMayBeFilledAnewWhileCopiesAreReadAndDestroyedElsewhere)
{
    const LeakCheck leaks;
    VorBomTemplateItem item(VorBomTemplateItem::kGroupHeader);
    item.addData(tuple(L"%GroupBy:%A", L""));
    item.findGroupingTokens();
    for (int round = 0; round < 200; ++round)
    {
        auto pCopy = std::make_unique<VorBomTemplateItem>(item);
        std::atomic<bool> isRead{ false };
        std::thread reader(
            [&isRead, pRead = std::move(pCopy)]() mutable
            {
                EXPECT_EQ(VorString(L"%A"), pRead->groupingTokens().first());
                pRead.reset();
                isRead.store(true, std::memory_order_relaxed); // says when, and orders nothing
            });
        while (round % 2 == 0 && !isRead.load(std::memory_order_relaxed))
            std::this_thread::yield();

        item.findGroupingTokens();

        reader.join();
        ASSERT_EQ(VorString(L"%A"), item.groupingTokens().first());
    }
}

TEST(VorBomTemplateItemThreadTest, OneSectionMayBeAskedOnSeveralThreadsAtOnce)
{
    VorBomTemplateItem source(VorBomTemplateItem::kGroupHeader);
    source.addData(tuple(L"%GroupBy:%A", L""));
    source.findGroupingTokens();
    for (int round = 0; round < 200; ++round)
    {
        const VorBomTemplateItem section(source, VorBomTemplateItem::kWithoutLinksAndTuples);
        const VorBomDataRow row;
        const VorStringArray* asked[2] = {};
        const VorStringArray* handles[2] = {};
        const auto ask = [&](int thread)
        {
            asked[thread] = &section.groupingTokens();
            handles[thread] = &row.EqualPartObjectHandles();
            EXPECT_EQ(Texts{ L"%A" }, elementsOf(VorBomTemplateItem(section).groupingTokens()));
        };
        std::thread first(ask, 0);
        std::thread second(ask, 1);
        first.join();
        second.join();

        ASSERT_EQ(asked[0], asked[1]);
        ASSERT_EQ(handles[0], handles[1]);
    }
}
