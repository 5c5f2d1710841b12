#include "tests/support/class_test.hpp"
#include <sstream>

static const std::string contents = std::string(40000, 'x') + "tail";

TEST(Compression, every_pair_of_containers_takes_and_gives_the_same)
{
    ZEB_String *const as_text = text(""), *const out = text("kept ");
    ZEB_Byte_Array *const as_bytes = bytes("0"), *const from_text = bytes("0");
    EXPECT_EQ(ZC_compress_string_to_string(text(contents), as_text), 0);
    EXPECT_EQ(ZC_compress_bytes_to_bytes(bytes(contents), as_bytes), 0);
    EXPECT_EQ(ZC_compress_string_to_bytes(text(contents), from_text), 0);
    EXPECT_EQ(text_of(as_bytes), "0" + text_of(as_text));
    EXPECT_EQ(text_of(from_text), "0" + text_of(as_text));
    EXPECT_EQ(ZC_decompress_string_to_string(as_text, out, 0), 0);
    EXPECT_EQ(ZC_decompress_bytes_to_string(as_bytes, out, 1), 0);
    EXPECT_EQ(text_of(out), "kept " + contents + contents);
    // A container may be its own destination.
    ZEB_Byte_Array *const plain = bytes(text_of(as_text));
    EXPECT_EQ(ZC_decompress_bytes_to_bytes(plain, plain), 0);
    EXPECT_EQ(text_of(plain), text_of(as_text) + contents);
}

TEST(Compression, nothing_gives_nothing_and_a_nil_destination_is_refused)
{
    ZEB_String *const out = text("kept");
    EXPECT_EQ(ZC_compress_string_to_string(text(""), out), 0);
    EXPECT_EQ(ZC_decompress_string_to_string(text("abc"), out, 3), 0);
    EXPECT_EQ(ZC_decompress_bytes_to_string(bytes("abc"), out, 4), 0);
    EXPECT_EQ(ZC_decompress_string_to_string(nil, out, 7), 0);
    EXPECT_TRUE([out isEqual:text("kept")]);
    EXPECT_EQ(ZC_compress_string_to_bytes(nil, nil), 0);
    EXPECT_EQ(ZC_compress_string_to_string(text("abc"), nil), -1);
    EXPECT_EQ(ZC_decompress_bytes_to_string(bytes("abc"), nil, 0), -1);
}

TEST(Compression, a_bound_ends_what_would_be_gigabytes)
{
    ZEB_String *const bomb = text("");
    ZC_compress_string_to_string(text(std::string(50000000, 'x')), bomb);
    ZEB_Byte_Array *const out = [ZEB_Byte_Array array_with_capacity:0], *const source = bytes(text_of(bomb));
    EXPECT_EQ(ZC_decompress_bytes_to_bytes_within(source, out, 0, 100000), -5);
    EXPECT_EQ([out count], 100000u);
    EXPECT_EQ([out capacity], 131072u);
    EXPECT_EQ(ZC_decompress_bytes_to_string_within(source, bomb, 0, 0), -5);
    EXPECT_EQ(ZC_decompress_string_to_string_within(bomb, bomb, 0, 50000000), 0);
}

TEST(Compression, a_link_refuses_once_and_before_anything_is_done)
{
    char owner[] = "abc";
    ZEB_String *const link = [ZEB_String link_to_chars:owner count:3];
    const auto line =
        standard_error_of([=] { EXPECT_EQ(ZC_compress_string_to_string(text(contents), link), -1); });
    EXPECT_EQ(line, fix_line("append_chars:count:", "ZEB_String",
                             "Cannot append array through link, no append made."));
    EXPECT_EQ([link count], 3u);
}

TEST(Compression, tells_the_known_states)
{
    std::istringstream lines(
        "|zlib version mismatch.\n||out of memory.\n|invalid or incomplete deflate data.\n|"
        "invalid compression level.\n|General error.\n|||");
    std::string line;
    for (int32_t status = -7; status <= 1; ++status) {
        ASSERT_TRUE(std::getline(lines, line, '|'));
        EXPECT_EQ(standard_error_of([=] { print_zlib_error(status); }), "zlib error: " + line);
    }
}
