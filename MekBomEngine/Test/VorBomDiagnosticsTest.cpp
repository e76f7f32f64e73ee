#include "MekBomEngine/Src/VorBomDiagnostics.h"
#include "MekBomEngine/Src/VorBomReport.h"
#include "MekBomEngine/Test/Support/FindingLog.h"
#include "MekBomEngine/Test/Support/ReportBuilders.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace
{
using Item = VorBomTemplateItem;
using Strings = std::vector<std::string>;

VorBomDataRow* addRow(Report& report, int key, std::initializer_list<VorBomDataTuple> tuples)
{
    VorBomDataRow* pRow = report.addRow(tuples);
    pRow->setHostKey(static_cast<std::uint64_t>(key));
    return pRow;
}

FindingLog findingsOf(Report& report)
{
    report.tmpl().findUsedTokens();
    FindingLog log;
    VorBomEvaluationOptions options;
    options.pDiagnostics = &log;
    EXPECT_EQ(1, VorBomEvaluator2::evaluate(&report.tmpl(), &report.result(), options));
    return log;
}
}

TEST(VorBomDiagnosticsTest, SoundReportHasNoFindings)
{
    Report report;
    Item* pGroup =
        report.addSection(nullptr, Item::kGroupHeader, { { L"%GroupBy:%Material", L"" }, { L"Title", L"x" } });
    report.addSection(nullptr, Item::kGroupFooter, { { L"%SumBy:%Formula:%Weight*2", 0.0 } });
    report.addSection(pGroup, Item::kDetails, { { L"%SortAscBy:%Num", L"" }, { L"%Formula:%Weight*2", 0.0 } });
    addRow(report, 1, { { L"%Num", L"P1" }, { L"%Material", L"S235" }, { L"%Weight", 2.5 } });
    addRow(report, 2, { { L"%Num", L"P2" }, { L"%Material", L"S235" }, { L"%Weight", 4.0 } });

    EXPECT_EQ(Strings(), findingsOf(report).lines);
}

TEST(VorBomDiagnosticsTest, FailedFormulasHaveMessagePlaceAndRow)
{
    Report report;
    Item* pDetails =
        report.addSection(nullptr, Item::kDetails, { { L"%Num", L"" }, { L"%Formula:%Weight/%Quantity", L"none" } });
    addRow(report, 1, { { L"%Num", L"P1" }, { L"%Weight", 2.5 }, { L"%Quantity", 0 } });
    addRow(report, 2, { { L"%Num", L"P2" }, { L"%Weight", 2.5 }, { L"%Quantity", 2 } });
    addRow(report, 3, { { L"%Num", L"P3" }, { L"%Weight", 2.5 } });

    const FindingLog log = findingsOf(report);
    EXPECT_EQ((Strings{ "200 %Formula:%Weight/%Quantity 7: Division by zero row 1",
                        "200 %Formula:%Weight/%Quantity 8: Syntax error row 3" }),
              log.lines);
    EXPECT_EQ(pDetails, log.findings[0].pSection);
    EXPECT_EQ(1, log.findings[0].tuple);
}

TEST(VorBomDiagnosticsTest, TokensOfNoRowAreToldOncePerPlace)
{
    Report report;
    Item* pGroup = report.addSection(nullptr, Item::kGroupHeader, { { L"%GroupBy:%Material,%Zone", L"" } });
    Item* pFooter = report.addSection(nullptr, Item::kGroupFooter, { { L"%SumBy:%Area", 0.0 }, { L"%Weight", 0.0 } });
    report.addSection(pGroup, Item::kDetails, { { L"%Formula:%Weight+%Weight*%Length", 0.0 } });
    addRow(report, 1, { { L"%Material", L"S235" }, { L"%Weight", 2.5 } });
    addRow(report, 2, { { L"%Material", L"S355" } });

    const FindingLog log = findingsOf(report);
    EXPECT_EQ((Strings{ "102 %Zone", "102 %Area", "102 %Length 16" }), log.of(VorBomFinding::kTokenInNoRow));
    EXPECT_EQ(pFooter, log.findings[1].pSection);
    EXPECT_EQ(0, log.findings[1].tuple);
}

TEST(VorBomDiagnosticsTest, ValuesOfTwoKindsNameTheFirstRowOfEach)
{
    Report report;
    Item* pGroup = report.addSection(nullptr, Item::kGroupHeader, {});
    report.addSection(nullptr, Item::kGroupFooter, { { L"%SumBy:%Weight", 0.0 } });
    report.addSection(pGroup, Item::kDetails, { { L"%Num", L"" }, { L"%Weight", 0.0 } });
    addRow(report, 1, { { L"%Num", L"P1" }, emptyTuple(L"%Weight") });
    addRow(report, 2, { { L"%Num", L"P2" }, { L"%Weight", 2.5 } });
    addRow(report, 3, { { L"%Num", L"P3" }, { L"%Weight", 3 } });
    addRow(report, 4, { { L"%Num", L"P4" }, { L"%Weight", L"heavy" } });

    const FindingLog log = findingsOf(report);
    EXPECT_EQ((Strings{ "103 %Weight row 2 row 3", "103 %Weight row 2 row 3" }),
              log.of(VorBomFinding::kTokenOfTwoKinds))
        << "of the footer and of the details";
    EXPECT_EQ((Strings{ "104 %Weight row 4" }), log.of(VorBomFinding::kTextInTotal));
}

