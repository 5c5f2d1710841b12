#include "tests/support/random_text.hpp"
#include "tests/support/zlib_sink.hpp"

#include <gtest/gtest.h>

#include <dlfcn.h>
#include <zlib.h>

using support::Sink;

static std::uint64_t bytes_inflated = 0;

// Stands before zlib's own, and counts what that consumes.
extern "C" int inflate(z_streamp stream, int flush)
{
    static const auto original = reinterpret_cast<int (*)(z_streamp, int)>(dlsym(RTLD_NEXT, "inflate"));
    const uInt given = stream->avail_in;
    const int status = original(stream, flush);
    bytes_inflated += given - stream->avail_in;
    return status;
}

namespace
{

std::string compressed(const std::string &source, std::size_t room = 0)
{
    Sink stored{"", std::string(room, '-')};
    EXPECT_EQ(stored.compress(source), 0);
    return stored.contents;
}

/// The required loop, with zlib alone; gives up, with 1, after some passes that all end alike.
std::int32_t literal_decompress(const std::string &source, std::string &output)
{
    z_stream stream{};
    inflateInit(&stream);
    int status = Z_OK;
    bool has_failed = false;
    for (int pass = 0; pass < 500 && !has_failed && status != Z_STREAM_END; ++pass) {
        stream.next_in = reinterpret_cast<Bytef *>(const_cast<char *>(source.data()));
        stream.avail_in = static_cast<uInt>(source.size());
        do {
            char chunk[16384];
            stream.next_out = reinterpret_cast<Bytef *>(chunk);
            stream.avail_out = sizeof chunk;
            status = inflate(&stream, Z_NO_FLUSH);
            has_failed = status == Z_DATA_ERROR || status == Z_MEM_ERROR || status == Z_NEED_DICT;
            output.append(chunk, has_failed ? 0 : sizeof chunk - stream.avail_out);
        } while (!has_failed && stream.avail_out == 0);
    }
    inflateEnd(&stream);
    return status == Z_STREAM_END ? 0 : status == Z_NEED_DICT ? Z_DATA_ERROR : has_failed ? status : 1;
}

/// Whether a stream ends as with the plain loop, wherever the output is made; not if that goes on for long.
bool ends_as_plain(const std::string &stream, std::size_t room)
{
    Sink sink{"", std::string(room, '-')};
    std::string expected;
    const std::int32_t answer = literal_decompress(stream, expected);
    if (answer == 1)
        return false;
    EXPECT_EQ(sink.decompress(stream), answer);
    EXPECT_EQ(sink.contents, expected);
    return true;
}

std::string some_text(std::size_t length)
{
    std::mt19937 random(7);
    return zeb_test::draw_text(random, length, "0123456789.,\n");
}

} // namespace

TEST(Zlib, gives_zlib_s_own_bytes_and_takes_them_back)
{
    for (const std::size_t length : {1u, 100u, 16384u, 16385u, 300000u}) {
        const std::string source = some_text(length);
        const std::string stored = compressed(source);
        std::string expected(compressBound(source.size()), '\0');
        uLongf size = expected.size();
        ::compress(reinterpret_cast<Bytef *>(expected.data()), &size,
                   reinterpret_cast<const Bytef *>(source.data()), source.size());
        EXPECT_EQ(stored, expected.substr(0, size));
        for (const std::size_t room : {0u, 20000u, 100000u}) {
            EXPECT_EQ(compressed(source, room), stored);
            for (const std::uint64_t bound : {length - 1, length, length + 1, engine::unbounded}) {
                Sink sink{"before ", std::string(room, '-')};
                EXPECT_EQ(sink.decompress(stored, bound), bound < length ? Z_BUF_ERROR : 0);
                EXPECT_EQ(sink.contents, "before " + source.substr(0, bound));
            }
        }
    }
    EXPECT_EQ(compressed(""), "");
}

TEST(Zlib, answers_for_damaged_streams_as_the_plain_loop_does)
{
    const std::string few = compressed(some_text(3000)), many = compressed(some_text(50000));
    std::mt19937 random(11);
    int endless = 0;
    for (std::size_t round = 0; round < 60; ++round) {
        std::string damaged = round % 4 < 2 ? few : many;
        if (round % 2 == 0)
            damaged.resize(1 + random() % (damaged.size() - 1));
        else
            damaged[random() % damaged.size()] ^= static_cast<char>(1 + random() % 255);
        if (!ends_as_plain(damaged, round % 3 * 33000) && ++endless <= 2) { // it takes its time
            EXPECT_EQ(Sink().decompress(damaged), Z_DATA_ERROR);
        }
    }
    EXPECT_GT(endless, 0);
    EXPECT_TRUE(ends_as_plain("\x78\xBB\x01\x02\x03\x04 needs a dictionary", 0));
}

TEST(Zlib, a_fault_right_behind_a_whole_chunk_discards_it_as_the_plain_loop_does)
{
    // Stored blocks whose last one has a wrong length: the output ends where a chunk does, or around that.
    for (const std::size_t length : {0u, 16383u, 16384u, 16385u, 32768u, 32769u}) {
        std::string stored("\x78\x9C", 2);
        stored.append({'\0', static_cast<char>(length), static_cast<char>(length >> 8),
                       static_cast<char>(~length), static_cast<char>(~length >> 8)});
        stored += some_text(length) + std::string("\x07 and no block", 14);
        EXPECT_TRUE(ends_as_plain(stored, 100000));
    }
}

TEST(Zlib, ends_on_input_that_gives_next_to_no_output)
{
    // Empty blocks, and the head of one that takes in the stream's first two bytes when they come again.
    std::string empty_blocks("\x78\x9C", 2);
    for (int i = 0; i < 4000; ++i)
        empty_blocks.append("\x00\x00\x00\xFF\xFF", 5);
    empty_blocks.append("\x00\x02\x00\xFD\xFF", 5);
    Sink sink;
    bytes_inflated = 0;
    EXPECT_EQ(sink.decompress(empty_blocks), Z_DATA_ERROR);
    constexpr std::uint64_t bound = std::uint64_t{256} << 20;
    EXPECT_GE(bytes_inflated, bound);
    EXPECT_LE(bytes_inflated, bound + 2 * empty_blocks.size());
}

TEST(Zlib, says_when_there_is_no_room)
{
    const std::string source = some_text(5000), stored = compressed(source);
    const engine::Zlib_Output full = {nullptr, [](void *, const char *, std::uint32_t) { return false; },
                                      [](void *) { return engine::Output_Room{}; },
                                      [](void *, std::uint32_t) {}};
    const auto size = static_cast<std::uint32_t>(stored.size());
    EXPECT_EQ(engine::decompress(stored.data(), size, full), Z_MEM_ERROR);
    EXPECT_EQ(engine::compress(source.data(), 5000, full), Z_MEM_ERROR);
    EXPECT_EQ(engine::decompress("", 0, full), 0);
}
