#import "texts.h"

#import <Korvane_ZEB/ZEB_Array_Spans.hpp>

#include <string.h>

namespace
{

/// In sizes of the font, at least those of its widest usual kinds.
double width_of(uint32_t code)
{
    constexpr const char *narrow = " !'(),-./:;I[]fijlrt|";
    constexpr const char *wide = "%@MWmw";
    if (code >= 0x80)
        return 1.05;
    const auto is_in = [=](const char *characters) {
        for (; *characters != '\0'; ++characters)
            if (static_cast<uint32_t>(*characters) == code)
                return true;
        return false;
    };
    if (is_in(narrow))
        return 0.42;
    if (is_in(wide))
        return 1.05;
    return code >= 'A' && code <= 'Z' ? 0.8 : 0.65;
}

} // namespace

ZEB_Wide_String *wide_text(const char *chars, uint32_t length)
{
    ZEB_Wide_String *const text = [ZEB_Wide_String array_with_capacity:length + 1];
    if (![text set_code_points_from_utf8:[ZEB_String link_to_chars:const_cast<char *>(chars) count:length]])
        [text copy_c_string:chars length:length];
    return text;
}

ZEB_Wide_String *wide_text(const char *chars)
{
    return wide_text(chars, static_cast<uint32_t>(strlen(chars)));
}

double text_width(ZEB_Wide_Char_Vector *text, double font_size)
{
    double width = 0;
    for (const uint32_t code : zeb::elements(text))
        width += width_of(code);
    return width * font_size;
}

void cut_to_width(ZEB_Wide_String *text, double font_size, double width)
{
    if (text_width(text, font_size) <= width)
        return;
    ZEB_Wide_String *const dots = wide_text("...");
    while ([text is_not_empty] && text_width(text, font_size) + text_width(dots, font_size) > width)
        [text decrement_count];
    [text append_array:dots];
}
