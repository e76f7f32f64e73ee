// A block's life, for 40 bytes asked for on thread A and given back on thread B:
//   A takes the head of its free list for 40-byte blocks; when that is empty, the next 40 bytes of its current chunk; when
//   that is used up, a batch of the blocks that other threads have handed over, and only then a new chunk. B puts the
//   block at the head of its own list, and hands a batch over when the list has grown to two. When B ends, its lists and
//   the unused rest of its chunk are handed over too; what B's last thread-local objects still free then goes there at
//   once. Chunks are never returned to the system: a process that made one report is about to make the next.
#include "VorMemoryControllerController.h"

#include <array>
#include <atomic>
#include <cstdint>
#include <cstdlib>
#include <limits>
#include <mutex>
#include <new>

#if defined(__SANITIZE_ADDRESS__)
#define MEK_BYPASS_POOL
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
#define MEK_BYPASS_POOL
#endif
#endif

namespace
{
#if defined(MEK_BYPASS_POOL)
constexpr bool kUsesPool = false;
#else
constexpr bool kUsesPool = true;
#endif

constexpr std::size_t kClassWidth = 8; // multiples of 16 keep 16-byte alignment, since a class is carved aligned to it
constexpr std::size_t kNumClasses = VorMemoryControllerController::kLargestPooledBlock / kClassWidth + 1;
// Both arbitrary: a chunk is large against a block and small against a report; a batch, the bytes of one class that are
// handed over at once, fits the inner caches.
constexpr std::size_t kChunkSize = std::size_t{ 256 } * 1024;
constexpr std::size_t kBatchSize = std::size_t{ 64 } * 1024;

struct FreeBlock
{
    FreeBlock* pNext;
};

// A piece of chunk that a finished thread left unused. Stands in that very piece.
struct UnusedPiece
{
    UnusedPiece* pNext;
    std::size_t size;
};

// One per thread, constant-initialised and without destructor: blocks may be freed until the very end of a thread.
struct ThreadPool
{
    std::array<FreeBlock*, kNumClasses> freeLists;
    std::array<std::size_t, kNumClasses> freeSizes; // bytes in each list
    char* pUnused;
    std::size_t unusedSize;
    std::atomic<long long> numLive; // written by its thread alone, read by all
    ThreadPool* pNext;
    bool isListed;
    bool isRetired;
};

thread_local ThreadPool t_pool = {};

// What threads share, under the mutex. Never destroyed.
struct SharedPool
{
    std::mutex mutex;
    std::array<FreeBlock*, kNumClasses> freeLists = {};
    UnusedPiece* pUnusedPieces = nullptr;
    void* pChunks = nullptr; // each chunk's first pointer names the one before, so that all stay reachable
    ThreadPool* pThreads = nullptr;
    long long numLiveOfEndedThreads = 0;
};

SharedPool& theSharedPool()
{
    static SharedPool* pShared = new SharedPool;
    return *pShared;
}

void addLive(ThreadPool& pool, long long change)
{
    pool.numLive.store(pool.numLive.load(std::memory_order_relaxed) + change, std::memory_order_relaxed);
}

// Moves blocks of `blockSize` bytes each from the front of `pSource` to that of `pTarget`, until `size` bytes or all that
// there are have gone. Returns the bytes moved.
std::size_t moveBlocks(FreeBlock*& pTarget, FreeBlock*& pSource, std::size_t blockSize, std::size_t size)
{
    if (pSource == nullptr)
        return 0;
    FreeBlock* pFirst = pSource;
    FreeBlock* pLast = pFirst;
    std::size_t moved = blockSize;
    for (; moved < size && pLast->pNext != nullptr; moved += blockSize)
        pLast = pLast->pNext;
    pSource = pLast->pNext;
    pLast->pNext = pTarget;
    pTarget = pFirst;
    return moved;
}

void removeFromList(ThreadPool*& pHead, ThreadPool& pool)
{
    ThreadPool** ppLink = &pHead;
    while (*ppLink != &pool)
        ppLink = &(*ppLink)->pNext;
    *ppLink = pool.pNext;
}

// Ends a thread's membership: its blocks, its unused piece and its count go to the shared pool.
void retire(ThreadPool& pool)
{
    SharedPool& shared = theSharedPool();
    const std::lock_guard<std::mutex> lock(shared.mutex);
    for (std::size_t i = 0; i < kNumClasses; ++i)
        moveBlocks(shared.freeLists[i], pool.freeLists[i], i * kClassWidth, pool.freeSizes[i]);
    pool.freeSizes.fill(0);
    if (pool.unusedSize >= sizeof(UnusedPiece))
        shared.pUnusedPieces = ::new (pool.pUnused) UnusedPiece{ shared.pUnusedPieces, pool.unusedSize };
    pool.pUnused = nullptr;
    pool.unusedSize = 0;
    shared.numLiveOfEndedThreads += pool.numLive.exchange(0, std::memory_order_relaxed);
    removeFromList(shared.pThreads, pool);
    pool.isListed = false;
    pool.isRetired = true;
}

struct Retirement
{
    ThreadPool* pPool = nullptr;
    ~Retirement()
    {
        if (pPool != nullptr)
            retire(*pPool);
    }
};

thread_local Retirement t_retirement;

void enlist(ThreadPool& pool)
{
    SharedPool& shared = theSharedPool();
    {
        const std::lock_guard<std::mutex> lock(shared.mutex);
        pool.pNext = shared.pThreads;
        shared.pThreads = &pool;
        pool.isListed = true;
    }
    if (!pool.isRetired)
        t_retirement.pPool = &pool;
}

void* allocateFromSystem(std::size_t size)
{
    void* pBlock = std::malloc(size);
    if (pBlock == nullptr)
        throw std::bad_alloc();
    return pBlock;
}

bool isPooled(std::size_t size)
{
    return kUsesPool && size <= VorMemoryControllerController::kLargestPooledBlock;
}

std::size_t classOf(std::size_t size)
{
    return (size + kClassWidth - 1) / kClassWidth;
}

void push(ThreadPool& pool, void* pBlock, std::size_t sizeClass)
{
    pool.freeLists[sizeClass] = ::new (pBlock) FreeBlock{ pool.freeLists[sizeClass] };
    pool.freeSizes[sizeClass] += sizeClass * kClassWidth;
}

void* pop(ThreadPool& pool, std::size_t sizeClass)
{
    FreeBlock* pBlock = pool.freeLists[sizeClass];
    if (pBlock == nullptr)
        return nullptr;
    pool.freeLists[sizeClass] = pBlock->pNext;
    pool.freeSizes[sizeClass] -= sizeClass * kClassWidth;
    return pBlock;
}

// Cuts `size` bytes off the unused piece.
void* cut(ThreadPool& pool, std::size_t size)
{
    void* pBlock = pool.pUnused;
    pool.pUnused += size;
    pool.unusedSize -= size;
    return pBlock;
}

// Makes the unused piece start at a multiple of 16.
void alignUnused(ThreadPool& pool)
{
    if (pool.unusedSize >= kClassWidth && reinterpret_cast<std::uintptr_t>(pool.pUnused) % 16 != 0)
        push(pool, cut(pool, kClassWidth), 1);
}

void* carve(ThreadPool& pool, std::size_t size)
{
    if (size % 16 == 0)
        alignUnused(pool);
    return pool.unusedSize < size ? nullptr : cut(pool, size);
}

// Whatever is left of the unused piece becomes one free block, then the next piece is taken.
void takeNextPiece(ThreadPool& pool)
{
    alignUnused(pool);
    if (const std::size_t sizeClass = pool.unusedSize / kClassWidth)
        push(pool, cut(pool, sizeClass * kClassWidth), sizeClass);

    SharedPool& shared = theSharedPool();
    const std::lock_guard<std::mutex> lock(shared.mutex);
    if (UnusedPiece* pPiece = shared.pUnusedPieces)
    {
        shared.pUnusedPieces = pPiece->pNext;
        pool.unusedSize = pPiece->size;
        pool.pUnused = reinterpret_cast<char*>(pPiece);
        return;
    }
    constexpr std::size_t kHeadSize = 16;
    char* pChunk = static_cast<char*>(allocateFromSystem(kChunkSize));
    shared.pChunks = ::new (pChunk) void*(shared.pChunks);
    pool.pUnused = pChunk + kHeadSize;
    pool.unusedSize = kChunkSize - kHeadSize;
}

void takeBatch(ThreadPool& pool, std::size_t sizeClass)
{
    SharedPool& shared = theSharedPool();
    const std::lock_guard<std::mutex> lock(shared.mutex);
    pool.freeSizes[sizeClass] +=
        moveBlocks(pool.freeLists[sizeClass], shared.freeLists[sizeClass], sizeClass * kClassWidth, kBatchSize);
}

// Without this a thread that frees what another allocates would keep it all, and memory would grow for ever.
void handOverBatch(ThreadPool& pool, std::size_t sizeClass)
{
    SharedPool& shared = theSharedPool();
    const std::lock_guard<std::mutex> lock(shared.mutex);
    pool.freeSizes[sizeClass] -=
        moveBlocks(shared.freeLists[sizeClass], pool.freeLists[sizeClass], sizeClass * kClassWidth, kBatchSize);
}

void* allocateSmall(ThreadPool& pool, std::size_t sizeClass)
{
    if (void* pBlock = pop(pool, sizeClass))
        return pBlock;
    if (void* pBlock = carve(pool, sizeClass * kClassWidth))
        return pBlock;
    takeBatch(pool, sizeClass);
    if (void* pBlock = pop(pool, sizeClass))
        return pBlock;
    for (;;)
    {
        takeNextPiece(pool);
        if (void* pBlock = carve(pool, sizeClass * kClassWidth))
            return pBlock;
    }
}

void freeSmall(ThreadPool& pool, void* pBlock, std::size_t sizeClass)
{
    push(pool, pBlock, sizeClass);
    if (pool.freeSizes[sizeClass] > 2 * kBatchSize)
        handOverBatch(pool, sizeClass);
}

// After its retirement a thread has no pool: each call enlists it anew and retires it at once.
class PoolOfThisThread
{
public:
    PoolOfThisThread() : m_pool(t_pool)
    {
        if (!m_pool.isListed)
            enlist(m_pool);
    }
    ~PoolOfThisThread()
    {
        if (m_pool.isRetired)
            retire(m_pool);
    }
    PoolOfThisThread(const PoolOfThisThread&) = delete;
    PoolOfThisThread& operator=(const PoolOfThisThread&) = delete;

