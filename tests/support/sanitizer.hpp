/// Whether a sanitizer watches, beneath which everything takes its time.
#pragma once

// g++ defines a macro, clang has a feature.
#if defined(__has_feature)
#if __has_feature(address_sanitizer) && !defined(__SANITIZE_ADDRESS__)
#define __SANITIZE_ADDRESS__ 1
#endif
#endif

#if defined(__SANITIZE_ADDRESS__)
#include <sanitizer/lsan_interface.h>
#endif

namespace support
{

/// While it lives nothing that is allocated counts as a leak: the platform leaks where it throws.
struct Leaks_Unwatched {
#if defined(__SANITIZE_ADDRESS__)
    Leaks_Unwatched() { __lsan_disable(); }
    ~Leaks_Unwatched() { __lsan_enable(); }
#else
    Leaks_Unwatched() {}
    ~Leaks_Unwatched() {}
#endif
    Leaks_Unwatched(const Leaks_Unwatched &) = delete;
    Leaks_Unwatched &operator=(const Leaks_Unwatched &) = delete;
};

/// By this much less is repeated beneath a sanitizer of addresses or threads.
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
constexpr unsigned slowness = 8;
#else
constexpr unsigned slowness = 1;
#endif

} // namespace support
