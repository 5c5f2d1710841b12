#include "encoding/engine/zlib_loops.hpp"

#include <algorithm>
#include <cstdio>
#include <zlib.h>

namespace zeb::engine
{
namespace
{

// A truncated stream that is passed again can make zlib run for ever, with or without output. These bounds
// lie far beyond what any stream that ends needs.
constexpr std::uint32_t greatest_pass_count = 65536;
constexpr std::uint64_t greatest_refed_input = std::uint64_t{256} << 20;
constexpr std::uint64_t greatest_refed_output = std::uint64_t{64} << 20;

static_assert(zlib_out_of_memory == Z_MEM_ERROR && zlib_out_of_room == Z_BUF_ERROR);

void report_line(const char *line) noexcept { std::fputs(line, stderr); }

void set_input(z_stream &stream, const char *bytes, std::uint32_t length) noexcept
{
    // zlib only reads its input; its interface predates const.
    stream.next_in = reinterpret_cast<Bytef *>(const_cast<char *>(bytes));
    stream.avail_in = length;
}

/// What zlib made in one call.
struct Made {
    int status;
    std::uint32_t size;
};

/// Runs zlib once with `size` bytes of room at `bytes`.
template <class Run>
Made run_once(z_stream &stream, char *bytes, std::uint32_t size, Run run) noexcept
{
    stream.next_out = reinterpret_cast<Bytef *>(bytes);
    stream.avail_out = size;
    const int status = run(stream);
    return {status, size - stream.avail_out};
}

/// Runs zlib once, into the destination's own room if whole chunks fit there and into a chunk of its own
/// else, and keeps what `kept` says of what was made. Returns zlib's status.
template <class Run, class Kept>
int run_into(z_stream &stream, Zlib_Output output, std::uint64_t most, Run run, Kept kept) noexcept
{
    Output_Room room = output.room(output.destination);
    room.size = static_cast<std::uint32_t>(std::min<std::uint64_t>(room.size, most));
    room.size -= room.size % zlib_chunk_size;
    if (room.size != 0) {
        const Made made = run_once(stream, room.bytes, room.size, run);
        output.keep(output.destination, kept(made));
        return made.status;
    }
    char chunk[zlib_chunk_size];
    const Made made = run_once(stream, chunk, zlib_chunk_size, run);
    const std::uint32_t length = kept(made);
    return length == 0 || output.append(output.destination, chunk, length) ? made.status : Z_MEM_ERROR;
}

int deflate_to_end(z_stream &stream, Zlib_Output output) noexcept
{
    int status;
    do
        status = run_into(
            stream, output, unbounded, [](z_stream &s) { return deflate(&s, Z_FINISH); },
            [](Made made) { return made.status == Z_STREAM_ERROR ? 0 : made.size; });
    while (status >= Z_OK && stream.avail_out == 0);
    return status;
}

/// A decompression under way.
struct Inflation {
    z_stream stream;
    Zlib_Output output;
    std::uint64_t bound;
};

/// Returns how much of what a call made is kept. A failure discards the last chunk of those in which the
/// output would have been made, which may be a whole one.
std::uint32_t kept_of(Made made) noexcept
{
    switch (made.status) {
    case Z_STREAM_ERROR:
        return 0;
    case Z_DATA_ERROR:
    case Z_MEM_ERROR:
    case Z_NEED_DICT:
        return made.size == 0 ? 0 : (made.size - 1) / zlib_chunk_size * zlib_chunk_size;
    default:
        return made.size;
    }
}

/// Runs inflate once and appends at most `most` bytes of output; what lies beyond the bound is discarded.
int inflate_once(Inflation &inflation, std::uint64_t most) noexcept
{
    const std::uint64_t left = inflation.bound - inflation.stream.total_out;
    return run_into(
        inflation.stream, inflation.output, std::min(most, left),
        [](z_stream &s) { return inflate(&s, Z_NO_FLUSH); },
        [left](Made made) {
            return static_cast<std::uint32_t>(std::min<std::uint64_t>(kept_of(made), left));
        });
}

/// Runs inflate over the input once, in pieces of at most `most` bytes, until the output exceeds `limit`.
/// Returns the final status, or `zlib_truncated` if the input ends before the stream does.
std::int32_t inflate_pass(Inflation &inflation, std::uint64_t most, std::uint64_t limit) noexcept
{
    z_stream &stream = inflation.stream;
    do {
        const int status = inflate_once(inflation, most);
        if (status == Z_STREAM_ERROR)
            report_line("decompress error: stream is not OK.\n");
        if (status == Z_NEED_DICT)
            return Z_DATA_ERROR;
        if (status == Z_DATA_ERROR || status == Z_MEM_ERROR || status == Z_STREAM_ERROR)
            return status;
        if (stream.total_out > inflation.bound)
            return Z_BUF_ERROR;
        if (stream.total_out > limit)
            return Z_DATA_ERROR;
        if (status == Z_STREAM_END && stream.avail_out != 0)
            return Z_OK;
    } while (stream.avail_out == 0);
    return zlib_truncated;
}

std::int32_t inflate_once_through(Inflation &inflation, const char *bytes, std::uint32_t length) noexcept
{
    set_input(inflation.stream, bytes, length);
    return inflate_pass(inflation, unbounded, unbounded);
}

std::int32_t inflate_to_end(Inflation &inflation, const char *bytes, std::uint32_t length) noexcept
{
    std::int32_t verdict = inflate_once_through(inflation, bytes, length);
    const std::uint64_t limit = inflation.stream.total_out + greatest_refed_output;
    std::uint64_t refed_input = 0;
    for (std::uint32_t pass = 1;
         verdict == zlib_truncated && pass < greatest_pass_count && refed_input < greatest_refed_input;
         ++pass) {
        set_input(inflation.stream, bytes, length);
        refed_input += length;
        verdict = inflate_pass(inflation, zlib_chunk_size, limit);
    }
    return verdict == zlib_truncated ? Z_DATA_ERROR : verdict;
}

/// Runs an inflation between its start and its end.
template <class Inflate>
std::int32_t run_inflation(const char *bytes, std::uint32_t length, Inflation inflation,
                           Inflate inflate) noexcept
{
    if (length == 0)
        return Z_OK;
    const int started = inflateInit(&inflation.stream);
    if (started != Z_OK) {
        report_line("decompress error: stream is not OK.\n");
        return started;
    }
    const std::int32_t verdict = inflate(inflation, bytes, length);
    inflateEnd(&inflation.stream);
    return verdict;
}

} // namespace

std::int32_t compress(const char *bytes, std::uint32_t length, Zlib_Output output) noexcept
{
    if (length == 0)
        return Z_OK;
    z_stream stream{};
    const int started = deflateInit(&stream, Z_DEFAULT_COMPRESSION);
    if (started != Z_OK)
        return started;
    set_input(stream, bytes, length);
    const int status = deflate_to_end(stream, output);
    const std::uint32_t left = stream.avail_in;
    deflateEnd(&stream);
    if (status == Z_MEM_ERROR)
        return status;
    if (status == Z_STREAM_ERROR) {
        report_line("compress error.\n");
        return -1;
    }
    if (left != 0) {
        report_line("compress error: did not use all of the input buffer.\n");
        return -1;
    }
    if (status != Z_STREAM_END) {
        report_line("compress error: did not compress to the end of the stream.\n");
        return -1;
    }
    return Z_OK;
}

std::int32_t decompress(const char *bytes, std::uint32_t length, Zlib_Output output,
                        std::uint64_t bound) noexcept
{
    return run_inflation(bytes, length, {{}, output, bound}, inflate_to_end);
}

std::int32_t decompress_once(const char *bytes, std::uint32_t length, Zlib_Output output,
                             std::uint64_t bound) noexcept
{
    return run_inflation(bytes, length, {{}, output, bound}, inflate_once_through);
}

Zlib_Output discarded_output() noexcept
{
    return {nullptr, [](void *, const char *, std::uint32_t) { return true; },
            [](void *) {
                return Output_Room{nullptr, 0};
            },
            [](void *, std::uint32_t) {}};
}

const char *zlib_status_text(std::int32_t status) noexcept
{
    switch (status) {
    case Z_VERSION_ERROR:
        return "zlib version mismatch.\n";
    case Z_MEM_ERROR:
        return "out of memory.\n";
    case Z_DATA_ERROR:
        return "invalid or incomplete deflate data.\n";
    case Z_STREAM_ERROR:
        return "invalid compression level.\n";
    case Z_ERRNO:
        return "General error.\n";
    default:
        return "";
    }
}

} // namespace zeb::engine
