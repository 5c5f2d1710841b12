#include "tests/support/class_test.hpp"

#include <algorithm>

TEST(Binary_Header, is_recognised_in_both_byte_orders_and_else_not)
{
    ZEB_String *const header = text("");
    ZEB_write_binary_header(header);
    EXPECT_EQ(text_of(header), support::header());
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
    // A longer buffer keeps its tail, a link that is too short its contents.
    ZEB_String *const longer = text(std::string(66, 't'));
    ZEB_write_binary_header(longer);
    ZEB_String *const link = [ZEB_String link_to_chars:[longer char_data] + 60 count:6];
    standard_error_of([&] { ZEB_write_binary_header(link); });
    EXPECT_EQ(text_of(link), "1111tt");
}

TEST(Binary_Contents, a_string_may_hold_the_record_of_its_own_array)
{
    ZEB_String_Array *const source = [ZEB_String_Array array_with_capacity:0];
    for (uint32_t i = 0; i < 20; ++i)
        [source append_string:text(std::string(i, 'x'))];
    ZEB_String *const record = text("");
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
    EXPECT_EQ(text_of(record), words({0}));
    [objects append_object:@"x"];
    const auto decode = [=] { EXPECT_EQ([objects ZEB_decode_binary_contents:record needs_swap:0], 4u); };
    [record set_char:1 at_index:0];
    EXPECT_EQ(standard_error_of(decode), "decode binary ontents from string not done for id type.\n");
    EXPECT_EQ([objects count], 1u);
    [record set_char:0 at_index:0];
    decode();
    EXPECT_EQ([objects count], 0u);
}

TEST(Binary_Contents, a_buffer_may_be_its_own_record_and_a_link_refuses)
{
    ZEB_String *const buffer = text("0123456789abcd");
    [buffer ZEB_encode_binary_contents:buffer];
    EXPECT_EQ(text_of(buffer), "0123456789abcd" + words({14}) + "0123456789abcd");
    ZEB_String *const link = [ZEB_String link_to_chars:[buffer char_data] count:3];
    EXPECT_EQ(standard_error_of([&] { [buffer ZEB_encode_binary_contents:link]; }),
              fix_line("ZEB_encode_binary_contents:", "ZEB_String",
                       "Cannot update capacity through link, no adjustment made."));
}
