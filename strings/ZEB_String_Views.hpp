/// Views of strings for C++: std::string_view and std::u32string_view over their characters, without a copy.
///
/// A view is valid until its string grows, is relinked or is deallocated. It is empty for nil.
#pragma once

#import <Korvane_ZEB/ZEB_String.h>
#import <Korvane_ZEB/ZEB_Wide_String.h>

#include <string_view>

ZEB_ASSUME_NONNULL_BEGIN

namespace zeb
{

/// Returns a view of the characters of an 8-bit string.
inline std::string_view view(ZEB_Char_Vector *ZEB_NULLABLE string)
{
    return {[string char_data], [string count]};
}

/// Returns a view of the units of a 32-bit string as char32_t. Stores made before the view was created are
/// visible through it. If the same function continues to store through `wide_char_data` while it uses the
/// view, compile with -fno-strict-aliasing.
inline std::u32string_view view(ZEB_Wide_Char_Vector *ZEB_NULLABLE string)
{
    static_assert(sizeof(char32_t) == sizeof(uint32_t) && alignof(char32_t) == alignof(uint32_t));
    const void *units = [string wide_char_data];
    // Hides the origin of the pointer from the compiler and forces pending stores to memory.
    __asm__ volatile("" : "+r"(units) : : "memory");
    return {static_cast<const char32_t *>(units), [string count]};
}

} // namespace zeb

ZEB_ASSUME_NONNULL_END
