#include "AllocationCount.h"

#include <cstdlib>
#include <new>

namespace
{
thread_local long long t_numAllocations = 0;
}

long long countOfAllocations()
{
    return t_numAllocations;
}

#if MEK_ALLOCATIONS_ARE_COUNTED
void* operator new(std::size_t size)
{
    ++t_numAllocations;
    if (void* p = std::malloc(size == 0 ? 1 : size))
        return p;
    throw std::bad_alloc();
}

void operator delete(void* p) noexcept
{
    std::free(p);
}

void operator delete(void* p, std::size_t) noexcept
{
    std::free(p);
}
#endif
