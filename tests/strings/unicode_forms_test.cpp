#include "strings/engine/utf.hpp"

#include "core/engine/namespace.hpp"
#include "tests/support/sanitizer.hpp"
#include "tests/support/vector_targets.hpp"

#include <gtest/gtest.h>

#include <random>

using namespace zeb_test;

namespace
{

using Units = std::vector<uint32_t>;

/// The bytes of UTF-8 where its rules change.
const std::string bounds =
    "a\x7F\x80\x8F\x90\x9F\xA0\xBF\xC0\xC1\xC2\xDF\xE0\xE1\xED\xEE\xEF\xF0\xF1\xF4\xF5\xF8\xFE\xFF";

/// Whether it is a code point that is no surrogate.
bool is_scalar_value(uint32_t code_point)
{
    return code_point < 0xD800 || (code_point >= 0xE000 && code_point <= 0x10FFFF);
}

/// One of any length in UTF-8.
uint32_t draw_scalar_value(std::mt19937 &random)
{
    static const uint32_t ends[] = {0x80, 0x800, 0xD800, 0x110000};
    const uint32_t drawn = static_cast<uint32_t>(random()) % ends[random() % 4];
    return is_scalar_value(drawn) ? drawn : 'a';
}

std::string utf8_of(uint32_t code_point)
{
    if (code_point < 0x80)
        return {static_cast<char>(code_point)};
    std::string bytes(code_point < 0x800 ? 2 : code_point < 0x10000 ? 3 : 4, ' ');
    for (size_t i = bytes.size() - 1; i > 0; --i, code_point /= 64)
        bytes[i] = static_cast<char>(0x80 + code_point % 64);
    // As many of the high bits are set as there are bytes.
    bytes[0] = static_cast<char>((0xFF00 >> bytes.size()) + code_point);
    return bytes;
}

/// One text in the three forms.
struct Text {
    std::string utf8 = {};
    Units utf16 = {};
    Units code_points = {};

    void append(uint32_t code_point)
    {
        utf8 += utf8_of(code_point);
        if (code_point < 0x10000)
            utf16.push_back(code_point);
        else
            utf16.insert(utf16.end(), {0xD7C0 + code_point / 1024, 0xDC00 + code_point % 1024});
        code_points.push_back(code_point);
    }
};

/// Converts into a block of just the size that is foretold, for the sanitizer to watch.
template <class From, class Size, class Convert, class To>
bool convert(const From &from, Size size, Convert into, To &converted)
{
    converted = To(size(from), {});
    return into(from, converted.data());
}

void expect_all_conversions(const Text &text)
{
    std::string utf8;
    Units units;
    ASSERT_TRUE(engine::is_valid_utf8(text.utf8));
    ASSERT_TRUE(convert(text.utf8, engine::utf16_length_of_utf8, engine::utf16_from_utf8, units));
    ASSERT_EQ(units, text.utf16);
    ASSERT_TRUE(convert(text.utf8, engine::code_point_count_of_utf8, engine::code_points_from_utf8, units));
    ASSERT_EQ(units, text.code_points);
    ASSERT_TRUE(convert(text.utf16, engine::utf8_length_of_utf16, engine::utf8_from_utf16, utf8));
    ASSERT_EQ(utf8, text.utf8);
    ASSERT_TRUE(convert(units, engine::utf8_length_of_code_points, engine::utf8_from_code_points, utf8));
    ASSERT_EQ(utf8, text.utf8);

    const size_t count = units.size(), pairs = engine::count_of_pairs(units);
    units.resize(count + pairs);
    engine::split_to_surrogate_pairs(units.data(), count, pairs);
    ASSERT_EQ(units, text.utf16);
    units.resize(engine::join_surrogate_pairs(units));
    ASSERT_EQ(units, text.code_points);
}

/// Bytes that may be no UTF-8: what is accepted is just what its code points are encoded as.
void expect_nothing_ill_formed(const std::string &text)
{
    Units units, code_points;
    const bool valid = engine::is_valid_utf8(text);
    ASSERT_EQ(convert(text, engine::utf16_length_of_utf8, engine::utf16_from_utf8, units), valid);
    ASSERT_EQ(convert(text, engine::code_point_count_of_utf8, engine::code_points_from_utf8, code_points),
              valid);
    std::string encoded;
    for (const uint32_t code_point : code_points)
        encoded += is_scalar_value(code_point) ? utf8_of(code_point) : "none";
    ASSERT_TRUE(!valid || encoded == text) << testing::PrintToString(text);
}

} // namespace

