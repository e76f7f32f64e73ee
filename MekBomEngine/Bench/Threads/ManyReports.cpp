// Do N threads make N times the reports? Each has a template, rows and result of its own.
//   ManyReports 2 20000 5     1 and 2 threads, reports of 20,000 rows, 5 each
// Prints reports per second of wall time and of processor time, and how often evaluating took a lock or waited for one.
// On a machine whose processors others use, wall time tells of them; processor time per report must stay what it is with
// one thread, and no lock may be waited for row by row.
//
// Building and freeing are not timed, but other threads may build while one evaluates, as in a host that makes reports
// all day. Texts are shared within a thread's rows, not between threads.
#include "../Comparison/ComparisonRun.h"
#include "../Shapes/Shapes.h"

#include "MekBomEngine/Src/VorBomEvaluator2.h"

#include <pthread.h>

#include <atomic>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <thread>
#include <vector>

namespace
{
// Locks that this thread took and waited for while it evaluated.
struct Locks
{
    bool isCounting = false;
    long long numTaken = 0;
    long long numWaited = 0;
};
thread_local Locks t_locks;
}

// The linker sends all calls of pthread_mutex_lock here (--wrap), those of std::mutex included.
extern "C" int __real_pthread_mutex_lock(pthread_mutex_t* pMutex); // NOLINT(bugprone-reserved-identifier)
extern "C" int __wrap_pthread_mutex_lock(pthread_mutex_t* pMutex)  // NOLINT(bugprone-reserved-identifier)
{
    if (!t_locks.isCounting)
        return __real_pthread_mutex_lock(pMutex);
    ++t_locks.numTaken;
    if (pthread_mutex_trylock(pMutex) == 0)
        return 0;
    ++t_locks.numWaited;
    return __real_pthread_mutex_lock(pMutex);
}

namespace
{
double processorSecondsOfThread()
{
    timespec time = {};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * 1e-9;
}

struct Made
{
    double processorSeconds = 0; // of evaluating
    Locks locks;
};

Made makeReports(int numRows, int numReports)
{
    Made made;
    for (int i = 0; i < numReports; ++i)
    {
        const auto pReport = createReport(allShapes().front(), numRows);
        VorBomTemplate result;
        const double start = processorSecondsOfThread();
        t_locks.isCounting = true;
        VorBomEvaluator2::evaluate(pReport.get(), &result);
        t_locks.isCounting = false;
        made.processorSeconds += processorSecondsOfThread() - start;
    }
    made.locks = t_locks;
    return made;
}

void measure(int numThreads, int numRows, int numReports)
{
    std::vector<Made> made(static_cast<std::size_t>(numThreads));
    const auto start = std::chrono::steady_clock::now();
    std::vector<std::thread> threads;
    for (Made& one : made)
        threads.emplace_back([&one, numRows, numReports] { one = makeReports(numRows, numReports); });
    for (std::thread& thread : threads)
        thread.join();
    const std::chrono::duration<double> wall = std::chrono::steady_clock::now() - start;

    double processorSeconds = 0;
    long long numTaken = 0, numWaited = 0;
    for (const Made& one : made)
    {
        processorSeconds += one.processorSeconds;
        numTaken += one.locks.numTaken;
        numWaited += one.locks.numWaited;
    }
    const double numAll = static_cast<double>(numThreads) * numReports;
    ComparisonRun::Line("threads", numThreads)
        .add("reportsPerSecond", numAll / wall.count())
        .add("processorMillisecondsOfEvaluation", processorSeconds * 1000 / numAll)
        .add("locksPerRow", static_cast<double>(numTaken) / (numAll * numRows))
        .add("locksWaitedFor", static_cast<double>(numWaited))
        .print();
}
}

int main(int argc, char** argv)
{
    const int numThreads = argc > 1 ? std::atoi(argv[1]) : 0;
    const int numRows = argc > 2 ? std::atoi(argv[2]) : 20000;
    const int numReports = argc > 3 ? std::atoi(argv[3]) : 5;
    if (numThreads < 1 || numRows < 1 || numReports < 1)
    {
        std::fprintf(stderr, "usage: ManyReports THREADS [ROWS [REPORTS]]\n");
        return 2;
    }
    // A process that never had a second thread counts texts without locked instructions: this one has had one.
    std::thread([] {}).join();
    for (int count = 1; count <= numThreads; count *= 2)
        measure(count, numRows, numReports);
    return 0;
}