TEST(VorBomDiagnosticsTest, MergedRowsNameTheOneWhoseLineTheyJoin)
{
    Report report;
    Item* pGroup = report.addSection(nullptr, Item::kGroupHeader, {});
    report.addSection(pGroup, Item::kDetails, { { L"%Num", L"" } });
    for (int key = 1; key <= 4; ++key)
        addRow(report, key, { { L"%Num", key < 4 ? L"P1" : L"P2" } });

    EXPECT_EQ((Strings{ "201  row 2 row 1", "201  row 3 row 1" }), findingsOf(report).lines);
}

TEST(VorBomDiagnosticsTest, MissingRowsAndPartsAreTold)
{
    Report empty;
    empty.addSection(nullptr, Item::kDetails, { { L"%Num", L"" } });
    EXPECT_EQ((Strings{ "100 " }), findingsOf(empty).lines) << "and of no token that no row has it";

    Report report;
    report.addSection(nullptr, Item::kDetails, { { L"%Num", L"" } });
    addRow(report, 1, { { L"%Num", L"P1" } });
    addRow(report, 2, { { L"%Num", L"P2" } })->addChild(new VorBomDataRow);
    EXPECT_EQ((Strings{ "101  row 2" }), findingsOf(report).lines);
}

TEST(VorBomDiagnosticsTest, TemplateIsCheckedBeforeItsRows)
{
    Report report;
    report.addSection(nullptr, Item::kDetails, { { L"%Num", L"" }, { L"%Formula:(%Weight+2", 0.0 } });
    addRow(report, 1, { { L"%Num", L"P1" }, { L"%Weight", 2.5 } });

    EXPECT_EQ((Strings{ "4 %Formula:(%Weight+2 0: Impaired paranthesis",
                        "200 %Formula:(%Weight+2 0: Impaired paranthesis row 1" }),
              findingsOf(report).lines);
}

// A sink that asks for no failed formulas gets none because somebody else wants to know.
TEST(VorBomDiagnosticsTest, SinksHearOfNoMoreThanTheyAskFor)
{
    class Sink : public VorBomReport
    {
    public:
        void takeFailedFormula(const VorBomDataRow&, const VorString&, const VorString&) override { ++numFailures; }
        int numFailures = 0;
    };
    Report report;
    report.addSection(nullptr, Item::kDetails, { { L"%Formula:%Weight/0", 0.0 } });
    addRow(report, 1, { { L"%Weight", 2.5 } });
    FindingLog log;
    VorBomEvaluationOptions options;
    options.pDiagnostics = &log;
    Sink sink;
    VorBomEvaluator2::evaluate(&report.tmpl(), sink, options);

    EXPECT_EQ(0, sink.numFailures);
    EXPECT_EQ(1U, log.of(VorBomFinding::kFormulaFailed).size());
}

// What is found changes neither the report nor what it leaves in rows and thread.
TEST(VorBomDiagnosticsTest, ReportIsTheSameWithAnObserver)
{
    VorString texts[2];
    VorString formulas[2];
    for (const bool isObserved : { false, true })
    {
        Report report;
        Item* pGroup = report.addSection(nullptr, Item::kGroupHeader, { { L"%GroupBy:%Material", L"" } });
        report.addSection(nullptr, Item::kGroupFooter, { { L"%SumBy:%Formula:%Weight/%Quantity", 0.0 } });
        report.addSection(pGroup, Item::kDetails,
                          { { L"%Formula:%Weight/%Quantity", L"none" }, { L"%SortDescBy:%Weight", L"" } });
        for (int i = 0; i < 20; ++i)
            addRow(report, i, { { L"%Material", i % 2 }, { L"%Weight", i % 5 * 1.5 }, { L"%Quantity", i % 3 } });
        if (isObserved)
            EXPECT_FALSE(findingsOf(report).lines.empty());
        else
            report.evaluate();
        texts[isObserved] = report.resultText();
        formulas[isObserved] = report.rowTexts(L"%Formula:%Weight/%Quantity");
    }
    EXPECT_EQ(texts[0], texts[1]);
    EXPECT_EQ(formulas[0], formulas[1]);
}

TEST(VorBomDiagnosticsTest, ObserverThatThrowsEndsTheEvaluation)
{
    class Thrower : public VorBomDiagnostics
    {
    public:
        explicit Thrower(int numFindings) : m_numLeft(numFindings) {}
        void takeFinding(const VorBomFinding&) override
        {
            if (m_numLeft-- == 0)
                throw std::runtime_error("enough");
        }

    private:
        int m_numLeft;
    };
    for (int numFindings = 0; numFindings < 4; ++numFindings)
    {
        Report report;
        Item* pGroup = report.addSection(nullptr, Item::kGroupHeader, { { L"%Zone", L"" } });
        report.addSection(pGroup, Item::kDetails, { { L"%Num", L"" }, { L"%Formula:%Weight/0", 0.0 } });
        for (int key = 1; key <= 2; ++key)
            addRow(report, key, { { L"%Num", L"P1" }, { L"%Weight", 2.5 } });
        report.tmpl().findUsedTokens();
        Thrower thrower(numFindings);
        VorBomEvaluationOptions options;
        options.pDiagnostics = &thrower;

        EXPECT_THROW(VorBomEvaluator2::evaluate(&report.tmpl(), &report.result(), options), std::runtime_error);
        EXPECT_EQ(nullptr, report.result().child());
    }
}
