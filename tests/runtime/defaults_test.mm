#include "tests/runtime/defaults.hpp"
#include "tests/support/captured.hpp"
#include "tests/support/comma_locale.hpp"
#include "tests/support/diagnostic.hpp"

#include <gtest/gtest.h>

using namespace support;

namespace
{

const char unusable_key[] = "Cannot use key, no change made.";
const char unusable_value[] = "Cannot store value, no change made.";

/// What is stored, and what the getters answer then: of the suite, where scalars are text, and else.
struct Row {
    const char *name;
    void (*store)(Defaults *, ZEB_String *key);
    std::string in_suite, elsewhere;
};

const Row rows[] = {
    {"true", [](Defaults *d, ZEB_String *key) { [d set_bool_for_key:200 key:key]; },
     "1 1 1 '1' '1' nil object", "1 1 1 nil '' nil object"},
    {"false", [](Defaults *d, ZEB_String *key) { [d set_bool_for_key:0 key:key]; },
     "0 0 0 '0' '0' nil object", "0 0 0 nil '' nil object"},
    {"integer", [](Defaults *d, ZEB_String *key) { [d set_integer_for_key:-70000 key:key]; },
     "1 -70000 -70000 '-70000' '-70000' nil object", "1 -70000 -70000 nil '' nil object"},
    {"of_34_bits",
     [](Defaults *d, ZEB_String *key) { [d set_integer_for_key:(NSInteger{3} << 32) - 5 key:key]; },
     "1 -5 -5 '-5' '-5' nil object", "1 12884901883 1.28849e+10 nil '' nil object"},
    {"double", [](Defaults *d, ZEB_String *key) { [d set_double_for_key:2.5 key:key]; },
     "1 2 2.5 '2.5' '2.5' nil object", "1 2 2.5 '2.5' '2.5' nil object"},
    {"text", [](Defaults *d, ZEB_String *key) { [d set_string_for_key:text("z\u00fc\n<&>") key:key]; },
     "0 0 0 'z\u00fc\n<&>' 'z\u00fc\n<&>' nil object", "0 0 0 'z\u00fc\n<&>' 'z\u00fc\n<&>' nil object"},
    {"no_text", [](Defaults *d, ZEB_String *key) { [d set_string_for_key:text("") key:key]; },
     "0 0 0 '' '' nil object", "0 0 0 '' '' nil object"},
    {"bytes", [](Defaults *d, ZEB_String *key) { [d set_byte_array_for_key:bytes("1\xff") key:key]; },
     "0 0 0 nil '' '1\xff' object", "0 0 0 nil '' '1\xff' object"},
    {"no_bytes", [](Defaults *d, ZEB_String *key) { [d set_byte_array_for_key:bytes("") key:key]; },
     "0 0 0 nil '' '' object", "0 0 0 nil '' '' object"},
    {"array",
     [](Defaults *d, ZEB_String *key) { [d set_object_for_key:[NSArray arrayWithObject:@"1"] key:key]; },
     "0 0 0 nil '' nil object", "0 0 0 nil '' nil object"},
};

/// An array in an array in an array, deeper than is looked.
NSArray *deep_array(int depth = 100)
{
    return depth == 0 ? [NSArray array] : [NSArray arrayWithObject:deep_array(depth - 1)];
}

/// What a setter refuses.
struct Refusal {
    const char *selector, *note;
    void (*store)(Defaults *, ZEB_String *key);
    bool in_every_key;
};

const Refusal refusals[] = {
    {"set_bool_for_key:key:", unusable_key, rows[0].store, false},
    {"set_integer_for_key:key:", unusable_key, rows[2].store, false},
    {"set_double_for_key:key:", unusable_key, rows[4].store, false},
    {"set_string_for_key:key:", unusable_key, rows[5].store, false},
    {"set_byte_array_for_key:key:", unusable_key, rows[7].store, false},
    {"set_object_for_key:key:", unusable_key, rows[9].store, false},
    {"remove_object_for_key:", unusable_key,
     [](Defaults *d, ZEB_String *key) { [d remove_object_for_key:key]; }, false},
    {"set_string_for_key:key:", unusable_value,
     [](Defaults *d, ZEB_String *key) { [d set_string_for_key:nil key:key]; }, true},
    {"set_string_for_key:key:", unusable_value,
     [](Defaults *d, ZEB_String *key) { [d set_string_for_key:text("a\xff") key:key]; }, true},
    {"set_string_for_key:key:", unusable_value,
     [](Defaults *d, ZEB_String *key) { [d set_string_for_key:static_cast<id>(@"a") key:key]; }, true},
    {"set_byte_array_for_key:key:", unusable_value,
     [](Defaults *d, ZEB_String *key) { [d set_byte_array_for_key:nil key:key]; }, true},
    {"set_byte_array_for_key:key:", unusable_value,
     [](Defaults *d, ZEB_String *key) { [d set_byte_array_for_key:static_cast<id>(text("a")) key:key]; },
     true},
    {"set_object_for_key:key:", unusable_value,
     [](Defaults *d, ZEB_String *key) { [d set_object_for_key:nil key:key]; }, true},
    {"set_object_for_key:key:", unusable_value,
     [](Defaults *d, ZEB_String *key) { [d set_object_for_key:deep_array() key:key]; }, true},
    {"set_object_for_key:key:", unusable_value,
     [](Defaults *d, ZEB_String *key) {
         [d set_object_for_key:[NSArray arrayWithObject:[NSDictionary dictionaryWithObject:@"a"
                                                                                    forKey:[NSDate date]]]
                           key:key];
     },
     true},
};

class Every_Defaults : public testing::TestWithParam<int>
{
protected:
    void SetUp() override
    {
        if (!defaults_are_scratch())
            GTEST_SKIP() << "these defaults are the user's";
        // One at a time: what is common to the process is made by the first use.
        defaults = GetParam() == 0   ? static_cast<id>([ZEB_Standard_Defaults shared])
                   : GetParam() == 1 ? static_cast<id>([ZEB_Suite_Defaults shared])
                   : GetParam() == 2 ? static_cast<id>([ZEB_Defaults shared_standard])
                                     : static_cast<id>([ZEB_Defaults shared_suite]);
        is_suite = GetParam() % 2 == 1;
    }

