#import <Korvane_ZEB/Korvane_ZEB.h>

#include "tests/support/captured.hpp"
#include "tests/support/diagnostic.hpp"
#include "tests/support/samples.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

using support::fix_line;
using support::Sample;
using support::standard_error_of;

namespace
{

ZEB_String *buffer() { return [ZEB_String array_with_capacity:0]; }

std::string bytes_of(ZEB_Char_Vector *text) { return {[text char_data], [text count]}; }

ZEB_String *link_behind(ZEB_String *text, uint32_t at)
{
    return [ZEB_String link_to_chars:[text char_data] + at count:[text count] - at];
}

/// The records of a machine of the other byte order: every value of `width` bytes behind the count reversed.
ZEB_String *swapped(ZEB_String *record, uint32_t width)
{
    ZEB_String *const made = [record duplicate];
    char *const data = [made char_data];
    std::reverse(data, data + 4);
    for (uint32_t at = 4; at < [made count]; at += width)
        std::reverse(data + at, data + at + width);
    return made;
}

constexpr char truncated[] = "Binary contents are truncated, no decode performed.";

} // namespace

TEST(Binary_Header, is_recognised_in_both_byte_orders_and_else_not)
{
    ZEB_String *const header = buffer();
    ZEB_write_binary_header(header);
    const uint32_t words[] = {0x50AB40CD, 0, 2, 4, 2, 1, 1};
    EXPECT_EQ(bytes_of(header), "ZEB_EXTERNAL_BINARY_FORMAT_V1000" +
                                    std::string(reinterpret_cast<const char *>(words), sizeof words) +
                                    "1111");
    const auto needs_swap = [](ZEB_Char_Vector *text) {
        uint8_t answer = 9;
        ZEB_read_binary_header(text, &answer);
        return int{answer};
    };
    EXPECT_EQ(needs_swap(header), 0);
    std::reverse([header char_data] + 32, [header char_data] + 36);
    EXPECT_EQ(needs_swap(header), 1);
    EXPECT_EQ(needs_swap([ZEB_String link_to_chars:[header char_data] count:63]), 0);
    [header set_char:'z' at_index:31];
    EXPECT_EQ(needs_swap(header), 0);
}

TEST(Binary_Header, leaves_a_longer_buffer_its_tail_and_a_short_link_alone)
{
    ZEB_String *const text = [[[ZEB_String alloc] init_with_length:66] autorelease];
    [text fill_with_char:'t'];
    ZEB_write_binary_header(text);
    EXPECT_EQ([text count], 66u);
    EXPECT_EQ([text char_at_index:65], 't');
    ZEB_String *const link = link_behind(text, 60);
    standard_error_of([&] { ZEB_write_binary_header(link); });
    EXPECT_EQ([link char_at_index:5], 't');
}

TEST(Binary_Contents, records_follow_one_another_without_padding)
{
    ZEB_String *const record = buffer();
    ZEB_Byte_Array *const bytes = [[[ZEB_Byte_Array alloc] init] autorelease];
    ZEB_Int_Array *const ints = [[[ZEB_Int_Array alloc] init] autorelease];
    [bytes ZEB_encode_binary_contents:record];
    for (const int32_t i : {1, 2, 3})
        [bytes append_byte:static_cast<uint8_t>(i)];
    [bytes ZEB_encode_binary_contents:record];
    [ints append_int:1];
    [ints append_int:2];
    [ints ZEB_encode_binary_contents:record];
    const uint32_t counts[] = {0, 3, 2};
    const int32_t values[] = {1, 2};
    std::string expected(reinterpret_cast<const char *>(counts), 8);
    expected += "\1\2\3" + std::string(reinterpret_cast<const char *>(counts + 2), 4) +
                std::string(reinterpret_cast<const char *>(values), 8);
    EXPECT_EQ(bytes_of(record), expected);
}

/// What every family with records is put through: there and back, in both byte orders, cut short, linked.
template <class Array, class Make, class Put>
void expect_round_trip(Make make, Put put, const char *named, uint32_t width)
{
    SCOPED_TRACE(named);
    Array *const source = make();
    for (uint32_t i = 0; i < 37; ++i)
        put(source, i);
    ZEB_String *const record = buffer();
    [source ZEB_encode_binary_contents:record];
    Array *const back = make();
    put(back, 90);
    EXPECT_EQ([back ZEB_decode_binary_contents:record needs_swap:0], [record count]);
    EXPECT_TRUE([back isEqual:source]);
    EXPECT_EQ([back capacity], 64u);
    if (width != 0) {
        Array *const from_afar = make();
        EXPECT_EQ([from_afar ZEB_decode_binary_contents:swapped(record, width) needs_swap:1], [record count]);
        EXPECT_TRUE([from_afar isEqual:source]);
    }
    const uint32_t capacity = [back capacity];
    for (const uint32_t length : {0u, 3u, 4u, 5u, [record count] - 1}) {
        uint32_t consumed = 9;
        EXPECT_EQ(standard_error_of([&] {
                      consumed = [back ZEB_decode_binary_contents:[ZEB_String link_to_chars:[record char_data]
                                                                                      count:length]
                                                       needs_swap:0];
                  }),
                  fix_line("ZEB_decode_binary_contents:needs_swap:", named, truncated));
        EXPECT_EQ(consumed, 0u);
        EXPECT_TRUE([back isEqual:source]);
        EXPECT_EQ([back capacity], capacity);
    }
    Array *const empty = make();
    ZEB_String *const nothing = buffer();
    [empty ZEB_encode_binary_contents:nothing];
    EXPECT_EQ([back ZEB_decode_binary_contents:nothing needs_swap:0], 4u);
    EXPECT_EQ([back count], 0u);
    [back set_link_marker:10000];
    EXPECT_EQ(standard_error_of([&] { [back ZEB_decode_binary_contents:record needs_swap:0]; }),
              fix_line("ZEB_decode_binary_contents:needs_swap:", named,
                       "Cannot decode binary contents through link, no decode performed."));
    [back set_link_marker:0];
}

