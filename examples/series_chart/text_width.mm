#import "text_width.h"

#import <Korvane_ZEB/ZEB_Array_Spans.hpp>

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
    ZEB_Wide_String *const dots = [ZEB_Wide_String array_with_capacity:4];
    [dots copy_c_string:"..." length:3];
    while ([text is_not_empty] && text_width(text, font_size) + text_width(dots, font_size) > width)
        [text decrement_count];
    [text append_array:dots];
}
