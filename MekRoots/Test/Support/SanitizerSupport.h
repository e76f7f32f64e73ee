// Which sanitizer this program was built with. With AddressSanitizer the pool is bypassed, so that tests of the pool
// itself say nothing there.
#pragma once

#if defined(__SANITIZE_ADDRESS__)
#define MEK_TEST_ADDRESS_SANITIZER
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
#define MEK_TEST_ADDRESS_SANITIZER
#endif
#endif

#if defined(MEK_TEST_ADDRESS_SANITIZER)
constexpr bool kPoolIsBypassed = true;
#else
constexpr bool kPoolIsBypassed = false;
#endif
