#include "CellFormats.h"

#include "Support/HostTestSupport.h"

#include "WorkbookFile.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

namespace mekbom
{
namespace
{
const CellLook::eRole kRoles[] = { CellLook::kTitle,       CellLook::kRemark,     CellLook::kHeading, CellLook::kLine,
                                   CellLook::kGroupHeader, CellLook::kGroupTotal, CellLook::kTotal };

class CellFormatsTest : public testing::Test
{
protected:
    WorkbookFile m_file{ "List" };
    CellFormats m_formats{ m_file.workbook() };
};
}

TEST_F(CellFormatsTest, CellsThatLookAlikeShareAFormat)
{
    const CellLook look = { CellLook::kTotal, true };

    EXPECT_EQ(m_formats.of(look, { 8.5, 2, 1 }), m_formats.of(look, { -12.25, 2, 1 }));
    EXPECT_EQ(m_formats.ofText(look), m_formats.ofText({ CellLook::kTotal, true }));
}

// Two numbers that shared a format by mistake would show decimals that the list does not print.
TEST_F(CellFormatsTest, EveryNumberHasTheFormatOfItsOwnText)
{
    const int mostDecimals = 38; // of the longest text that is taken for a number
    const int mostGroups = 13;
    for (const CellLook::eRole role : kRoles)
        for (int decimals = 0; decimals <= mostDecimals; ++decimals)
            for (int groups = 1; groups <= mostGroups; ++groups)
            {
                const SheetNumber number = { 1, decimals, groups };
                const CellLook look = { role, decimals % 2 == 0, groups % 2 == 0, decimals % 3 == 0 };
                m_formats.of(look, number);
                ASSERT_EQ(number.format(), m_formats.of(look, number)->num_format);
            }
}

TEST_F(CellFormatsTest, CellsThatLookOtherwiseShareNone)
{
    std::set<const lxw_format*> formats;
    std::size_t numLooks = 0;
    for (const CellLook::eRole role : kRoles)
        for (int bits = 0; bits < 8; ++bits)
        {
            const CellLook look = { role, (bits & 1) != 0, (bits & 2) != 0, (bits & 4) != 0 };
            formats.insert(m_formats.ofText(look));
            formats.insert(m_formats.ofLongText(look));
            formats.insert(m_formats.of(look, { 1, 0, 1 }));
            formats.insert(m_formats.of(look, { 1, 1, 1 }));
            formats.insert(m_formats.of(look, { 1, 0, 2 }));
            numLooks += 5;
        }

    EXPECT_EQ(numLooks, formats.size());
}

TEST_F(CellFormatsTest, TextsStayTextsWhenTheyAreEdited)
{
    EXPECT_STREQ("@", m_formats.ofText(CellLook())->num_format);
}

TEST_F(CellFormatsTest, LongTextsHaveNoFormatThatShowsThemAsSigns)
{
    EXPECT_STRNE("@", m_formats.ofLongText(CellLook())->num_format);
}

TEST_F(CellFormatsTest, OnlyOrdinaryLinesAndRemarksAreNotBold)
{
    for (const CellLook::eRole role : kRoles)
        EXPECT_EQ(role != CellLook::kLine && role != CellLook::kRemark, m_formats.ofText({ role })->bold != 0) << role;
}

TEST_F(CellFormatsTest, OnlyTheTotalOfTheListHasARuleAboveIt)
{
    for (const CellLook::eRole role : kRoles)
        EXPECT_EQ(role == CellLook::kTotal, m_formats.ofText({ role })->top != LXW_BORDER_NONE) << role;
}

TEST_F(CellFormatsTest, HeadingsAndHeadersOfGroupsStandOnBands)
{
    for (const CellLook::eRole role : kRoles)
        EXPECT_EQ(role == CellLook::kHeading || role == CellLook::kGroupHeader,
                  m_formats.ofText({ role })->bg_color != LXW_COLOR_UNSET)
            << role;
}

// A band with holes where cells are empty would be none.
TEST_F(CellFormatsTest, EmptyCellsBelowARuleAreSeen)
{
    for (const CellLook::eRole role : kRoles)
        EXPECT_EQ(role == CellLook::kTotal, CellLook{ role }.isAcross()) << role;
}
}
