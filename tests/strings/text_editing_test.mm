#include "tests/support/class_test.hpp"
#import <Korvane_ZEB/ZEB_String_Views.hpp>

#include "tests/support/random_text.hpp"
#include "tests/support/sanitizer.hpp"
#include "tests/support/vector_targets.hpp"

#import <objc/runtime.h>

namespace
{

/// Text that grows by steps, now and then with a part of its own block. The capacity is the smallest of
/// 16 * 2^k above every count that there was.
template <class String>
void walk(std::mt19937 &random)
{
    String *const string = [[[String alloc] init] autorelease];
    std::basic_string<typename decltype(zeb::view(string))::value_type> literal;
    uint32_t capacity = 16;
    for (unsigned step = 0; step < 60; ++step) {
        std::string bytes = zeb_test::draw_text(random, random() % 41, "");
        const char *source = bytes.data();
        if ([string count] != 0 && step % 4 == 0) {
            source = reinterpret_cast<const char *>(zeb::view(string).data()) + random() % [string count];
            bytes.assign(source, 1);
        }
        const bool appends = random() % 5 != 0;
        literal.resize(appends ? literal.size() : 0);
        for (const signed char c : bytes)
            literal.push_back(static_cast<typename decltype(literal)::value_type>(c));
        const auto length = static_cast<uint32_t>(bytes.size());
        appends ? [string append_c_string:source length:length] : [string copy_c_string:source length:length];
        while (capacity <= literal.size())
            capacity *= 2;
        ASSERT_EQ(zeb::view(string), literal);
        ASSERT_EQ([string capacity], capacity);
    }
}

template <class String>
class Text_Editing : public testing::Test
{
};
using Strings = testing::Types<ZEB_String, ZEB_Wide_String>;
TYPED_TEST_SUITE(Text_Editing, Strings);

} // namespace

TYPED_TEST(Text_Editing, keeps_text_and_capacity_of_the_literal_steps)
{
    zeb_test::on_each_target([] {
        std::mt19937 random(4);
        for (unsigned turn = 0; turn < 100 / slowness; ++turn)
            walk<TypeParam>(random);
    });
}

TYPED_TEST(Text_Editing, reports_a_size_that_cannot_be_had)
{
    TypeParam *const string = [[[TypeParam alloc] init] autorelease];
    const char byte = 'x';
    const auto expect_failure = [&](const char *note) {
        EXPECT_EQ(standard_error_of([&] { [string append_c_string:&byte length:UINT32_MAX]; }),
                  fix_line("append_c_string:length:", class_getName([TypeParam class]), note));
    };
    expect_failure("Runtime error in allocate macro");
    EXPECT_EQ([string capacity], 0u);
    [string copy_c_string:&byte length:1];
    expect_failure("Runtime error in reallocate macro");
    EXPECT_TRUE([string count] == 1 && [string capacity] == 16);
}

TEST(Null_Terminator, lies_behind_the_text)
{
    ZEB_String *const string = [[[ZEB_String alloc] init] autorelease];
    for (uint32_t count = 0; count < 40; ++count) {
        [string append_null_terminator];
        EXPECT_EQ([string count], count);
        EXPECT_EQ([string capacity], count < 16 ? 16u : count < 32 ? 32u : 64u);
        EXPECT_EQ([string char_data][count], '\0');
        [string append_char:'x'];
    }
}
