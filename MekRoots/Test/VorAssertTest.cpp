#include "MekRoots/Test/Support/TestSupport.h"

#include <thread>
#include <vector>

namespace
{
const wchar_t kPath[] = L"MekRoots/Test/VorAssertTest";

// What the handler below was given since it was set.
struct Call
{
    VorString expression;
    VorString sourcePath;
    int line;
};
std::vector<Call> s_calls;

void recordCall(const wchar_t* expression, const wchar_t* sourcePath, int line)
{
    s_calls.push_back({ expression, sourcePath, line });
}

// Sets a handler while it lives.
class HandlerScope
{
public:
    explicit HandlerScope(VorAssert::Handler handler) : m_pOld(VorAssert::setHandler(handler)) { s_calls.clear(); }
    ~HandlerScope()
    {
        VorAssert::setHandler(m_pOld);
        std::vector<Call>().swap(s_calls);
    }
    HandlerScope(const HandlerScope&) = delete;
    HandlerScope& operator=(const HandlerScope&) = delete;

private:
    VorAssert::Handler m_pOld;
};

// "line x count" of every report about `kPath`, in order.
std::vector<std::pair<int, long long>> sites()
{
    std::vector<std::pair<int, long long>> result;
    for (const VorAssertReport& report : VorAssert::reports())
        result.emplace_back(report.line, report.count);
    return result;
}

using Sites = std::vector<std::pair<int, long long>>;
}

TEST(VorAssertTest, AReportIsRecordedAsItWasMade)
{
    const LeakCheck leaks;
    const AssertLog log;

    VorAssert::vorAssert(L"isValid( index )", kPath, 516);

    const std::vector<VorAssertReport> reports = VorAssert::reports();
    ASSERT_EQ(1U, reports.size());
    EXPECT_EQ(VorString(L"isValid( index )"), reports[0].expression);
    EXPECT_EQ(VorString(kPath), reports[0].sourcePath);
    EXPECT_EQ(516, reports[0].line);
    EXPECT_EQ(1, reports[0].count);
}

TEST(VorAssertTest, ASiteIsListedOnceWithItsCount)
{
    const AssertLog log;
    for (int i = 0; i < 3; ++i)
        VorAssert::vorAssert(L"false", kPath, 10);

    EXPECT_EQ((Sites{ { 10, 3 } }), sites());
}

TEST(VorAssertTest, ExpressionPathAndLineMakeASite)
{
    const AssertLog log;
    VorAssert::vorAssert(L"false", kPath, 1);
    VorAssert::vorAssert(L"true", kPath, 1);
    VorAssert::vorAssert(L"false", L"elsewhere", 1);
    VorAssert::vorAssert(L"false", kPath, 2);
    VorAssert::vorAssert(L"false", kPath, 1);

    EXPECT_EQ((Sites{ { 1, 2 }, { 1, 1 }, { 1, 1 }, { 2, 1 } }), sites());
    EXPECT_EQ(2, log.count(L"false", kPath, 1));
    EXPECT_EQ(3, log.count(L"false", kPath));
}

TEST(VorAssertTest, SitesAreListedInTheOrderOfTheirFirstReport)
{
    const AssertLog log;
    for (const int line : { 30, 10, 20, 10, 30, 40, 5, 40, 10 })
        VorAssert::vorAssert(L"false", kPath, line);

    EXPECT_EQ((Sites{ { 30, 2 }, { 10, 3 }, { 20, 1 }, { 40, 2 }, { 5, 1 } }), sites());
}

TEST(VorAssertTest, EqualTextsAreOneSiteWhereverTheyStand)
{
    const AssertLog log;
    const wchar_t first[] = L"len>=0";
    wchar_t second[] = L"len>=0";

    VorAssert::vorAssert(first, kPath, 606);
    VorAssert::vorAssert(second, kPath, 606);
    EXPECT_EQ((Sites{ { 606, 2 } }), sites());

    second[0] = L'x'; // the report keeps its own copy
    EXPECT_EQ(2, log.count(L"len>=0", kPath, 606));
    VorAssert::vorAssert(second, kPath, 606);
    EXPECT_EQ((Sites{ { 606, 2 }, { 606, 1 } }), sites());
}

TEST(VorAssertTest, NullTextsCountAsEmptyOnes)
{
    const AssertLog log;
    VorAssert::vorAssert(nullptr, nullptr, 0);
    VorAssert::vorAssert(L"", L"", 0);

    EXPECT_EQ(2, log.count(L"", L"", 0));
    EXPECT_EQ(1U, VorAssert::reports().size());
}

TEST(VorAssertTest, ClearedReportsAreGone)
{
    const LeakCheck leaks;
    const AssertLog log;
    VorAssert::vorAssert(L"false", kPath, 1);

    VorAssert::clearReports();
    EXPECT_TRUE(VorAssert::reports().empty());

    VorAssert::vorAssert(L"false", kPath, 2);
    VorAssert::vorAssert(L"false", kPath, 1);
    EXPECT_EQ((Sites{ { 2, 1 }, { 1, 1 } }), sites());
}

TEST(VorAssertTest, ReportsAreACopy)
{
    const AssertLog log;
    VorAssert::vorAssert(L"false", kPath, 1);
    const std::vector<VorAssertReport> before = VorAssert::reports();

    VorAssert::vorAssert(L"false", kPath, 1);
    VorAssert::clearReports();

    ASSERT_EQ(1U, before.size());
    EXPECT_EQ(1, before[0].count);
}

