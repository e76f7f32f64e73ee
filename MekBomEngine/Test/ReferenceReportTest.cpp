// The slow evaluator that the engine is compared with must be right by itself, or agreement with it says nothing.

#include "ReferenceReport.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

namespace
{
RefReport::SectionPtr section(RefSection::Type type, const std::vector<RefTuple>& tuples)
{
    auto made = std::make_shared<RefSection>(type);
    made->tuples = tuples;
    return made;
}

// A list grouped by material: totals, a formula, a row that does not count and two equal lines.
void fillWorkedReport(RefReport& report)
{
    const auto header = section(RefSection::kReportHeader, { { L"%SortAscBy:%Material,%SortDescBy:%Length", {} } });
    const auto group = section(RefSection::kGroupHeader, { { L"%GroupBy:%Material", {} }, { L"%Material", {} } });
    const auto groupFooter = section(RefSection::kGroupFooter, { { L"%SumBy:%Weight", RefValue::ofInt(0) } });
    const auto details = section(RefSection::kDetails, { { L"%Length", {} }, { L"%Formula:%Length/1000", {} } });
    const auto footer =
        section(RefSection::kReportFooter, { { L"%SumBy:%Quantity", {} }, { L"%SumBy:%Formula:%Length/1000", {} } });
    report.root.children = { header, footer };
    header->children = { group, groupFooter };
    group->children = { details };

    const struct
    {
        const wchar_t* material;
        double length;
        double weight;
        int quantity;
        int countsInSums;
    } rows[] = { { L"S355", 500.0, 4.0, 2000000000, 1 },
                 { L"S235", 6000.0, 2.5, 2000000000, 1 },
                 { L"S235", 7000.0, 100.0, 7, 0 },
                 { L"S235", 6000.0, 2.25, 7, 1 } };
    for (const auto& row : rows)
        report.rows.push_back({ std::to_wstring(report.rows.size()),
                                row.countsInSums,
                                { { L"%Material", RefValue::ofText(row.material) },
                                  { L"%Length", RefValue::ofDouble(row.length) },
                                  { L"%Weight", RefValue::ofDouble(row.weight) },
                                  { L"%Quantity", RefValue::ofInt(row.quantity) } } });
    for (RefRow& row : report.rows)
        report.order.push_back(&row);
}
}

TEST(ReferenceReportTest, WorkedReportComesOutAsWorkedOutByHand)
{
    RefReport report;
    fillWorkedReport(report);
    RefSection result(RefSection::kBomTemplate);

    report.prepare();
    report.sort();
    EXPECT_EQ(1, report.evaluate(&result));

    EXPECT_EQ(L"[ kBomTemplate ]\n"
              L" [ kReportHeader][%SortAscBy:%Material,%SortDescBy:%Length:]\n"
              L"  [ kGroupHeader ][%GroupBy:%Material:][%Material:S235]\n"
              L"   [ kDetails     ][%Length:7000][%Formula:%Length/1000:7]\n"
              L"   [ kDetails     ][%Length:6000][%Formula:%Length/1000:6]\n"
              L"  [ kGroupFooter ][%SumBy:%Weight:2.5]\n"
              L"  [ kGroupHeader ][%GroupBy:%Material:][%Material:S355]\n"
              L"   [ kDetails     ][%Length:500][%Formula:%Length/1000:0.5]\n"
              L"  [ kGroupFooter ][%SumBy:%Weight:4]\n"
              L" [ kReportFooter][%SumBy:%Quantity:4e+09][%SumBy:%Formula:%Length/1000:6.5]",
              result.listing());
    EXPECT_EQ(0, report.rows[3].countsInSums) << "merged into the line before it";
}
