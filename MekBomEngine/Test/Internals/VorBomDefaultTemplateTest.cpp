#include "VorBomDefaultTemplate.h"
#include "MekBomEngine/Test/Support/BomTestSupport.h"

#include <gtest/gtest.h>

namespace
{
using Item = VorBomTemplateItem;
}

TEST(VorBomDefaultTemplateTest, LayoutOfTheDefaultTemplateIsTheFullTree)
{
    EXPECT_EQ(0, VorBomDefaultTemplate::s_nLayoutSelector);
}

TEST(VorBomDefaultTemplateTest, OtherLayoutsLinkTheDetailsOrNothing)
{
    const LeakCheck leaks;
    const VorBomDefaultTemplate sections;
    VorBomTemplate nothing;
    sections.linkInto(nothing, 2);
    EXPECT_EQ(nullptr, nothing.child());

    VorBomTemplate detailsOnly;
    sections.linkInto(detailsOnly, VorBomDefaultTemplate::kDetailsOnly);
    EXPECT_EQ(VorString(L"[ kBomTemplate ]\n [ kDetails     ][%posNum:0][%Weight:0][%Material:0]"),
              listOf(detailsOnly));

    for (Item* pUnlinked : { sections.m_pReportHeader, sections.m_pReportFooter, sections.m_pOuterHeader,
                             sections.m_pOuterFooter, sections.m_pInnerHeader, sections.m_pInnerFooter })
    {
        EXPECT_NE(0, pUnlinked->getData().length() + (pUnlinked == sections.m_pReportFooter ? 1 : 0));
        delete pUnlinked;
    }
}
