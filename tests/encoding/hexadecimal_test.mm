#import <Korvane_ZEB/Korvane_ZEB.h>

#include "tests/support/captured.hpp"
#include "tests/support/strings.hpp"

#include <gtest/gtest.h>

using namespace support;

TEST(Hexadecimal, digits_and_fixed_text)
{
    char text_of_value[32];
    for (const uint64_t value :
         {0ULL, 9ULL, 0xFULL, 0x10ULL, 0x1A2BULL, 0xFFFFFFFFULL, 0x100000000ULL, ~0ULL}) {
        char expected[32];
        snprintf(expected, sizeof expected, "%llx", static_cast<unsigned long long>(value));
        EXPECT_EQ(ZEB_hex_digits64(text_of_value, value), text_of_value + strlen(expected));
        EXPECT_STREQ(text_of_value, expected);
        const auto low = static_cast<uint32_t>(value);
        snprintf(expected, sizeof expected, "%x", low);
        EXPECT_EQ(ZEB_hex_digits32(text_of_value, low), text_of_value + strlen(expected));
        EXPECT_STREQ(text_of_value, expected);
        snprintf(expected, sizeof expected, "%08X", low);
        ZEB_format_hex32(text_of_value, low);
        EXPECT_STREQ(text_of_value, expected);
        uint32_t read = 1;
        ZEB_scan_hex32(&read, text_of_value);
        EXPECT_EQ(read, low);
    }
}

TEST(Hexadecimal, contents_are_listed_behind_what_is_there)
{
    std::string all, expected = "before {0";
    for (int value = 0; value < 256; ++value) {
        char digits[8];
        snprintf(digits, sizeof digits, ", %x", value);
        expected += value == 0 ? "" : digits;
        all.push_back(static_cast<char>(value));
    }
    ZEB_String *const listed = text("before ");
    [bytes(all) ZEB_append_hex_contents:listed];
    [bytes("") ZEB_append_hex_contents:listed];
    EXPECT_EQ(text_of(listed), expected + "}{}");
    ZEB_String *const buffer = text("");
    [wide_text(U"a\U0010FFFF") ZEB_append_hex_contents:buffer];
    ZEB_Pointer_Array *const pointers = [ZEB_Pointer_Array array_with_capacity:0];
    [pointers append_pointer:reinterpret_cast<void *>(0xFFFFFFFFFFFFFFFF)];
    [pointers append_pointer:nullptr];
    [pointers ZEB_append_hex_contents:buffer];
    EXPECT_EQ(text_of(buffer), "{61, 10ffff}{ffffffffffffffff, 0}");
    ZEB_String *const view =
        [[[ZEB_String alloc] init_as_link_to_char_vector:buffer range:ZEB_Index_Range{0, 3}] autorelease];
    EXPECT_NE(standard_error_of([&] { [pointers ZEB_append_hex_contents:view]; }), "");
    EXPECT_EQ([view count], 4u);
}

TEST(Byte_Order, each_swap_reverses_its_bytes)
{
    EXPECT_EQ(ZC_swap_short(0x00FF), static_cast<int16_t>(0xFF00));
    EXPECT_EQ(ZC_swap_unsigned_short(0x1234), 0x3412);
    EXPECT_EQ(ZC_swap_int(0x000000FF), static_cast<int32_t>(0xFF000000));
    EXPECT_EQ(ZC_swap_unsigned_int(0x12345678u), 0x78563412u);
    EXPECT_EQ(ZC_swap_long_long(0x0102030405060708), 0x0807060504030201);
    EXPECT_EQ(ZC_swap_float(ZC_swap_float(2.5f)), 2.5f);
    EXPECT_EQ(ZC_swap_double(ZC_swap_double(2.5)), 2.5);
    const char reminders[] = "DEBUG: Must fix swap code that thinks sizeof(unsigned long) == 4 instead of 8."
                             "DEBUG: Must fix swap code that thinks sizeof(long) == 4 instead of 8.";
    EXPECT_EQ(standard_output_of([] { EXPECT_EQ(ZC_swap_long(0x11111111000000FF), 0xFF000000); }), reminders);
    EXPECT_EQ(standard_output_of([] { EXPECT_EQ(ZC_swap_unsigned_long(0x12345678), 0x78563412u); }),
              reminders);
}
