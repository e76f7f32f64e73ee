#include "BatchesAhead.h"

#include <limits>
#include <system_error>
#include <utility>

namespace mekbom
{
namespace
{
const std::size_t kNumAlone = 16;  // arbitrary: some 8,000 rows, which take far longer than starting a thread
const std::size_t kNumBatches = 4; // arbitrary: one is used up, one filled, two make up for what either waits
}

BatchesAhead::BatchesAhead(CellReader& cells, std::size_t numColumns, unsigned numProcessors)
    : m_cells(cells),
      m_batches(kNumBatches, RowBatch(numColumns)),
      m_numAlone(numProcessors > 1 ? kNumAlone : std::numeric_limits<std::size_t>::max())
{
}

// Somebody may have thrown while the thread reads, or waits for room.
BatchesAhead::~BatchesAhead()
{
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_isGivenUp = true;
    }
    m_hasChanged.notify_one();
    if (m_thread.joinable())
        m_thread.join();
}

const RowBatch* BatchesAhead::next()
{
    if (m_numAlone == 0 && !m_thread.joinable())
        startThread();
    if (m_thread.joinable())
        return takeBatch();
    --m_numAlone;
    return m_cells.read(m_batches.front()) ? &m_batches.front() : nullptr;
}

// A system that gives no further thread is no reason to give no list.
void BatchesAhead::startThread()
{
    try
    {
        m_thread = std::thread([this] { readAhead(); });
    }
    catch (const std::system_error&)
    {
        m_numAlone = std::numeric_limits<std::size_t>::max();
    }
}

void BatchesAhead::readAhead()
{
    try
    {
        while (waitForRoom() && m_cells.read(batchAt(m_numRead)))
            handOver();
        end(nullptr);
    }
    catch (...)
    {
        end(std::current_exception());
    }
}

// False when no more is wanted.
bool BatchesAhead::waitForRoom()
{
    std::unique_lock<std::mutex> lock(m_mutex);
    m_hasChanged.wait(lock, [this] { return m_isGivenUp || m_numRead + 1 < m_numTaken + m_batches.size(); });
    return !m_isGivenUp;
}

void BatchesAhead::handOver()
{
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        ++m_numRead;
    }
    m_hasChanged.notify_one();
}

void BatchesAhead::end(std::exception_ptr pError)
{
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_isOver = true;
        m_pError = std::move(pError);
    }
    m_hasChanged.notify_one();
}

// The batches before an error come first, as they do without the thread.
const RowBatch* BatchesAhead::takeBatch()
{
    std::unique_lock<std::mutex> lock(m_mutex);
    m_hasChanged.wait(lock, [this] { return m_isOver || m_numTaken < m_numRead; });
    if (m_numTaken < m_numRead)
    {
        const RowBatch& batch = batchAt(m_numTaken++);
        lock.unlock();
        m_hasChanged.notify_one();
        return &batch;
    }
    lock.unlock();
    m_thread.join();
    if (m_pError)
        std::rethrow_exception(m_pError);
    return nullptr;
}
}
