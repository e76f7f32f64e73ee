// The batches of a parts list, read ahead on a thread of their own once a list proves to be long:
//
//   BatchesAhead batches(cells, numColumns, 2);
//   while (const RowBatch* const pBatch = batches.next())
//       rows.build(*pBatch);
//
//   this thread      reads 1, builds 1, ...   reads 16, builds 16   builds 17   builds 18   ...
//   the other one                                                   reads 17    reads 18 .. 21, then waits
//
// Batches and errors are the same, and come in the same order, with one thread and with two. Rows are made, evaluated
// and freed on the thread that asks for batches, so that their memory is its own.
#pragma once

#include "CellReader.h"
#include "RowBatch.h"

#include <condition_variable>
#include <cstddef>
#include <exception>
#include <mutex>
#include <thread>
#include <vector>

namespace mekbom
{
class BatchesAhead
{
public:
    // `cells` are not owned and outlive this; nobody else looks at them before next() has come to its end. With fewer
    // processors than two there is no other thread.
    BatchesAhead(CellReader& cells, std::size_t numColumns, unsigned numProcessors);
    BatchesAhead(const BatchesAhead&) = delete;
    BatchesAhead& operator=(const BatchesAhead&) = delete;
    ~BatchesAhead();

    // The next batch, good until the next call; null at the end. Throws what reading it has thrown.
    const RowBatch* next();

private:
    RowBatch& batchAt(std::size_t number) { return m_batches[number % m_batches.size()]; }
    void startThread();
    void readAhead();
    bool waitForRoom();
    void handOver();
    void end(std::exception_ptr pError);
    const RowBatch* takeBatch();

    CellReader& m_cells;
    std::vector<RowBatch> m_batches; // batch 7 that the thread reads stands at 7 modulo their number
    std::size_t m_numAlone;          // batches that are still to be read without the thread

    // Shared by both threads, under the mutex. The batch taken last is the caller's.
    std::mutex m_mutex;
    std::condition_variable m_hasChanged;
    std::size_t m_numRead = 0;
    std::size_t m_numTaken = 0;
    bool m_isOver = false;    // no further batch comes
    bool m_isGivenUp = false; // none is wanted
    std::exception_ptr m_pError;

    std::thread m_thread;
};
}
