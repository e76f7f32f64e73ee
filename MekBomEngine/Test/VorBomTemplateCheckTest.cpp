#include "MekBomEngine/Src/VorBomTemplateCheck.h"
#include "ExpressionEvaluator/Src/VorExprEvalErrorHandler.h"
#include "MekBomEngine/Test/Support/FindingLog.h"
#include "MekBomEngine/Test/Support/ReportBuilders.h"

#include <gtest/gtest.h>

namespace
{
using Item = VorBomTemplateItem;
using Strings = std::vector<std::string>;

Strings checked(Report& report)
{
    FindingLog log;
    VorBomTemplateCheck::check(report.tmpl(), log);
    return log.lines;
}

Strings checkedTokens(Report& report, const VorStringArray& ownTokens)
{
    FindingLog log;
    VorBomTemplateCheck::checkTokens(report.tmpl(), ownTokens, log);
    return log.lines;
}
}

TEST(VorBomTemplateCheckTest, EmptyTemplateHasNoFindings)
{
    Report report;

    EXPECT_EQ(Strings(), checked(report));
    EXPECT_EQ(Strings(), checkedTokens(report, {}));
}

TEST(VorBomTemplateCheckTest, SectionsBehindAFooterOrUnderOneAreNotEvaluated)
{
    Report report;
    Item* pHeader = report.addSection(nullptr, Item::kReportHeader, {});
    Item* pFooter = report.addSection(nullptr, Item::kReportFooter, {});
    Item* pBehind = report.addSection(nullptr, Item::kPageFooter, {});
    report.addSection(pBehind, Item::kDetails, {});
    Item* pUnder = report.addSection(pFooter, Item::kDetails, {});
    report.addSection(pHeader, Item::kDetails, {});
    FindingLog log;
    VorBomTemplateCheck::check(report.tmpl(), log);

    ASSERT_EQ((Strings{ "1 ", "1 " }), log.lines) << "and what is under them is not told apart";
    EXPECT_EQ(pUnder, log.findings[0].pSection);
    EXPECT_EQ(pBehind, log.findings[1].pSection);
}

TEST(VorBomTemplateCheckTest, RequestsNobodyLookedForAreTold)
{
    Report report;
    Item* pGroup = report.addSection(nullptr, Item::kGroupHeader, { { L"%GroupBy:%Material", L"" } });
    report.addSection(pGroup, Item::kDetails, { { L"%SortAscBy:%Num", L"" } });
    EXPECT_EQ((Strings{ "2 ", "2 " }), checked(report));

    report.tmpl().findUsedTokens();
    EXPECT_EQ(Strings(), checked(report));

    pGroup->addData(VorBomDataTuple(L"%SortDescBy:%Zone", VorString()));
    EXPECT_EQ((Strings{ "2 " }), checked(report)) << "changed since";
}

TEST(VorBomTemplateCheckTest, GroupingOfTheDeepestLevelHasNoEffect)
{
    Report report;
    report.addSection(nullptr, Item::kDetails, { { L"%Num", L"" }, { L"%GroupBy:%Material", L"" } });
    report.tmpl().findUsedTokens();

    EXPECT_EQ((Strings{ "3 %GroupBy:%Material" }), checked(report));
}

TEST(VorBomTemplateCheckTest, FormulasThatCannotBeReadHaveTheirPlace)
{
    Report report;
    report.addSection(nullptr, Item::kDetails,
                      { { L"%Formula:(%A+(2*3)", 0.0 }, { L"%Formula:a=4;a*2)", 0.0 }, { L"%Formula:%A*2", 0.0 } });

    EXPECT_EQ(
        (Strings{ "4 %Formula:(%A+(2*3) 0: Impaired paranthesis", "4 %Formula:a=4;a*2) 7: Impaired paranthesis" }),
        checked(report));
}

TEST(VorBomTemplateCheckTest, FormulasThatAreNoneAreTold)
{
    Report report;
    report.addSection(nullptr, Item::kDetails,
                      { { L"%Formula:1+2", 0.0 }, { L"%Formula:%Weight", 0.0 }, { L"%Formula:", 0.0 } });

    EXPECT_EQ((Strings{ "5 %Formula:1+2", "5 %Formula:%Weight", "5 %Formula:" }), checked(report));
}

TEST(VorBomTemplateCheckTest, FootersFindNoFormulaThatNoLineComputes)
{
    Report report;
    Item* pHeader = report.addSection(nullptr, Item::kReportHeader, {});
    report.addSection(
        nullptr, Item::kReportFooter,
        { { L"%SumBy:%Formula:%A*2", 0.0 }, { L"%SumBy:%Formula:%A*3", 0.0 }, { L"%Formula:%A*4", 0.0 } });
    report.addSection(pHeader, Item::kDetails, { { L"%Formula:%A*2", 0.0 } });

    EXPECT_EQ((Strings{ "6 %SumBy:%Formula:%A*3", "6 %Formula:%A*4" }), checked(report));
}

TEST(VorBomTemplateCheckTest, TokensOfNeitherCatalogueNorHostAreTold)
{
    Report report;
    Item* pGroup = report.addSection(nullptr, Item::kGroupHeader, { { L"%GroupBy:%Materail,%Price", L"" } });
    report.addSection(nullptr, Item::kGroupFooter,
                      { { L"%SumBy:%Wieght", 0.0 }, { L"%SumBy:%Formula:%Price*2", 0.0 } });
    report.addSection(pGroup, Item::kDetails,
                      { { L"Title", L"x" }, { L"%Weight", 0.0 }, { L"%Formula:%Weight*%Pirce", 0.0 } });
    VorStringArray own;
    own.append(VorString(L"%Price"));

    EXPECT_EQ((Strings{ "7 %Materail", "7 %Wieght", "7 %Pirce 8" }), checkedTokens(report, own));
}

TEST(VorBomTemplateCheckTest, ErrorsOfTheThreadAreLeftAlone)
{
    Report report;
    report.addSection(nullptr, Item::kDetails, { { L"%Formula:(1+2", 0.0 } });
    const int numErrors = VorExprEvalErrorHandler::ofThread().count();

    EXPECT_EQ(1U, checked(report).size());
    EXPECT_EQ(numErrors, VorExprEvalErrorHandler::ofThread().count());
}

TEST(VorBomTemplateCheckTest, EveryKindHasItsWords)
{
    for (const int kind : { 1, 2, 3, 4, 5, 6, 7, 100, 101, 102, 103, 104, 200, 201 })
    {
        VorBomFinding finding;
        finding.kind = static_cast<VorBomFinding::eKind>(kind);
        EXPECT_STRNE(L"", finding.text()) << kind;
    }
}

TEST(VorBomTemplateCheckTest, HundredThousandLevelsAreSurvived)
{
    Report report;
    Item* pParent = nullptr;
    for (int i = 0; i < 100'000; ++i)
        pParent = report.addSection(pParent, Item::kGroupHeader, { { L"%Formula:1+2", 0.0 } });

    EXPECT_EQ(100'000U, checked(report).size());
}
