// What the formulas of a report leave behind, in the thread's lists and in the debug output.
#include "ExpressionEvaluator/Src/ExpressionsEvaluator.h"
#include "ExpressionEvaluator/Src/VorExprEvVariableList.h"
#include "ExpressionEvaluator/Src/VorExprEvalErrorHandler.h"
#include "ExpressionEvaluator/Src/VorExpressionEvaluator.h"
#include "ExpressionEvaluator/Src/evaluateFormula.h"
#include "MekBomEngine/Test/Support/ReportBuilders.h"
#include "MekRoots/Exp/VorDebugOutput.h"

#include <limits>
#include <string>

namespace
{
using Item = VorBomTemplateItem;

// The thread's variables, the newest first, and behind them its errors.
std::string left()
{
    std::string text;
    for (const VorExprEvVariable* p = VorExprEvVariableList::ofThread().head(); p != nullptr; p = p->next())
    {
        const std::wstring_view name = p->name().existingPart();
        text += toUtf8(VorString(name.data(), static_cast<int>(name.size()))) + "=" +
                std::to_string(p->value().toNumber()) + " ";
    }
    for (const VorExprEvalError* p = VorExprEvalErrorHandler::ofThread().head(); p != nullptr; p = p->next())
        text += toUtf8(p->message());
    return text;
}

class VorBomEvaluator2FormulaTest : public testing::Test
{
protected:
    ~VorBomEvaluator2FormulaTest() override { ExpressionsEvaluator(nullptr, 0); }
};

// Counts the trees and stacks of the debug output while it lives.
class Traces
{
public:
    explicit Traces(int& nSwitch) : m_nSwitch(nSwitch)
    {
        written().clear();
        m_nSwitch = 1;
        m_previousSink = VorDebugOutput::setSink([](const wchar_t* text) { written() += text; });
    }
    ~Traces()
    {
        VorDebugOutput::setSink(m_previousSink);
        m_nSwitch = 0;
    }
    Traces(const Traces&) = delete;
    Traces& operator=(const Traces&) = delete;

    static int numTimes(const std::wstring& text)
    {
        int nTimes = 0;
        for (std::size_t i = written().find(text); i != std::wstring::npos; i = written().find(text, i + 1))
            ++nTimes;
        return nTimes;
    }
    static std::wstring& written()
    {
        static std::wstring s_written;
        return s_written;
    }

private:
    int& m_nSwitch;
    VorDebugOutput::Sink m_previousSink;
};

void addDetails(Report& report, std::initializer_list<VorBomDataTuple> header,
                std::initializer_list<VorBomDataTuple> details)
{
    Item* pReport = report.addSection(nullptr, Item::kReportHeader, header);
    report.addSection(pReport, Item::kDetails, details);
    report.addRow({ { L"%Num", L"P1" }, { L"%Weight", 2.5 }, { L"%Length", 4 } });
    report.addRow({ { L"%Num", L"P2" }, { L"%Weight", 7.5 }, { L"%Length", 0 } });
}
}

TEST_F(VorBomEvaluator2FormulaTest, AfterAReportTheListsAreThoseOfTheFormulaComputedLast)
{
    double zero = 0.0;
    const wchar_t* const names[] = { L"stranger" };
    evaluateFormula(L"stranger/0.0", names, &zero, 1, nullptr);
    {
        Report report;
        addDetails(report, { { L"%Formula:%Length*9", L"" } },
                   { { L"%Num", L"" },
                     { L"%Formula:%Weight*2", L"" },
                     { L"my factor", 3 },
                     { L"%Formula:%Weight/%Length", L"" } });
        report.evaluate();
    } // with all that named the variables

    EXPECT_EQ("%Length=0.000000 %Weight=7.500000 my factor=3.000000 %Formula:%Weight*2=15.000000 Division by zero",
              left());
}

