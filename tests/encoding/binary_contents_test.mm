#import <Korvane_ZEB/Korvane_ZEB.h>

#include "tests/support/captured.hpp"
#include "tests/support/diagnostic.hpp"
#include "tests/support/samples.hpp"
#include "tests/support/strings.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

using namespace support;

namespace
{

ZEB_String *link_behind(ZEB_String *text, uint32_t at)
{
    return [ZEB_String link_to_chars:[text char_data] + at count:[text count] - at];
}

} // namespace

TEST(Binary_Header, is_recognised_in_both_byte_orders_and_else_not)
{
    ZEB_String *const header = text("");
    ZEB_write_binary_header(header);
    const uint32_t words[] = {0x50AB40CD, 0, 2, 4, 2, 1, 1};
    EXPECT_EQ(text_of(header), "ZEB_EXTERNAL_BINARY_FORMAT_V1000" +
                                   std::string(reinterpret_cast<const char *>(words), sizeof words) + "1111");
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

TEST(Binary_Contents, a_string_may_hold_the_record_of_its_own_array)
{
    ZEB_String *const record = text("");
    ZEB_String_Array *const source = [ZEB_String_Array array_with_capacity:0];
    for (uint32_t i = 0; i < 20; ++i)
        [source append_string:Sample<ZEB_String *>::at(i)];
    [source ZEB_encode_binary_contents:record];
    ZEB_String_Array *const array = [ZEB_String_Array array_with_capacity:0];
    [array append_string:record];
    EXPECT_EQ([array ZEB_decode_binary_contents:[array string_at_index:0] needs_swap:0], [record count]);
    EXPECT_TRUE([array isEqual:source]);
}

TEST(Binary_Contents, object_references_leave_no_trace)
{
    ZEB_Object_Array *const objects = [ZEB_Object_Array array_with_capacity:0];
    ZEB_String *const record = text("");
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

TEST(Binary_Contents, records_follow_one_another_without_padding)
{
    ZEB_String *const record = text("");
    ZEB_Int_Array *const ints = [[[ZEB_Int_Array alloc] init] autorelease];
    [bytes("") ZEB_encode_binary_contents:record];
    [bytes("\1\2\3") ZEB_encode_binary_contents:record];
    [ints append_int:1];
    [ints append_int:-2];
    [ints ZEB_encode_binary_contents:record];
    EXPECT_EQ(text_of(record), std::string("\0\0\0\0\3\0\0\0\1\2\3\2\0\0\0\1\0\0\0\xFE\xFF\xFF\xFF", 23));
}

TEST(Binary_Contents, a_buffer_may_be_its_own_record_and_a_link_refuses)
{
    ZEB_String *const text = [[[ZEB_String alloc] init_as_copy_of_chars:"0123456789abcd"
                                                                  count:14] autorelease];
    [text ZEB_encode_binary_contents:text];
    const uint32_t count = 14;
    EXPECT_EQ(text_of(text),
              "0123456789abcd" + std::string(reinterpret_cast<const char *>(&count), 4) + "0123456789abcd");
    ZEB_String *const link = link_behind(text, 3);
    EXPECT_EQ(standard_error_of([&] { [text ZEB_encode_binary_contents:link]; }),
              fix_line("ZEB_encode_binary_contents:", "ZEB_String",
                       "Cannot update capacity through link, no adjustment made."));
}
