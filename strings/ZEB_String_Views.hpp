/// Live views of strings for C++: std::string_view and std::u32string_view over the characters themselves.
///
/// A view is good until its string grows, is relinked or ends. It is empty for nil.
#pragma once

#import <Korvane_ZEB/ZEB_String.h>
#import <Korvane_ZEB/ZEB_Wide_String.h>

#include <string_view>

namespace zeb
{

/// The characters of an 8-bit string.
inline std::string_view view(ZEB_Char_Vector *string) { return {[string char_data], [string count]}; }

/// The units of a 32-bit string. The view reads them as char32_t. What was stored before the view is made
/// is seen by it; where the same function goes on storing through `wide_char_data` while the view is in
/// use, compile with -fno-strict-aliasing.
inline std::u32string_view view(ZEB_Wide_Char_Vector *string)
{
    static_assert(sizeof(char32_t) == sizeof(uint32_t) && alignof(char32_t) == alignof(uint32_t));
    const void *units = [string wide_char_data];
    // The compiler may not know whose memory this is, nor keep stores to it for later.
    __asm__ volatile("" : "+r"(units) : : "memory");
    return {static_cast<const char32_t *>(units), [string count]};
}

} // namespace zeb
