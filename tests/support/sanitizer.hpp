/// Whether a sanitizer watches, beneath which everything takes its time.
#pragma once

// g++ defines a macro, clang has a feature.
#if defined(__has_feature)
#if __has_feature(address_sanitizer) && !defined(__SANITIZE_ADDRESS__)
#define __SANITIZE_ADDRESS__ 1
#endif
#endif

namespace support
{

/// By this much less is repeated beneath a sanitizer of addresses or threads.
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
constexpr unsigned slowness = 8;
#else
constexpr unsigned slowness = 1;
#endif

} // namespace support
