// One set of rows for several lists: rows that were restored are as good as fresh ones.
#include "MekBomEngine/Src/VorBomEvaluator2.h"
#include "MekBomEngine/Test/Support/BomTestSupport.h"
#include "MekBomEngine/Test/Support/ReportBuilders.h"

#include <gtest/gtest.h>

#include <random>
#include <string>

namespace
{
using Item = VorBomTemplateItem;

void addRows(VorBomData& data, unsigned seed)
{
    std::mt19937 random(seed);
    const auto below = [&random](unsigned limit) { return static_cast<int>(random() % limit); };
    for (int i = 0; i < 30; ++i)
    {
        auto* pRow = new VorBomDataRow;
        pRow->addData(VorBomDataTuple(L"%Num", VorString(std::to_wstring(below(6)).c_str())));
        pRow->addData(VorBomDataTuple(L"%Material", VorString(below(2) == 0 ? L"S235" : L"S355")));
        if (below(4) != 0)
            pRow->addData(VorBomDataTuple(L"%Weight", below(5) * 0.5));
        pRow->setUseThisDataForSums(below(6) == 0 ? 0 : 1);
        if (below(6) == 0)
            pRow->getData()[below(2)].setUsed(below(3));
        data.addChild(pRow);
    }
}

// Everything about the rows that shows, with their present order and who is last.
VorString described(VorBomData& data)
{
    VorString text;
    for (VorBomItemBase* pRow = data.child(); pRow != nullptr; pRow = pRow->next())
    {
        pRow->list(text, 0, 0, 0);
        for (const VorBomDataTuple& tuple : pRow->getData())
            text += std::to_wstring(tuple.used()).c_str();
        text += std::to_wstring(static_cast<VorBomDataRow*>(pRow)->getUseThisDataForSums()).c_str();
        text += pRow == data.lastChild() ? L" last\n" : L"\n";
    }
    return text;
}

// Two templates of one host: one by material with a formula, one by number with totals of that formula's kind.
void buildByMaterial(Report& report)
{
    Item* pGroup = report.addSection(nullptr, Item::kGroupHeader,
                                     { { L"%GroupBy:%Material", L"" }, { L"%SortDescBy:%Material", L"" } });
    report.addSection(nullptr, Item::kGroupFooter, { { L"%SumBy:%Formula:%Weight*2", 0.0 }, { L"%Num", L"" } });
    report.addSection(pGroup, Item::kDetails, { { L"%Material", L"" }, { L"%Formula:%Weight*2", 0.0 } });
    report.tmpl().findUsedTokens();
}

void buildByNumber(Report& report)
{
    Item* pGroup =
        report.addSection(nullptr, Item::kGroupHeader, { { L"%GroupBy:%Num", L"" }, { L"%SortAscBy:%Num", L"" } });
    report.addSection(nullptr, Item::kGroupFooter,
                      { { L"%SumBy:%Weight", 0.0 }, { L"%Formula:%Weight*2", L"nobody computes it" } });
    report.addSection(pGroup, Item::kDetails, { { L"%Num", L"" }, { L"%Weight", 0.0 } });
    report.tmpl().findUsedTokens();
}

VorString evaluated(Report& report)
{
    EXPECT_EQ(1, VorBomEvaluator2::evaluate(&report.tmpl(), &report.result()));
    return report.resultText();
}

void destroy(VorBomData* pData)
{
    pData->empty();
    delete pData;
}
}

TEST(VorBomDataRestoreTest, SecondListOfRestoredRowsIsThatOfFreshOnes)
{
    for (unsigned seed = 0; seed < 50; ++seed)
    {
        Report fresh;
        buildByNumber(fresh);
        addRows(fresh.data(), seed);
        const VorString expected = evaluated(fresh);
        Report first;
        Report second;
        buildByMaterial(first);
        buildByNumber(second);
        addRows(first.data(), seed);
        const VorString before = described(first.data());
        first.data().rememberRows();
        evaluated(first);
        ASSERT_FALSE(before == described(first.data()));

        EXPECT_EQ(1, first.data().restoreRows());
        EXPECT_EQ(before, described(first.data()));
        delete second.tmpl().exchangeBomData(first.tmpl().exchangeBomData(nullptr));
        EXPECT_EQ(expected, evaluated(second));

        EXPECT_EQ(1, second.data().restoreRows()) << "as often as wanted";
        EXPECT_EQ(before, described(second.data()));
    }
}

