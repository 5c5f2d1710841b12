/// The defaults objects, and what is read of them.
#pragma once

#include "tests/support/class_test.hpp"

#include <cstdlib>
#include <string>

namespace support
{

using Defaults = NSObject<ZEB_Default_Values>;

class Defaults_Test : public testing::Test
{
protected:
    void SetUp() override
    {
        // Those of these tests are their own (tests/CMakeLists.txt).
        if (std::getenv("GNUSTEP_CONFIG_FILE") == nullptr)
            GTEST_SKIP() << "these defaults are the user's";
    }
};

/// What each getter answers for a key, and what `assign_string_for_key:key:` makes of a string that held
/// "old".
inline std::string values_of(Defaults *defaults, ZEB_String *key)
{
    const auto quoted = [](auto *string) { return string != nil ? "'" + text_of(string) + "'" : "nil"; };
    ZEB_String *const assigned = text("old");
    [defaults assign_string_for_key:assigned key:key];
    return [[NSString stringWithFormat:@"%d %ld %g", [defaults bool_for_key:key],
                                       static_cast<long>([defaults integer_for_key:key]),
                                       [defaults double_for_key:key]] UTF8String] +
           (" " + quoted([defaults string_for_key:key])) + " " + quoted(assigned) + " " +
           quoted([defaults byte_array_for_key:key]) + " " +
           ([defaults object_for_key:key] != nil ? "object" : "nil");
}

inline const std::string no_values = "0 0 0 nil '' nil nil";

using Change = void (*)(Defaults *, ZEB_String *key);
#define CHANGE(call) [](Defaults *d, ZEB_String *key) { call; }

/// A value to store, and what the getters answer then: of the suite, where scalars are text, and else.
struct Kept_Value {
    const char *name;
    Change store;
    std::string in_suite, elsewhere = in_suite;
};

inline const std::string odd = " z\u00fc\u20ac\r\n\t<&>\"\\ ";

inline const Kept_Value kept_values[] = {
    {"true", CHANGE([d set_bool_for_key:200 key:key]), "1 1 1 '1' '1' nil object", "1 1 1 nil '' nil object"},
    {"false", CHANGE([d set_bool_for_key:0 key:key]), "0 0 0 '0' '0' nil object", "0 0 0 nil '' nil object"},
    {"integer", CHANGE([d set_integer_for_key:-70000 key:key]),
     "1 -70000 -70000 '-70000' '-70000' nil object", "1 -70000 -70000 nil '' nil object"},
    {"of 34 bits", CHANGE([d set_integer_for_key:(NSInteger{3} << 32) - 5 key:key]),
     "1 -5 -5 '-5' '-5' nil object", "1 12884901883 1.28849e+10 nil '' nil object"},
    {"double", CHANGE([d set_double_for_key:2.5 key:key]), "1 2 2.5 '2.5' '2.5' nil object"},
    {"text", CHANGE([d set_string_for_key:text(odd) key:key]),
     "0 0 0 '" + odd + "' '" + odd + "' nil object"},
    {"no text", CHANGE([d set_string_for_key:text("") key:key]), "0 0 0 '' '' nil object"},
    {"bytes", CHANGE([d set_byte_array_for_key:bytes("1\xff") key:key]), "0 0 0 nil '' '1\xff' object"},
    {"no bytes", CHANGE([d set_byte_array_for_key:bytes("") key:key]), "0 0 0 nil '' '' object"},
    {"array", CHANGE([d set_object_for_key:[NSArray arrayWithObject:@"1"] key:key]),
     "0 0 0 nil '' nil object"},
};

} // namespace support