TEST(VorAssertTest, AMillionReportsNeedNoMemory)
{
    const AssertLog log;
    VorAssert::vorAssert(L"!isEmpty()", kPath, 474);
    const long long numBlocks = VorMemoryControllerController::liveBlocks();

    for (int i = 1; i < 1000000; ++i)
        VorAssert::vorAssert(L"!isEmpty()", kPath, 474);

    EXPECT_EQ(numBlocks, VorMemoryControllerController::liveBlocks());
    EXPECT_EQ((Sites{ { 474, 1000000 } }), sites());
}

TEST(VorAssertTest, ManySitesAreAllKept)
{
    const AssertLog log;
    for (int round = 0; round < 2; ++round)
        for (int line = 0; line < 2000; ++line)
            VorAssert::vorAssert(L"false", kPath, line);

    const Sites all = sites();
    ASSERT_EQ(2000U, all.size());
    for (int line = 0; line < 2000; ++line)
        ASSERT_EQ((std::pair<int, long long>(line, 2)), all[static_cast<std::size_t>(line)]);
}

TEST(VorAssertTest, TheHandlerIsCalledOncePerReport)
{
    const AssertLog log;
    const HandlerScope scope(recordCall);

    VorAssert::vorAssert(L"len>=0", kPath, 606);
    VorAssert::vorAssert(L"len>=0", kPath, 606);
    VorAssert::vorAssert(L"false", L"elsewhere", 7);

    ASSERT_EQ(3U, s_calls.size());
    EXPECT_EQ(VorString(L"len>=0"), s_calls[1].expression);
    EXPECT_EQ(VorString(kPath), s_calls[1].sourcePath);
    EXPECT_EQ(606, s_calls[1].line);
    EXPECT_EQ(VorString(L"elsewhere"), s_calls[2].sourcePath);
    EXPECT_EQ((Sites{ { 606, 2 }, { 7, 1 } }), sites());
}

TEST(VorAssertTest, TheHandlerIsGivenEmptyTextsForNullOnes)
{
    const AssertLog log;
    const HandlerScope scope(recordCall);

    VorAssert::vorAssert(nullptr, nullptr, 3);

    ASSERT_EQ(1U, s_calls.size());
    EXPECT_EQ(VorString(), s_calls[0].expression);
}

TEST(VorAssertTest, SettingAHandlerGivesTheOneBefore)
{
    const HandlerScope scope(nullptr);

    EXPECT_EQ(nullptr, VorAssert::setHandler(recordCall));
    EXPECT_EQ(&recordCall, VorAssert::setHandler(nullptr));
    EXPECT_EQ(nullptr, VorAssert::setHandler(nullptr));

    const AssertLog log;
    VorAssert::vorAssert(L"false", kPath, 1);
    EXPECT_TRUE(s_calls.empty());
}

TEST(VorAssertTest, TheHandlerMayLookAtTheReports)
{
    const AssertLog log;
    static long long s_numSeen;
    const HandlerScope scope(
        [](const wchar_t*, const wchar_t*, int)
        {
            s_numSeen = VorAssert::reports().at(0).count; // the report is recorded before the call
            VorAssert::clearReports();
        });

    VorAssert::vorAssert(L"false", kPath, 1);

    EXPECT_EQ(1, s_numSeen);
    EXPECT_TRUE(log.isEmpty());
}

TEST(VorAssertTest, TheHandlerMayReportAndReplaceItself)
{
    const AssertLog log;
    const HandlerScope scope(
        [](const wchar_t*, const wchar_t*, int)
        {
            VorAssert::setHandler(nullptr);
            VorAssert::vorAssert(L"nested", kPath, 2);
        });

    VorAssert::vorAssert(L"false", kPath, 1);

    EXPECT_EQ((Sites{ { 1, 1 }, { 2, 1 } }), sites());
}

TEST(VorAssertThreadTest, ReportsOfSeveralThreadsAreAllCounted)
{
    const LeakCheck leaks;
    const AssertLog log;
    std::vector<std::thread> threads;
    threads.reserve(4);
    for (int number = 0; number < 4; ++number)
        threads.emplace_back(
            [number]
            {
                for (int i = 0; i < 20000; ++i)
                {
                    VorAssert::vorAssert(L"shared", kPath, 1);
                    VorAssert::vorAssert(L"own", kPath, 10 + number);
                    if (i % 1000 == 0)
                    {
                        EXPECT_GE(VorAssert::reports().size(), 2U);
                    }
                }
            });
    for (std::thread& thread : threads)
        thread.join();

    EXPECT_EQ(80000, log.count(L"shared", kPath, 1));
    for (int number = 0; number < 4; ++number)
        EXPECT_EQ(20000, log.count(L"own", kPath, 10 + number));
    EXPECT_EQ(5U, VorAssert::reports().size());
}

TEST(VorAssertThreadTest, HandlersMayBeChangedWhileOthersReport)
{
    const AssertLog log;
    const HandlerScope scope(nullptr);
    std::thread reporter(
        []
        {
            for (int i = 0; i < 20000; ++i)
                VorAssert::vorAssert(L"false", kPath, 1);
        });
    for (int i = 0; i < 2000; ++i)
    {
        VorAssert::setHandler(i % 2 == 0 ? [](const wchar_t*, const wchar_t*, int) {} : VorAssert::Handler());
        VorAssert::reports();
    }
    reporter.join();

    EXPECT_EQ(20000, log.count(L"false", kPath, 1));
}

TEST(VorAssertThreadTest, ReportsMayBeClearedWhileOthersReport)
{
    const LeakCheck leaks;
    const AssertLog log;
    std::thread reporter(
        []
        {
            for (int i = 0; i < 20000; ++i)
                VorAssert::vorAssert(L"false", kPath, i % 7);
        });
    for (int i = 0; i < 500; ++i)
        VorAssert::clearReports();
    reporter.join();

    EXPECT_LE(log.count(L"false", kPath), 20000);
    EXPECT_LE(VorAssert::reports().size(), 7U);
}