#define EXPECT_ROUND_TRIP(Array, element, Element, width)                                                    \
    expect_round_trip<Array>([] { return [Array array_with_capacity:0]; },                                   \
                             [](Array *array, uint32_t i) { [array element:Sample<Element>::at(i)]; },       \
                             #Array, width)

TEST(Binary_Contents, every_family_comes_back_the_same)
{
    EXPECT_ROUND_TRIP(ZEB_Byte_Array, append_byte, uint8_t, 1);
    EXPECT_ROUND_TRIP(ZEB_String, append_char, char, 1);
    EXPECT_ROUND_TRIP(ZEB_Double_Array, append_double, double, 8);
    EXPECT_ROUND_TRIP(ZEB_Float_Array, append_float, float, 4);
    EXPECT_ROUND_TRIP(ZEB_Int_Array, append_int, int32_t, 4);
    EXPECT_ROUND_TRIP(ZEB_UInt_Array, append_uint, uint32_t, 4);
    EXPECT_ROUND_TRIP(ZEB_Wide_String, append_wide_char, uint32_t, 4);
    EXPECT_ROUND_TRIP(ZEB_Pointer_Array, append_pointer, void *, 8);
    EXPECT_ROUND_TRIP(ZEB_String_Array, append_string, ZEB_String *, 0);
    EXPECT_ROUND_TRIP(ZEB_Wide_String_Array, append_wide_string, ZEB_Wide_String *, 0);
    EXPECT_ROUND_TRIP(ZEB_Byte_Array_Array, append_byte_array, ZEB_Byte_Array *, 0);
}

TEST(Binary_Contents, a_string_may_hold_the_record_of_its_own_array)
{
    ZEB_String *const record = buffer();
    ZEB_String_Array *const source = [ZEB_String_Array array_with_capacity:0];
    for (uint32_t i = 0; i < 20; ++i)
        [source append_string:Sample<ZEB_String *>::at(i)];
    [source ZEB_encode_binary_contents:record];
    ZEB_String_Array *const array = [ZEB_String_Array array_with_capacity:0];
    [array append_string:record];
    EXPECT_EQ([array ZEB_decode_binary_contents:[array string_at_index:0] needs_swap:0], [record count]);
    EXPECT_TRUE([array isEqual:source]);
}

TEST(Binary_Contents, doubles_keep_every_bit)
{
    ZEB_Double_Array *const source = [ZEB_Double_Array array_with_capacity:0];
    for (const double value : {-0.0, std::nan("7"), double{INFINITY}, 5e-324, -1e308})
        [source append_double:value];
    ZEB_String *const record = buffer();
    [source ZEB_encode_binary_contents:record];
    ZEB_Double_Array *const back = [ZEB_Double_Array array_with_capacity:0];
    [back ZEB_decode_binary_contents:swapped(record, 8) needs_swap:1];
    EXPECT_TRUE([back isEqual:source]);
}

TEST(Binary_Contents, object_references_leave_no_trace)
{
    ZEB_Object_Array *const objects = [ZEB_Object_Array array_with_capacity:0];
    ZEB_String *const record = buffer();
    [objects ZEB_encode_binary_contents:record];
    EXPECT_EQ([record count], 4u);
    [objects append_object:@"x"];
    [objects ZEB_encode_binary_contents:record];
    EXPECT_EQ([record count], 4u);
    [record set_char:1 at_index:0];
    uint32_t consumed = 0;
    EXPECT_EQ(standard_error_of([&] { consumed = [objects ZEB_decode_binary_contents:record needs_swap:0]; }),
              "decode binary ontents from string not done for id type.\n");
    EXPECT_EQ(consumed, 4u);
    EXPECT_EQ([objects count], 1u);
    [record set_char:0 at_index:0];
    EXPECT_EQ([objects ZEB_decode_binary_contents:record needs_swap:0], 4u);
    EXPECT_EQ([objects count], 0u);
}

TEST(Binary_Contents, a_buffer_may_be_its_own_record_and_a_link_refuses)
{
    ZEB_String *const text = [[[ZEB_String alloc] init_as_copy_of_chars:"0123456789abcd"
                                                                  count:14] autorelease];
    [text ZEB_encode_binary_contents:text];
    const uint32_t count = 14;
    EXPECT_EQ(bytes_of(text),
              "0123456789abcd" + std::string(reinterpret_cast<const char *>(&count), 4) + "0123456789abcd");
    ZEB_String *const link = link_behind(text, 3);
    EXPECT_EQ(standard_error_of([&] { [text ZEB_encode_binary_contents:link]; }),
              fix_line("ZEB_encode_binary_contents:", "ZEB_String",
                       "Cannot update capacity through link, no adjustment made."));
}
