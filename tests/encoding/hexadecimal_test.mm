#include "tests/support/class_test.hpp"
#include "tests/support/guarded_text.hpp"

#include <charconv>

static std::string hexadecimal(uint64_t value)
{
    char digits[16];
    return {digits, std::to_chars(digits, digits + sizeof digits, value, 16).ptr};
}

TEST(Hexadecimal, digits_and_fixed_text)
{
    for (const uint64_t value :
         {0ULL, 9ULL, 0xFULL, 0x10ULL, 0x1A2BULL, 0xFFFFFFFFULL, 0x100000000ULL, ~0ULL}) {
        const auto low = static_cast<uint32_t>(value);
        EXPECT_EQ(zeb_test::guarded_text(17, ZEB_hex_digits64, value), hexadecimal(value));
        EXPECT_EQ(zeb_test::guarded_text(9, ZEB_hex_digits32, low), hexadecimal(low));
        char fixed[9], expected[9];
        snprintf(expected, sizeof expected, "%08X", low);
        ZEB_format_hex32(fixed, low);
        EXPECT_STREQ(fixed, expected);
        uint32_t read = 1;
        ZEB_scan_hex32(&read, fixed);
        EXPECT_EQ(read, low);
    }
}

TEST(Hexadecimal, contents_are_listed_behind_what_is_there)
{
    std::string all, expected;
    for (unsigned value = 0; value < 256; ++value) {
        expected += ", " + hexadecimal(value);
        all.push_back(static_cast<char>(value));
    }
    ZEB_String *const listed = text("before ");
    [bytes(all) ZEB_append_hex_contents:listed];
    [bytes("") ZEB_append_hex_contents:listed];
    EXPECT_EQ(text_of(listed), "before {" + expected.substr(2) + "}{}");
    ZEB_String *const buffer = text("");
    [wide_text(U"a\U0010FFFF") ZEB_append_hex_contents:buffer];
    ZEB_Pointer_Array *const pointers = [ZEB_Pointer_Array array_with_capacity:0];
    [pointers append_pointer:reinterpret_cast<void *>(0xFFFFFFFFFFFFFFFF)];
    [pointers append_pointer:nullptr];
    [pointers ZEB_append_hex_contents:buffer];
    EXPECT_EQ(text_of(buffer), "{61, 10ffff}{ffffffffffffffff, 0}");
    ZEB_String *const view = [ZEB_String link_to_chars:[buffer char_data] count:4];
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
    const std::string reminders = standard_output_of([] {
        EXPECT_EQ(ZC_swap_long(0x11111111000000FF), 0xFF000000);
        EXPECT_EQ(ZC_swap_unsigned_long(0x12345678), 0x78563412u);
    });
    const std::string one = "DEBUG: Must fix swap code that thinks sizeof(unsigned long) == 4 instead of 8."
                            "DEBUG: Must fix swap code that thinks sizeof(long) == 4 instead of 8.";
    EXPECT_EQ(reminders, one + one);
}
