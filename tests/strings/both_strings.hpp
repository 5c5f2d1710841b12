/// What the tests of 8-bit and of 32-bit strings share: each test is one for both.
#pragma once

#include "tests/support/class_test.hpp"
#import <Korvane_ZEB/ZEB_String_Views.hpp>

#include "tests/support/memory.hpp"

#import <objc/runtime.h>

namespace both
{

using Strings = testing::Types<ZEB_String, ZEB_Wide_String>;

/// Characters 0 to 255 as a string, and back; a link onto all of a string.
template <class String>
String *made(const std::string &characters)
{
    String *const string = [String array_with_capacity:0];
    if constexpr (std::is_same_v<String, ZEB_String>)
        [string set_chars:characters.data() count:static_cast<uint32_t>(characters.size())];
    else
        for (const char c : characters)
            [string append_wide_char:static_cast<unsigned char>(c)];
    return string;
}

template <class String>
std::string characters_of(String *string)
{
    const auto view = zeb::view(string);
    return {view.begin(), view.end()};
}

inline ZEB_String *link_onto(ZEB_String *string)
{
    return [ZEB_String link_to_chars:[string char_data] count:[string count]];
}

inline ZEB_Wide_String *link_onto(ZEB_Wide_String *string)
{
    return [ZEB_Wide_String link_to_wide_chars:[string wide_char_data] count:[string count]];
}

/// Expects that work is refused with a note, and changes nothing, on a link and where each allocation fails.
/// Returns the string as the work leaves it.
template <class String, class Work>
String *refused(const std::string &characters, const char *selector, const char *note, Work work)
{
    const auto line = [&](const char *text) {
        return fix_line(selector, class_getName([String class]), text);
    };
    String *const string = made<String>(characters), *const link = link_onto(string);
    EXPECT_EQ(standard_error_of([&] { work(link); }), line(note)) << selector;
    EXPECT_EQ(characters_of(link), characters);
    for (int call = 0; call < 3; ++call) { // as many as an operation makes at most
        [string trim_allocation];
        memory.calls_until_failure = call;
        const std::string error = standard_error_of([&] { work(string); });
        const bool has_failed = memory.calls_until_failure < 0;
        memory.calls_until_failure = -1;
        if (!has_failed)
            break;
        EXPECT_EQ(error, line("Runtime error in reallocate macro"));
        EXPECT_EQ(characters_of(string), characters);
    }
    return string;
}

} // namespace both
