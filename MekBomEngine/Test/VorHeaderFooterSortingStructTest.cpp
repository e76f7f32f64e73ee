#include "VorHeaderFooterSortingStruct.h"

#include <gtest/gtest.h>

#include <utility>

TEST(VorHeaderFooterSortingStructTest, StartsWithoutSections)
{
    const VorHeaderFooterSortingStruct pair;

    EXPECT_EQ(nullptr, pair.m_pHeaderItem);
    EXPECT_EQ(nullptr, pair.m_pFooterItem);
}

TEST(VorHeaderFooterSortingStructTest, AssigningCopiesBothLinks)
{
    VorBomTemplateItem header;
    VorBomTemplateItem footer;
    VorHeaderFooterSortingStruct source;
    source.m_pHeaderItem = &header;
    source.m_pFooterItem = &footer;
    VorHeaderFooterSortingStruct copied;
    VorHeaderFooterSortingStruct moved;

    copied = source;
    moved = std::move(source); // NOLINT(performance-move-const-arg): links are copied

    EXPECT_EQ(&header, copied.m_pHeaderItem);
    EXPECT_EQ(&footer, copied.m_pFooterItem);
    EXPECT_EQ(&header, moved.m_pHeaderItem);
    EXPECT_EQ(&footer, moved.m_pFooterItem);
}