    ThreadPool& operator*() { return m_pool; }

private:
    ThreadPool& m_pool;
};
}

void* VorMemoryControllerController::allocateArray(std::size_t numElements, std::size_t elementSize)
{
    if (numElements == 0 || elementSize == 0)
        return nullptr;
    if (numElements > std::numeric_limits<std::size_t>::max() / elementSize)
        throw std::bad_alloc();
    const std::size_t size = numElements * elementSize;
    PoolOfThisThread pool;
    void* pBlock = isPooled(size) ? allocateSmall(*pool, classOf(size)) : allocateFromSystem(size);
    addLive(*pool, 1);
    return pBlock;
}

void VorMemoryControllerController::deallocateArray(void* pBlock, std::size_t numElements, std::size_t elementSize)
{
    if (pBlock == nullptr)
        return;
    const std::size_t size = numElements * elementSize;
    PoolOfThisThread pool;
    if (isPooled(size))
        freeSmall(*pool, pBlock, classOf(size));
    else
        std::free(pBlock);
    addLive(*pool, -1);
}

long long VorMemoryControllerController::liveBlocks()
{
    SharedPool& shared = theSharedPool();
    const std::lock_guard<std::mutex> lock(shared.mutex);
    long long numLive = shared.numLiveOfEndedThreads;
    for (const ThreadPool* pPool = shared.pThreads; pPool != nullptr; pPool = pPool->pNext)
        numLive += pPool->numLive.load(std::memory_order_relaxed);
    return numLive;
}
