/// A hash of runs of bytes, for hash tables in memory: it differs between machines.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>

namespace zeb::engine
{

/// Stirs a word into a hash.
inline std::uint64_t stir(std::uint64_t hash, std::uint64_t word) noexcept
{
    hash = (hash ^ word) * 0x9E3779B97F4A7C15u;
    return hash ^ (hash >> 29);
}

/// Equal runs have equal hashes.
inline std::uint64_t hash_bytes(const void *bytes, std::size_t size) noexcept
{
    const char *at = static_cast<const char *>(bytes);
    std::uint64_t hash = stir(0, size);
    for (; size >= sizeof hash; size -= sizeof hash, at += sizeof hash) {
        std::uint64_t word;
        std::memcpy(&word, at, sizeof word);
        hash = stir(hash, word);
    }
    if (size != 0) {
        std::uint64_t word = 0;
        std::memcpy(&word, at, size);
        hash = stir(hash, word);
    }
    return hash;
}

} // namespace zeb::engine
