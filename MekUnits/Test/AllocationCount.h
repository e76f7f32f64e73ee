// Counts what this thread obtains through operator new.
#pragma once

// Thread- and AddressSanitizer bring their own operator new, which cannot be replaced.
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
#define MEK_ALLOCATIONS_ARE_COUNTED 0
#elif defined(__has_feature)
#if __has_feature(address_sanitizer) || __has_feature(thread_sanitizer)
#define MEK_ALLOCATIONS_ARE_COUNTED 0
#endif
#endif
#if !defined(MEK_ALLOCATIONS_ARE_COUNTED)
#define MEK_ALLOCATIONS_ARE_COUNTED 1
#endif

// Calls so far; always 0 where they are not counted.
long long countOfAllocations();
