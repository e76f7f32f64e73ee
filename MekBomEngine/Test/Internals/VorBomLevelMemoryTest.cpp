// What a report of many levels takes: it must not depend on how many texts a column may remember at most.
#include "MekBomEngine/Test/Support/ReportBuilders.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>

#if defined(__GLIBC__)

#include <malloc.h>

namespace
{
using Item = VorBomTemplateItem;

constexpr std::size_t kMegabyte = 1'000'000;

std::size_t bytesInUse()
{
    const struct mallinfo2 info = mallinfo2();
    return info.uordblks + info.hblkhd;
}

class MemoryWatch : public VorBomSectionSink
{
public:
    void takeHeader(const VorBomReportSection&) override { look(); }
    void takeFooter(const VorBomReportSection&) override { look(); }

    std::size_t grown = 0; // at most, since this was made

private:
    void look()
    {
        if (++m_numCalls % 1000 == 0) // it is slow
            grown = std::max(grown, bytesInUse() - m_before);
    }

    std::size_t m_before = bytesInUse();
    int m_numCalls = 0;
};

void addLevels(Report& report, int numLevels)
{
    Item* pParent = nullptr;
    for (int i = 0; i < numLevels; ++i)
    {
        Item* pHeader = report.addSection(
            pParent, Item::kGroupHeader,
            { { L"%GroupBy:%Num", L"" }, { L"%Weight", 0.0 }, { L"%Quantity", 0 }, { L"%Length", 0.0 } });
        report.addSection(pParent, Item::kGroupFooter, { { L"%SumBy:%Weight", 0.0 } });
        pParent = pHeader;
    }
}
}

TEST(VorBomLevelMemoryTest, TwentyThousandLevelsWithTwoRowsTakeLessThanHundredMegabytes)
{
    if (bytesInUse() == 0)
        GTEST_SKIP() << "the C library counts nothing: another one allocates, as under sanitizers";
    Report report;
    addLevels(report, 20'000);
    for (const wchar_t* num : { L"P1", L"P2" })
        report.addRow({ { L"%Num", num }, { L"%Weight", 2.5 }, { L"%Quantity", 3 }, { L"%Length", 6000.0 } });
    report.tmpl().findUsedTokens();
    MemoryWatch watch;

    EXPECT_EQ(1, VorBomEvaluator2::evaluate(&report.tmpl(), watch));

    EXPECT_LT(watch.grown, 100 * kMegabyte);
    EXPECT_GT(watch.grown, kMegabyte) << "something was measured";
}

#endif
