#include "encoding/engine/zlib_loops.hpp"

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

constexpr std::int32_t no_verdict = 1;

static_assert(zlib_out_of_memory == Z_MEM_ERROR);

void report_line(const char *line) noexcept { std::fputs(line, stderr); }

void set_input(z_stream &stream, const char *bytes, std::uint32_t length) noexcept
{
    // zlib only reads its input; its interface predates const.
    stream.next_in = reinterpret_cast<Bytef *>(const_cast<char *>(bytes));
    stream.avail_in = length;
}

/// Gives zlib an output chunk, runs it, appends its output, and returns zlib's status.
template <class Run>
int run_chunk(z_stream &stream, Zlib_Output output, Run run) noexcept
{
    char chunk[zlib_chunk_size];
    stream.next_out = reinterpret_cast<Bytef *>(chunk);
    stream.avail_out = zlib_chunk_size;
    const int status = run(stream);
    const auto made = static_cast<std::uint32_t>(zlib_chunk_size - stream.avail_out);
    if (status != Z_STREAM_ERROR && made != 0 && !output.append(output.destination, chunk, made))
        return Z_MEM_ERROR;
    return status;
}

int deflate_to_end(z_stream &stream, Zlib_Output output) noexcept
{
    int status;
    do
        status = run_chunk(stream, output, [](z_stream &s) { return deflate(&s, Z_FINISH); });
    while (status >= Z_OK && stream.avail_out == 0);
    return status;
}

/// Runs inflate over the input once. Returns the final status, or `no_verdict` if the input ends before the
/// stream does.
std::int32_t inflate_pass(z_stream &stream, Zlib_Output output, std::uint64_t output_limit) noexcept
{
    do {
        // A failed call discards its own chunk; earlier output stays.
        const int status = run_chunk(stream, output, [](z_stream &s) {
            const int answer = inflate(&s, Z_NO_FLUSH);
            if (answer == Z_DATA_ERROR || answer == Z_MEM_ERROR || answer == Z_NEED_DICT)
                s.avail_out = zlib_chunk_size;
            return answer;
        });
        if (status == Z_STREAM_ERROR)
            report_line("decompress error: stream is not OK.\n");
        if (status == Z_NEED_DICT)
            return Z_DATA_ERROR;
        if (status == Z_DATA_ERROR || status == Z_MEM_ERROR || status == Z_STREAM_ERROR)
            return status;
        if (stream.total_out > output_limit)
            return Z_DATA_ERROR;
        if (status == Z_STREAM_END && stream.avail_out != 0)
            return Z_OK;
    } while (stream.avail_out == 0);
    return no_verdict;
}

std::int32_t inflate_to_end(z_stream &stream, const char *bytes, std::uint32_t length,
                            Zlib_Output output) noexcept
{
    set_input(stream, bytes, length);
    std::int32_t verdict = inflate_pass(stream, output, UINT64_MAX);
    const std::uint64_t output_limit = stream.total_out + greatest_refed_output;
    std::uint64_t refed_input = 0;
    for (std::uint32_t pass = 1;
         verdict == no_verdict && pass < greatest_pass_count && refed_input < greatest_refed_input; ++pass) {
        set_input(stream, bytes, length);
        refed_input += length;
        verdict = inflate_pass(stream, output, output_limit);
    }
    return verdict == no_verdict ? Z_DATA_ERROR : verdict;
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

std::int32_t decompress(const char *bytes, std::uint32_t length, Zlib_Output output) noexcept
{
    if (length == 0)
        return Z_OK;
    z_stream stream{};
    const int started = inflateInit(&stream);
    if (started != Z_OK) {
        report_line("decompress error: stream is not OK.\n");
        return started;
    }
    const std::int32_t verdict = inflate_to_end(stream, bytes, length, output);
    inflateEnd(&stream);
    return verdict;
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