TEST(VorBomDataRestoreTest, RowsMayBeAppendedToRestoredOnes)
{
    Report report;
    buildByMaterial(report);
    addRows(report.data(), 1);
    report.data().rememberRows();
    evaluated(report);
    report.data().restoreRows();
    report.addRow({ { L"%Num", L"7" } });

    int numRows = 0;
    for (const VorBomItemBase* pRow = report.data().child(); pRow != nullptr; pRow = pRow->next())
        ++numRows;
    EXPECT_EQ(31, numRows);
}

TEST(VorBomDataRestoreTest, OtherRowsThanRememberedAreLeftAlone)
{
    Report report;
    EXPECT_EQ(0, report.data().restoreRows()) << "nothing was remembered";
    addRows(report.data(), 2);
    report.data().rememberRows();
    VorBomDataRow* pAdded = report.addRow({ { L"%Num", L"7" } });
    const VorString before = described(report.data());

    EXPECT_EQ(0, report.data().restoreRows()) << "a row was added";
    EXPECT_EQ(before, described(report.data()));

    VorBomItemBase* pFirst = report.data().child();
    report.data().setChild(pFirst->next());
    EXPECT_EQ(0, report.data().restoreRows()) << "another one instead of the first";
    report.data().setChild(pFirst);
    report.data().rememberRows();
    EXPECT_EQ(1, report.data().restoreRows());
    EXPECT_EQ(pAdded, report.data().lastChild());
}

TEST(VorBomDataRestoreTest, HostsOwnTuplesStay)
{
    Report report;
    buildByMaterial(report);
    addRows(report.data(), 3);
    report.data().rememberRows();
    report.data().child()->addData(VorBomDataTuple(L"%Before", 1));
    VorBomItemBase* pFirst = report.data().child();
    evaluated(report);
    pFirst->addData(VorBomDataTuple(L"%Behind", 2));
    const int numTuples = pFirst->getData().length();
    report.data().restoreRows();

    const VorBomDataTupleArray& tuples = pFirst->getData();
    EXPECT_NE(nullptr, pFirst->getTupleAt(L"%Before"));
    EXPECT_EQ(VorString(L"%Behind"), tuples[tuples.length() - 1].token().token());
    EXPECT_EQ(pFirst->getTupleAt(L"%Weight") == nullptr ? numTuples : numTuples - 1, tuples.length());
}

TEST(VorBomDataRestoreTest, NoRowsAreRestoredToo)
{
    VorBomData data;
    data.rememberRows();

    EXPECT_EQ(1, data.restoreRows());
    EXPECT_EQ(nullptr, data.child());
    EXPECT_EQ(nullptr, data.lastChild());
}

TEST(VorBomDataRestoreTest, ExchangedDataBelongToTheOther)
{
    const LeakCheck leaks;
    {
        Report report;
        buildByMaterial(report);
        addRows(report.data(), 4);
        VorBomData* pRows = report.tmpl().exchangeBomData(nullptr);
        EXPECT_EQ(nullptr, report.tmpl().getBomData());
        EXPECT_EQ(1, VorBomEvaluator2::evaluate(&report.tmpl(), &report.result()));
        EXPECT_EQ(nullptr, report.result().child()) << "as a template without rows";
        destroy(pRows);
    }
    {
        Report report;
        auto* pRows = new VorBomData;
        addRows(*pRows, 5);
        destroy(report.tmpl().exchangeBomData(pRows));
        EXPECT_EQ(pRows, report.tmpl().getBomData());
    }
}
