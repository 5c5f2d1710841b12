#include "tests/runtime/defaults.hpp"
#include "tests/support/comma_locale.hpp"

namespace
{

const char unusable_key[] = "Cannot use key, no change made.";
const char unusable_value[] = "Cannot store value, no change made.";

/// An array in an array in an array, deeper than is looked.
NSArray *deep_array(int depth = 100)
{
    return depth == 0 ? [NSArray array] : [NSArray arrayWithObject:deep_array(depth - 1)];
}

NSArray *array_with_keys_that_are_dates()
{
    return [NSArray arrayWithObject:[NSDictionary dictionaryWithObject:@"a" forKey:[NSDate date]]];
}

/// What a setter refuses: a key; for every key, a value.
struct Refusal {
    const char *selector;
    Change store;
};

const Refusal of_keys[] = {
    {"set_bool_for_key:key:", CHANGE([d set_bool_for_key:1 key:key])},
    {"set_integer_for_key:key:", CHANGE([d set_integer_for_key:1 key:key])},
    {"set_double_for_key:key:", CHANGE([d set_double_for_key:1 key:key])},
    {"set_string_for_key:key:", CHANGE([d set_string_for_key:text("a") key:key])},
    {"set_byte_array_for_key:key:", CHANGE([d set_byte_array_for_key:bytes("a") key:key])},
    {"set_object_for_key:key:", CHANGE([d set_object_for_key:@"a" key:key])},
    {"remove_object_for_key:", CHANGE([d remove_object_for_key:key])},
};
const Refusal of_values[] = {
    {"set_string_for_key:key:", CHANGE([d set_string_for_key:nil key:key])},
    {"set_string_for_key:key:", CHANGE([d set_string_for_key:text("a\xff") key:key])},
    {"set_string_for_key:key:", CHANGE([d set_string_for_key:static_cast<id>(@"a") key:key])},
    {"set_byte_array_for_key:key:", CHANGE([d set_byte_array_for_key:nil key:key])},
    {"set_byte_array_for_key:key:", CHANGE([d set_byte_array_for_key:static_cast<id>(text("a")) key:key])},
    {"set_object_for_key:key:", CHANGE([d set_object_for_key:nil key:key])},
    {"set_object_for_key:key:", CHANGE([d set_object_for_key:deep_array() key:key])},
    {"set_object_for_key:key:", CHANGE([d set_object_for_key:array_with_keys_that_are_dates() key:key])},
};

class Every_Defaults : public Defaults_Test, public testing::WithParamInterface<int>
{
protected:
    Every_Defaults()
    {
        // One at a time: what is common to the process is made by the first use.
        defaults = GetParam() == 0   ? static_cast<id>([ZEB_Standard_Defaults shared])
                   : GetParam() == 1 ? static_cast<id>([ZEB_Suite_Defaults shared])
                   : GetParam() == 2 ? static_cast<id>([ZEB_Defaults shared_standard])
                                     : static_cast<id>([ZEB_Defaults shared_suite]);
    }

    Defaults *defaults = nil;
    const bool is_suite = GetParam() % 2 == 1;
    ZEB_String *const key = text("key");
};

} // namespace

TEST_P(Every_Defaults, answer_each_kind_of_value_to_each_getter)
{
    EXPECT_EQ(values_of(defaults, key), no_values);
    for (const Kept_Value &row : kept_values) {
        row.store(defaults, key);
        EXPECT_EQ(values_of(defaults, key), is_suite ? row.in_suite : row.elsewhere) << row.name;
    }
    [defaults remove_object_for_key:key];
    [defaults remove_object_for_key:key];
    EXPECT_EQ(values_of(defaults, key), no_values);
    for (const uint8_t on : {1, 0}) {
        [defaults set_bool_for_key:on key:text("does_debug_logging")];
        EXPECT_EQ([defaults debug_logging_enabled], on);
    }
    [defaults remove_object_for_key:text("does_debug_logging")];
}

TEST_P(Every_Defaults, refuse_unusable_keys_and_values)
{
    [defaults set_string_for_key:text("stays") key:key];
    const char *const named = is_suite ? "ZEB_Suite_Defaults" : "NSUserDefaults";
    const auto expect_refused = [&](const Refusal &row, ZEB_String *tried, const char *note) {
        EXPECT_EQ(standard_error_of([&] { row.store(defaults, tried); }),
                  fix_line(row.selector, named, note));
    };
    ZEB_String *const keys[] = {nil, text(""), text("a\xff"), static_cast<id>(@"key"), key};
    for (ZEB_String *const tried : keys) {
        for (const Refusal &row : of_values)
            expect_refused(row, tried, unusable_value);
        for (const Refusal &row : of_keys)
            if (tried != key)
                expect_refused(row, tried, unusable_key);
    }
    for (ZEB_String *const tried : keys)
        EXPECT_EQ(values_of(defaults, tried), tried == key ? "0 0 0 'stays' 'stays' nil object" : no_values);
    [defaults remove_object_for_key:key];
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
    for (const Kept_Value &row : kept_values)
        row.store(none, text("key"));
    EXPECT_EQ(values_of(none, text("key")), "0 0 0 nil 'old' nil nil");
}

TEST(Defaults, suite_refuses_what_the_platform_would_throw_for)
{
    ZEB_Suite_Defaults *const suite = [ZEB_Suite_Defaults shared];
    const std::string of_values = fix_line("setObject:forKey:", "ZEB_Suite_Defaults", unusable_value),
                      of_keys = fix_line("setObject:forKey:", "ZEB_Suite_Defaults", unusable_key),
                      of_removals = fix_line("removeObjectForKey:", "ZEB_Suite_Defaults", unusable_key);
    EXPECT_EQ(standard_error_of([=] { [suite setObject:nil forKey:@"key"]; }), of_values);
    for (const id key : {id(nil), id([NSDate date])}) {
        EXPECT_EQ(standard_error_of([=] { [suite setObject:@"a" forKey:key]; }), of_keys);
        EXPECT_EQ(standard_error_of([=] { [suite removeObjectForKey:key]; }), of_removals);
    }
    [suite setFloat:0.1f forKey:@"key"];
    EXPECT_TRUE([[suite objectForKey:@"key"] isEqual:@"0.1"]);
    [suite removeObjectForKey:@"key"];
}

using Defaults_Locale = Comma_Locale;

TEST_F(Defaults_Locale, doubles_have_a_point_in_every_locale)
{
    ZEB_Suite_Defaults *const suite = [ZEB_Suite_Defaults shared];
    [suite set_double_for_key:-1234.5 key:text("key")];
    EXPECT_EQ(text_of([suite string_for_key:text("key")]), "-1234.5");
    EXPECT_EQ([suite double_for_key:text("key")], -1234.5);
    [suite remove_object_for_key:text("key")];
}
