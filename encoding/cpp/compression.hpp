/// Compression in the zlib format, and check sums.
#pragma once

#include <Korvane_ZEB_engine/array.hpp>

namespace zeb
{

/// How a compression or decompression ended.
enum class Compression_Status {
    done,
    out_of_memory,
    damaged,      ///< what was to be decompressed is no zlib stream, or ends before the stream does
    beyond_bound, ///< the output is longer than the bound
};

/// Appends the source, of up to 4294967295 bytes, in compressed form; nothing for an empty one. What was
/// appended before a failure is removed again. The source may lie in the destination.
[[nodiscard]] Compression_Status compress(std::span<const std::uint8_t> source,
                                          Array<std::uint8_t> &destination) noexcept;

/// Appends what was compressed to the source, `bound` bytes at most: a small source may hold gigabytes. As
/// above, nothing is appended on a failure.
[[nodiscard]] Compression_Status decompress(std::span<const std::uint8_t> source,
                                            Array<std::uint8_t> &destination,
                                            std::uint64_t bound = greatest_count - 1) noexcept;

/// Returns the CRC-32 of zlib and PNG.
std::uint32_t check_sum(std::span<const std::uint8_t> bytes) noexcept;

} // namespace zeb