    Defaults *defaults = nil;
    bool is_suite = false;
    ZEB_String *const key = text("key");
};

} // namespace

TEST_P(Every_Defaults, answer_each_kind_of_value_to_each_getter)
{
    EXPECT_EQ(values_of(defaults, key), no_values);
    for (const Row &row : rows) {
        row.store(defaults, key);
        EXPECT_EQ(values_of(defaults, key), is_suite ? row.in_suite : row.elsewhere) << row.name;
    }
    [defaults remove_object_for_key:key];
    [defaults remove_object_for_key:key];
    EXPECT_EQ(values_of(defaults, key), no_values);
}

TEST_P(Every_Defaults, refuse_unusable_keys_and_values)
{
    [defaults set_string_for_key:text("stays") key:key];
    ZEB_String *const keys[] = {nil, text(""), text("a\xff"), static_cast<id>(@"key"), key};
    for (const Refusal &row : refusals)
        for (ZEB_String *const tried : keys)
            if (tried != key || row.in_every_key) {
                EXPECT_EQ(
                    standard_error_of([&] { row.store(defaults, tried); }),
                    fix_line(row.selector, is_suite ? "ZEB_Suite_Defaults" : "NSUserDefaults", row.note));
            }
    for (ZEB_String *const tried : keys)
        EXPECT_EQ(values_of(defaults, tried), tried == key ? "0 0 0 'stays' 'stays' nil object" : no_values);
    [defaults remove_object_for_key:key];
}

TEST_P(Every_Defaults, switch_debug_logging)
{
    EXPECT_EQ([defaults debug_logging_enabled], 0);
    [defaults set_bool_for_key:1 key:text("does_debug_logging")];
    EXPECT_EQ([defaults debug_logging_enabled], 1);
    [defaults remove_object_for_key:text("does_debug_logging")];
}

INSTANTIATE_TEST_SUITE_P(Defaults, Every_Defaults, testing::Range(0, 4));

TEST(Defaults, shared_objects_are_made_once)
{
    EXPECT_EQ([ZEB_Standard_Defaults shared], [NSUserDefaults standardUserDefaults]);
    EXPECT_EQ([ZEB_Suite_Defaults shared], [ZEB_Suite_Defaults shared]);
    EXPECT_TRUE([[ZEB_Suite_Defaults shared] isMemberOfClass:[ZEB_Suite_Defaults class]]);
    EXPECT_EQ([[ZEB_Defaults shared_suite] platform_defaults], [ZEB_Suite_Defaults shared]);
    EXPECT_EQ([[ZEB_Defaults shared_standard] platform_defaults], [ZEB_Standard_Defaults shared]);
    EXPECT_EQ([[ZEB_Defaults shared_suite] synchronize], YES);
    ZEB_Defaults *const none = [[[ZEB_Defaults alloc] init] autorelease];
    for (const Row &row : rows)
        row.store(none, text("key"));
    EXPECT_EQ(values_of(none, text("key")), "0 0 0 nil 'old' nil nil");
}

TEST(Defaults, suite_refuses_what_the_platform_would_throw_for)
{
    ZEB_Suite_Defaults *const suite = [ZEB_Suite_Defaults shared];
    const auto refusal = [](const char *selector, const char *note, auto work) {
        EXPECT_EQ(standard_error_of(work), fix_line(selector, "ZEB_Suite_Defaults", note));
    };
    refusal("setObject:forKey:", unusable_value, [=] { [suite setObject:nil forKey:@"key"]; });
    refusal("setObject:forKey:", unusable_key, [=] { [suite setObject:@"a" forKey:nil]; });
    refusal("setObject:forKey:", unusable_key,
            [=] { [suite setObject:@"a" forKey:static_cast<id>([NSDate date])]; });
    refusal("removeObjectForKey:", unusable_key, [=] { [suite removeObjectForKey:nil]; });
    [suite setFloat:0.1f forKey:@"key"];
    EXPECT_TRUE([[suite objectForKey:@"key"] isEqual:@"0.1"]);
    [suite removeObjectForKey:@"key"];
}

using Defaults_Locale = Comma_Locale;

TEST_F(Defaults_Locale, doubles_have_a_point_in_every_locale)
{
    ZEB_Suite_Defaults *const suite = [ZEB_Suite_Defaults shared];
    [suite set_double_for_key:-1234.5 key:text("key")];
    EXPECT_TRUE([[suite objectForKey:@"key"] isEqual:@"-1234.5"]);
    EXPECT_EQ([suite double_for_key:text("key")], -1234.5);
    [suite remove_object_for_key:text("key")];
}
