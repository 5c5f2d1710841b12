/// The defaults objects, and what is read of them.
#pragma once

#include "tests/support/strings.hpp"

#include <cstdlib>
#include <string>

namespace support
{

using Defaults = NSObject<ZEB_Default_Values>;

/// Whether the defaults of these tests are their own (tests/CMakeLists.txt), and not the user's.
inline bool defaults_are_scratch() { return std::getenv("GNUSTEP_CONFIG_FILE") != nullptr; }

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

} // namespace support
