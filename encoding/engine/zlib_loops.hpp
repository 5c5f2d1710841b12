/// Compression and decompression of whole buffers with zlib, appended as if chunk by chunk.
#pragma once

#include <cstddef>
#include <cstdint>

namespace zeb::engine
{

/// The size in bytes of the chunks in which output is appended.
inline constexpr std::uint32_t zlib_chunk_size = 16384;

/// zlib's statuses for a destination that cannot grow, and for output beyond a bound.
inline constexpr std::int32_t zlib_out_of_memory = -4;
inline constexpr std::int32_t zlib_out_of_room = -5;

/// Memory that output may be written to.
struct Output_Room {
    char *bytes;
    std::uint32_t size;
};

/// The destination of output.
struct Zlib_Output {
    void *destination;

    /// Appends a chunk; false if the destination cannot grow.
    bool (*append)(void *destination, const char *bytes, std::uint32_t length);

    /// Returns the room after the contents that an append would fill without growing; size 0 for none.
    Output_Room (*room)(void *destination);

    /// Makes the first `length` bytes of that room contents.
    void (*keep)(void *destination, std::uint32_t length);
};

/// No bound of a decompression.
inline constexpr std::uint64_t unbounded = UINT64_MAX;

/// Compresses `length` bytes into the output, in the zlib format at the default level. Returns 0, a negative
/// zlib status (Z_MEM_ERROR if the output cannot grow), or -1 after a message on standard error. Length 0
/// writes nothing.
std::int32_t compress(const char *bytes, std::uint32_t length, Zlib_Output output) noexcept;

/// Decompresses the zlib stream in `length` bytes and returns zlib's status; 0 for length 0. If the input
/// ends before the stream does, it is passed to inflate again, at most 65,536 times, 256 MiB of repeated
/// input, or 64 MiB of output beyond that of the first pass; then the result is Z_DATA_ERROR. What was
/// appended before a failure stays. Output of more than `bound` bytes ends there, with Z_BUF_ERROR.
std::int32_t decompress(const char *bytes, std::uint32_t length, Zlib_Output output,
                        std::uint64_t bound = unbounded) noexcept;

/// The status of a stream that did not end in one pass.
inline constexpr std::int32_t zlib_truncated = 1;

/// Decompresses in the same way, but passes the input once only; returns `zlib_truncated` if it ends before
/// the stream does.
std::int32_t decompress_once(const char *bytes, std::uint32_t length, Zlib_Output output,
                             std::uint64_t bound = unbounded) noexcept;

/// Output that nobody keeps.
Zlib_Output discarded_output() noexcept;

/// Returns the text that follows "zlib error: " for a status; empty for -5 and unknown ones.
const char *zlib_status_text(std::int32_t status) noexcept;

} // namespace zeb::engine
