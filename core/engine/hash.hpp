/// A hash of bytes in memory, for hash tables. Its values depend on the machine's byte order.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>

namespace zeb::engine
{

/// Mixes a word into a hash.
inline std::uint64_t mix(std::uint64_t hash, std::uint64_t word) noexcept
{
    hash = (hash ^ word) * 0x9E3779B97F4A7C15u;
    return hash ^ (hash >> 29);
}

/// Returns the hash of a run of bytes.
inline std::uint64_t hash_bytes(const void *bytes, std::size_t size) noexcept
{
    const char *at = static_cast<const char *>(bytes);
    std::uint64_t hash = mix(0, size);
    for (; size >= sizeof hash; size -= sizeof hash, at += sizeof hash) {
        std::uint64_t word;
        std::memcpy(&word, at, sizeof word);
        hash = mix(hash, word);
    }
    if (size != 0) {
        std::uint64_t word = 0;
        std::memcpy(&word, at, size);
        hash = mix(hash, word);
    }
    return hash;
}

} // namespace zeb::engine
