/// Whole buffers through zlib, a chunk at a time.
#pragma once

#include <cstddef>
#include <cstdint>

namespace zeb::engine
{

/// The size of the pieces in which output is appended.
inline constexpr std::size_t zlib_chunk_size = 16384;

/// zlib's status for a destination that cannot grow.
inline constexpr std::int32_t zlib_out_of_memory = -4;

/// Where output goes: `append` takes a piece, and answers false where the destination cannot grow.
struct Zlib_Output {
    void *destination;
    bool (*append)(void *destination, const char *bytes, std::uint32_t length);
};

/// Compresses `length` bytes into the output, in the zlib format at the default level. Answers 0, a
/// negative zlib status (Z_MEM_ERROR where the output cannot grow), or -1 with a message on standard
/// error. Nothing is written for length 0.
std::int32_t compress(const char *bytes, std::uint32_t length, Zlib_Output output) noexcept;

/// Decompresses the zlib stream in `length` bytes. A stream that does not end is handed to zlib again from
/// its start, and zlib's answer to that is the answer; where none comes within 65,536 passes, 256 MiB of
/// input handed in again and 64 MiB of output beyond the first pass's, Z_DATA_ERROR ends it. What was
/// appended before a failure stays. Answers 0 for length 0.
std::int32_t decompress(const char *bytes, std::uint32_t length, Zlib_Output output) noexcept;

/// The text of a zlib status as it follows "zlib error: "; the empty text for -5 and for any other.
const char *zlib_status_text(std::int32_t status) noexcept;

} // namespace zeb::engine
