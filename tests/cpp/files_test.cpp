#include <Korvane_ZEB_engine/Korvane_ZEB_engine.hpp>

#include "tests/support/memory.hpp"
#include "tests/support/scratch_folder.hpp"

#include <algorithm>
#include <cerrno>
#include <gtest/gtest.h>
#include <vector>

namespace
{

using Buffer = zeb::Array<std::uint8_t>;
using enum zeb::Compression_Status;

Buffer document(std::span<const double> numbers, std::span<const std::string_view> texts)
{
    Buffer buffer;
    EXPECT_TRUE(zeb::append_header(buffer) && zeb::append_record(buffer, numbers) &&
                zeb::append_text_records(buffer, texts));
    return buffer;
}

TEST(Cpp_Records, come_back_and_are_refused_when_cut_anywhere)
{
    const std::vector<double> numbers{1.5, -2, 1e300};
    const std::vector<std::string_view> texts{"a", "", "bc"};
    const Buffer buffer = document(numbers, texts);
    for (std::size_t length = 0; length <= buffer.size(); ++length) {
        auto records = zeb::read_header(zeb::Bytes(buffer).first(length));
        ASSERT_EQ(records.has_value(), length >= 64);
        zeb::Array<double> read;
        std::vector<std::string_view> found;
        bool whole = records && zeb::take_record(*records, read);
        EXPECT_TRUE(whole || read.empty());
        const auto count = whole ? zeb::take_count(*records) : std::nullopt;
        for (std::uint32_t i = 0; i < count.value_or(0); ++i)
            if (const auto text = zeb::take_text(*records))
                found.push_back(*text);
        EXPECT_EQ(found.size() == texts.size(), length == buffer.size());
        if (length == buffer.size()) {
            EXPECT_TRUE(std::ranges::equal(read, numbers) && found == texts && records->bytes.empty());
        }
    }
}

TEST(Cpp_Records, of_the_other_byte_order)
{
    Buffer buffer = document(std::vector{1.5}, {});
    for (std::size_t at = 32; at < 60; at += 4)
        zeb::reverse(std::span(buffer).subspan(at, 4));
    zeb::reverse(std::span(buffer).subspan(64, 4));
    zeb::reverse(std::span(buffer).subspan(68, 8));
    auto records = zeb::read_header(buffer);
    zeb::Array<double> read;
    ASSERT_TRUE(records && records->needs_swap && zeb::take_record(*records, read));
    EXPECT_EQ(read[0], 1.5);
    buffer[33] = 0;
    EXPECT_FALSE(zeb::read_header(buffer)); // of neither
}

TEST(Cpp_Records, of_the_buffer_itself_and_without_memory)
{
    Buffer buffer = document(std::vector{1.5}, {});
    const std::vector<std::uint8_t> former(buffer.begin(), buffer.end());
    const std::string_view own(reinterpret_cast<const char *>(buffer.data()), buffer.size());
    ASSERT_TRUE(zeb::append_text_records(buffer, std::vector{own, own}));
    ASSERT_EQ(buffer.size(), 3 * former.size() + 12);
    EXPECT_TRUE(std::equal(former.begin(), former.end(), buffer.end() - std::ptrdiff_t(former.size())));
    const std::size_t count = buffer.size();
    support::memory.is_out = true;
    const bool appended = zeb::append_record(buffer, std::vector<double>(1000));
    support::memory.is_out = false;
    EXPECT_TRUE(!appended && buffer.size() == count);
}

TEST(Cpp_Compression, there_and_back_bounded_and_damaged)
{
    std::vector<std::uint8_t> bytes(100000);
    for (std::size_t i = 0; i < bytes.size(); ++i)
        bytes[i] = static_cast<std::uint8_t>(i * i % 251);
    Buffer compressed, back;
    ASSERT_EQ(zeb::compress(bytes, compressed), done);
    ASSERT_EQ(zeb::decompress(compressed, back, bytes.size()), done);
    EXPECT_TRUE(std::ranges::equal(back, bytes));
    EXPECT_EQ(zeb::decompress(compressed, back, bytes.size() - 1), beyond_bound);
    EXPECT_EQ(zeb::decompress(zeb::Bytes(compressed).first(compressed.size() / 2), back), damaged);
    EXPECT_EQ(zeb::decompress(bytes, back), damaged);
    EXPECT_EQ(back.size(), bytes.size());
    ASSERT_EQ(zeb::decompress(compressed, compressed), done); // into the source itself
    EXPECT_EQ(zeb::check_sum(zeb::Bytes(compressed).last(bytes.size())), zeb::check_sum(bytes));
    EXPECT_EQ(zeb::check_sum(std::vector<std::uint8_t>{'a', 'b', 'c'}), 0x352441C2u);
}

TEST(Cpp_Files, are_read_and_replaced_whole)
{
    const support::Scratch_Folder folder;
    const std::string path = folder / "file";
    const std::vector<std::uint8_t> bytes{1, 2, 3};
    Buffer read;
    ASSERT_EQ(zeb::replace_file(path.c_str(), bytes), 0);
    ASSERT_EQ(zeb::read_file(path.c_str(), read), 0);
    EXPECT_TRUE(std::ranges::equal(read, bytes));
    EXPECT_EQ(zeb::read_file(path.c_str(), read, 2), EFBIG);
    EXPECT_EQ(zeb::read_file((folder / "missing").c_str(), read), ENOENT);
    EXPECT_EQ(zeb::replace_file((folder / "no/file").c_str(), bytes), ENOENT);
    EXPECT_TRUE(std::ranges::equal(read, bytes));
}

} // namespace