TEST_F(VorBomEvaluator2FormulaTest, AfterAReportWithoutFormulasTheListsAreAsBefore)
{
    const double one = 1.0;
    const wchar_t* const names[] = { L"stranger" };
    evaluateFormula(L"stranger*2", names, &one, 1, nullptr);
    Report report;
    addDetails(report, {}, { { L"%Num", L"" } });
    report.evaluate();

    EXPECT_EQ("stranger=1.000000 ", left());
}

TEST_F(VorBomEvaluator2FormulaTest, AFormulaOfAHeaderAloneCountsTheRowThatOpenedIt)
{
    Report report;
    addDetails(report, { { L"%Formula:%Weight*x", L"" } }, { { L"%Num", L"" } });
    report.evaluate();

    EXPECT_EQ("%Weight=2.500000 Syntax error", left());
}

TEST_F(VorBomEvaluator2FormulaTest, RowsKeepOneResultPerFormulaAllTheSame)
{
    Report report;
    addDetails(report, {}, { { L"%Formula:%Weight*2", L"" } });
    report.evaluate();

    EXPECT_EQ(4, report.data().child()->getData().length());
    EXPECT_EQ(4, report.data().child()->next()->getData().length());
}

TEST_F(VorBomEvaluator2FormulaTest, FormulasOfAReportAreTracedOncePerRowAndNoOthers)
{
    Report report;
    addDetails(report, {},
               { { L"%Formula:%Weight*2", L"" },         // of one statement
                 { L"%Formula:x=%Length*3;x-1*0", L"" }, // of two
                 { L"%Formula:%Weight/%Length", L"" },   // fails in the second row
                 { L"%Formula:1+2", L"" },               // too short
                 { L"%Formula:%Weight", L"" } });        // no operator
    {
        const Traces traces(ExpressionsEvaluator::m_nTraceTrees);
        report.evaluate();

        EXPECT_EQ(2, Traces::numTimes(L"\n\n*\n\n%Weight\n\n2"));
        EXPECT_EQ(2, Traces::numTimes(L"\n\n=\n\nx\n\n*\n\n%Length\n\n3"));
        EXPECT_EQ(2, Traces::numTimes(L"\n\n/\n\n%Weight\n\n%Length"));
        EXPECT_EQ(0, Traces::numTimes(L"\n\n1\n\n2"));
        EXPECT_EQ(std::wstring::npos, Traces::written().find(L"+"));
    }
}

TEST_F(VorBomEvaluator2FormulaTest, StacksAreTracedOncePerRowToo)
{
    Report report;
    addDetails(report, {}, { { L"%Formula:%Weight*2", L"" }, { L"%Formula:1+2", L"" } });

    const Traces traces(VorExpressionEvaluator::m_nTraceStacks);
    report.evaluate();

    EXPECT_EQ(2, Traces::numTimes(L"\nOperator Stack\n\n\n*\nOperand Stack\n\n\n2\n\n%Weight"));
    EXPECT_EQ(4, Traces::numTimes(L"\nOperator Stack\n"));
}

// What a report computes for each row in a way of its own, and what computing the formula once gives.
TEST_F(VorBomEvaluator2FormulaTest, ANanShowsTheSameSignInAReportAndAlone)
{
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const wchar_t* const names[] = { L"%Odd", L"%Other" };
    for (const VorString formula : { L"0 * ((1e39 * +) + %Odd)", L"1e39*0+%Odd", L"(%Odd-%Other)*(%Odd+%Other)",
                                     L"%Odd+%Other*1", L"%Other+%Odd*1" })
        for (const double odd : { nan, -nan })
        {
            const double values[] = { odd, -odd };
            double alone = 0.0;
            ASSERT_EQ(1, evaluateFormula(formula.getStringW(), names, values, 2, &alone));
            VorString token(L"%Formula:");
            token += formula;
            Report report;
            Item* pReport = report.addSection(nullptr, Item::kReportHeader, {});
            report.addSection(pReport, Item::kDetails, { { token, L"" } });
            report.addRow({ { L"%Odd", odd }, { L"%Other", -odd } });

            report.evaluate();

            EXPECT_EQ(VorBomDataValue(alone).asString(), report.rowTexts(token)) << formula << odd;
        }
}