TEST(Unicode_Forms, hold_every_scalar_value)
{
    std::mt19937 random(5);
    constexpr uint32_t skipped = 100 * (support::slowness - 1);
    for (uint32_t next = 0; next <= 0x10FFFF; next += skipped) {
        Text text;
        for (const uint32_t end = next + random() % 128; next < end; ++next)
            if (is_scalar_value(next))
                text.append(next);
        expect_all_conversions(text);
    }
}

TEST(Unicode_Forms, hold_runs_of_any_mixture)
{
    on_each_target([] {
        std::mt19937 random(6);
        for (unsigned turn = 0; turn < 500 / support::slowness; ++turn) {
            Text text;
            while (random() % 12 != 0) {
                const size_t run = random() % 4 == 0 ? random() % 150 : 1;
                for (size_t i = 0; i < run; ++i)
                    text.append(run == 1 ? draw_scalar_value(random) : random() % 128);
            }
            expect_all_conversions(text);
        }
    });
}

TEST(Unicode_Forms, are_taken_from_well_formed_text_alone)
{
    for (unsigned pair = 0; pair < 0x10000; ++pair)
        expect_nothing_ill_formed({static_cast<char>(pair / 256), static_cast<char>(pair % 256)});
    for (const std::string lead : {"", "\xF0", "\xF1", "\xF4", "\xF5", "\xF8"})
        for (const char second : bounds)
            for (const char third : bounds)
                for (const char last : bounds)
                    expect_nothing_ill_formed(lead + second + third + last);
    std::mt19937 random(7);
    for (unsigned turn = 0; turn < 5000; ++turn) {
        std::string text = "a";
        for (size_t length = random() % 30; length > 0; --length)
            text += utf8_of(draw_scalar_value(random));
        text[random() % text.size()] = bounds[random() % bounds.size()];
        expect_nothing_ill_formed(text);
    }
}

TEST(Unicode_Forms, refuse_what_is_no_character)
{
    char room[16];
    for (const Units &lone :
         {Units{0xD800}, {0xDC00}, {'a', 0xDBFF}, {0xD800, 'a'}, {0xDC00, 0xD800}, {0xD800, 0xD800, 0xDC00}})
        EXPECT_FALSE(engine::utf8_from_utf16(lone, room));
    for (const uint32_t none : {0xD800u, 0xDFFFu, 0x110000u, UINT32_MAX}) {
        EXPECT_FALSE(engine::are_code_points(Units{'a', none}));
        EXPECT_FALSE(engine::utf8_from_code_points(Units{'a', none}, room));
    }
    // Of a UTF-16 element only the low half counts; as a code point it is what it is.
    EXPECT_TRUE(engine::utf8_from_utf16(Units{0xABCD0041}, room));
    EXPECT_EQ(room[0], 'A');
    Units mixed{0xD800, 0x110000, 0x1F600, 'x', 0xDC00, 0xD83D};
    EXPECT_EQ(engine::join_surrogate_pairs(mixed), 6u);
    EXPECT_EQ(engine::count_of_pairs(mixed), 1u);
    mixed.resize(7);
    engine::split_to_surrogate_pairs(mixed.data(), 6, 1);
    EXPECT_EQ(mixed, (Units{0xD800, 0x110000, 0xD83D, 0xDE00, 'x', 0xDC00, 0xD83D}));
}
