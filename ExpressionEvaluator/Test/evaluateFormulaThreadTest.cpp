#include "ExpressionEvaluator/Src/evaluateFormula.h"
#include "Support/FormulaSupport.h"

#include <atomic>
#include <thread>
#include <vector>

namespace
{
constexpr int kThreads = 8;
constexpr int kRounds = 2000;

// Runs `work(number of the thread)` on several threads at once and adds up what it returns.
template <class Work>
int onThreads(Work work)
{
    std::atomic<int> nSum{ 0 };
    std::vector<std::thread> threads;
    for (int i = 0; i < kThreads; ++i)
        threads.emplace_back([&nSum, work, i] { nSum += work(i); });
    for (std::thread& thread : threads)
        thread.join();
    return nSum;
}

// How many rounds gave what they should: variables of the thread's own, an assignment, and an error in between.
int countRight(int nThread)
{
    const wchar_t* const names[] = { L"%n", L"%m" };
    int nRight = 0;
    for (int i = 0; i < kRounds; ++i)
    {
        const double values[] = { nThread * 1.0, i * 1.0 };
        double result = -1.0;
        const int nDone = evaluateFormula(L"x=%n*10000;(x+%m)", names, values, 2, &result);
        const int nFailed = evaluateFormula(L"nobody+1/0", names, values, 2, nullptr);
        nRight += nDone == 1 && nFailed == 0 && result == nThread * 10000.0 + i ? 1 : 0;
    }
    return nRight;
}
}

TEST(evaluateFormulaThreadTest, ThreadsDoNotSeeEachOther)
{
    const FormulaLeakCheck leaks;

    EXPECT_EQ(kThreads * kRounds, onThreads(countRight));
}

TEST(evaluateFormulaThreadTest, AConstructionElsewhereLeavesAnEvaluationAlone)
{
    const FormulaLeakCheck leaks;
    ExpressionsEvaluator evaluator(L"a*2", 3);
    VorExprEvValue value = doubleValue(4.0);
    evaluator.addVariable(view(L"a"), value);

    std::thread(
        []
        {
            const ExpressionsEvaluator elsewhere(L"b=1/0", 5);
            define(L"a", doubleValue(9.0));
        })
        .join();

    wchar_t buffer[VorExprEvValue::kBufferLength];
    EXPECT_EQ(1, evaluator.evaluate(buffer));
    EXPECT_EQ(VorString(L"8.000000"), VorString(buffer));
}

TEST(evaluateFormulaThreadTest, AThreadsListsEndWithIt)
{
    const FormulaLeakCheck leaks;

    EXPECT_EQ(kThreads, onThreads(
                            [](int)
                            {
                                evaluated(L"a=1;b=2;nobody");
                                return VorExprEvVariableList::ofThread().count() / 2;
                            }));
}
