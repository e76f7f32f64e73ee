// A block's life, for 40 bytes asked for on thread A and given back on thread B:
//   A takes the first block of its magazine for 40-byte blocks; when both of its magazines are empty, the next 40 bytes of
//   its current chunk; when that is used up, a magazine that some thread has handed over, and only then a new chunk. B
//   puts the block into its own magazine; when that is full it becomes the spare one, and the spare one of before is
//   handed over as it is, without a look at its blocks, which are no longer in any cache. When B ends, its magazines and
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
#include <utility>
#include <vector>

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
// Both arbitrary: a chunk is large against a block and small against a report; a magazine, the bytes of one class that
// are handed over at once, fits the inner caches.
constexpr std::size_t kChunkSize = std::size_t{ 256 } * 1024;
constexpr std::size_t kMagazineSize = std::size_t{ 64 } * 1024;

struct FreeBlock
{
    FreeBlock* pNext;
};

// Free blocks of one class.
struct Magazine
{
    FreeBlock* pBlocks;
    std::size_t size; // in bytes, all of them
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
    std::array<Magazine, kNumClasses> current;
    std::array<Magazine, kNumClasses> spare; // full or empty
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
    std::array<std::vector<Magazine>, kNumClasses> magazines;
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

// Gives a magazine to the shared pool; 0 with nothing changed when there is no memory to note it in. Under the mutex.
int handOver(SharedPool& shared, Magazine& magazine, std::size_t sizeClass) noexcept
{
    try
    {
        if (magazine.pBlocks != nullptr)
            shared.magazines[sizeClass].push_back(magazine);
    }
    catch (const std::bad_alloc&)
    {
        return 0;
    }
    magazine = Magazine();
    return 1;
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
    {
        handOver(shared, pool.current[i], i);
        handOver(shared, pool.spare[i], i);
    }
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
    Magazine& magazine = pool.current[sizeClass];
    magazine.pBlocks = ::new (pBlock) FreeBlock{ magazine.pBlocks };
    magazine.size += sizeClass * kClassWidth;
}

// Null when both magazines are empty.
void* pop(ThreadPool& pool, std::size_t sizeClass)
{
    Magazine& magazine = pool.current[sizeClass];
    if (magazine.pBlocks == nullptr)
        std::swap(magazine, pool.spare[sizeClass]);
    FreeBlock* pBlock = magazine.pBlocks;
    if (pBlock == nullptr)
        return nullptr;
    magazine.pBlocks = pBlock->pNext;
    magazine.size -= sizeClass * kClassWidth;
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

void takeMagazine(ThreadPool& pool, std::size_t sizeClass)
{
    SharedPool& shared = theSharedPool();
    const std::lock_guard<std::mutex> lock(shared.mutex);
    std::vector<Magazine>& magazines = shared.magazines[sizeClass];
    if (magazines.empty())
        return;
    pool.current[sizeClass] = magazines.back();
    magazines.pop_back();
}

// Makes the full magazine the spare one, and gives the spare one of before to the shared pool: a thread that only frees
// what another allocates would keep it all otherwise, and memory would grow for ever.
void setFullMagazineAside(ThreadPool& pool, std::size_t sizeClass)
{
    SharedPool& shared = theSharedPool();
    const std::lock_guard<std::mutex> lock(shared.mutex);
    if (handOver(shared, pool.spare[sizeClass], sizeClass))
        std::swap(pool.current[sizeClass], pool.spare[sizeClass]);
}

void* allocateSmall(ThreadPool& pool, std::size_t sizeClass)
{
    if (void* pBlock = pop(pool, sizeClass))
        return pBlock;
    if (void* pBlock = carve(pool, sizeClass * kClassWidth))
        return pBlock;
    takeMagazine(pool, sizeClass);
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
    if (pool.current[sizeClass].size > kMagazineSize)
        setFullMagazineAside(pool, sizeClass);
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
