// Texts whose characters are shared by several threads. Each VorString object stays with one thread at a time.
#include "MekRoots/Test/Support/TestSupport.h"

#include <cstdlib>
#include <thread>
#include <utility>
#include <vector>

namespace
{
const int kNumThreads = 4;

// Runs `work(number of the thread)` on all threads and waits for them.
template <class Work>
void onAllThreads(const Work& work)
{
    std::vector<std::thread> threads;
    threads.reserve(kNumThreads);
    for (int i = 0; i < kNumThreads; ++i)
        threads.emplace_back(work, i);
    for (std::thread& thread : threads)
        thread.join();
}
}

TEST(VorStringThreadTest, CopiesAreMadeAndDestroyedOnEveryThread)
{
    const LeakCheck leaks;
    const VorString shared(L"%SumBy:%Weight");

    onAllThreads(
        [&shared](int)
        {
            for (int i = 0; i < 20000; ++i)
            {
                const VorString copy(shared);
                VorString other;
                other = copy;
                const VorString moved(std::move(other));
                ASSERT_EQ(14, moved.length());
            }
        });

    EXPECT_EQ(VorString(L"%SumBy:%Weight"), shared);
}

TEST(VorStringThreadTest, AChangeOnOneThreadIsSeenByNoOther)
{
    const LeakCheck leaks;
    const VorString shared(L"%Weight");

    onAllThreads(
        [&shared](int number)
        {
            for (int i = 0; i < 5000; ++i)
            {
                VorString mine(shared);
                mine += static_cast<wchar_t>(L'0' + number);
                mine += mine;
                ASSERT_EQ(16, mine.length());
                ASSERT_EQ(static_cast<wchar_t>(L'0' + number), mine.getStringW()[7]);
                ASSERT_EQ(VorString(L"%Weight"), shared);
            }
        });
}

TEST(VorStringThreadTest, TheLastOwnerMayBeAnyThread)
{
    const LeakCheck leaks;
    for (int round = 0; round < 200; ++round)
    {
        std::vector<VorString> copies(kNumThreads, VorString(L"a text that dies on the last thread to drop it"));
        onAllThreads([&copies](int number) { copies[static_cast<std::size_t>(number)].empty(); });
    }
}

TEST(VorStringThreadTest, TheLastOwnerMayWriteWhereOthersHaveRead)
{
    const LeakCheck leaks;
    for (int round = 0; round < 200; ++round)
    {
        std::vector<VorString> copies(kNumThreads, VorString(L"shared"));
        onAllThreads(
            [&copies](int number)
            {
                VorString& mine = copies[static_cast<std::size_t>(number)];
                const int seen = mine.getStringW()[5] == L'd' ? 6 : 0;
                mine += L"!"; // one thread may find itself alone with the block and write into it
                ASSERT_EQ(seen + 1, mine.length());
            });
        for (const VorString& copy : copies)
            ASSERT_EQ(VorString(L"shared!"), copy);
    }
}

TEST(VorStringThreadTest, TextsOutliveTheThreadThatMadeThem)
{
    const LeakCheck leaks;
    std::vector<VorString> made(1000);

    std::thread maker(
        [&made]
        {
            for (std::size_t i = 0; i < made.size(); ++i)
                made[i].format(L"B%d", static_cast<int>(i));
        });
    maker.join();

    for (std::size_t i = 0; i < made.size(); ++i)
        ASSERT_EQ(static_cast<int>(i), made[i].right(made[i].length() - 1).toInteger());
}

// In a process of its own, since the promise cannot be taken back.
TEST(VorStringThreadTest, TextsThatAreNotSharedAreCountedRightBesideAnotherThread)
{
    const auto countBesideAnotherThread = []
    {
        VorString::promiseNotToShare();
        const long long numBlocks = VorMemoryControllerController::liveBlocks();
        VorString text(L"%Weight");
        bool isOtherRight = false;
        std::thread other(
            [&isOtherRight]
            {
                VorString own(L"%Length");
                const VorString copy(own);
                own += L'!';
                isOtherRight = copy == VorString(L"%Length") && own == VorString(L"%Length!");
            });
        const VorString copy(text);
        text += L'!';
        other.join();
        const bool isRight = copy == VorString(L"%Weight") && text == VorString(L"%Weight!");
        std::exit(isRight && isOtherRight && VorMemoryControllerController::liveBlocks() == numBlocks + 2 ? 0 : 1);
    };

    EXPECT_EXIT(countBesideAnotherThread(), testing::ExitedWithCode(0), "");
}
