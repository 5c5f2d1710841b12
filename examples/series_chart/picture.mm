#import "picture.h"

#import <Korvane_ZEB/ZEB_Array_Spans.hpp>

#include <algorithm>
#include <string.h>

namespace
{

constexpr uint32_t replacement_character = 0xFFFD;

/// Whether a document may hold a code point.
bool is_character(uint32_t code)
{
    return (code >= 0x20 && code < 0xD800) || (code >= 0xE000 && code < 0xFFFE) ||
           (code >= 0x10000 && code < 0x110000);
}

/// Returns the UTF-8 of units from `start` to before `end`, as a document holds it; nil if allocation fails.
ZEB_String *document_text(ZEB_Wide_Char_Vector *units, uint32_t start, uint32_t end)
{
    ZEB_Wide_String *const characters = [ZEB_Wide_String array_with_capacity:end - start + 1];
    [characters append_wide_chars:[units wide_char_data] + start count:end - start];
    for (uint32_t &code : zeb::elements(characters))
        code = is_character(code) ? code : replacement_character;
    ZEB_String *const text = [ZEB_String array_with_capacity:[characters count]];
    if ([characters count] != end - start || ![characters write_code_points_as_utf8:text])
        return nil;
    constexpr const char *replacements[][2] = {{"&", "&amp;"}, {"<", "&lt;"}, {">", "&gt;"}};
    for (const auto &[from, to] : replacements)
        [text replace_occurrences:[ZEB_String string_with_c_string:from]
                      replacement:[ZEB_String string_with_c_string:to]];
    return text;
}

/// Writes texts and numbers by turns.
void put(ZEB_Stream *stream, const char *text)
{
    [stream write_bytes:text length:static_cast<uint32_t>(strlen(text))];
}

template <class... Rest>
void put(ZEB_Stream *stream, const char *text, double number, Rest... rest)
{
    put(stream, text);
    [stream write_double:number];
    put(stream, rest...);
}

void put_text(ZEB_Stream *stream, ZEB_Wide_Char_Vector *units, uint32_t start, uint32_t end)
{
    ZEB_String *const text = document_text(units, start, end);
    if (text == nil)
        [stream set_failure_count:[stream failure_count] + 1];
    [stream write_string:text];
}

} // namespace

@implementation Picture

- (id)init_with_title:(ZEB_Wide_Char_Vector *)title width:(double)width height:(double)height
{
    self = [super init];
    if (self != nil) {
        text = [[ZEB_String alloc] init];
        stream = [[ZEB_String_Stream alloc] init_with_string:text];
        [stream set_double_format:"%.5g"];
        put(stream, "<svg xmlns=\"http://www.w3.org/2000/svg\" viewBox=\"0 0 ", width, " ", height,
            "\" width=\"", width, "\" height=\"", height,
            "\"\nfont-family=\"Helvetica, Arial, 'DejaVu Sans', sans-serif\">\n");
        put(stream, "<title>");
        put_text(stream, title, 0, [title count]);
        put(stream, "</title>\n<rect width=\"100%\" height=\"100%\" fill=\"white\"/>\n");
    }
    return self;
}

- (void)dealloc
{
    [stream release];
    [text release];
    [super dealloc];
}

- (void)begin_group:(const char *)name attributes:(const char *)attributes
{
    put(stream, "<g id=\"");
    put(stream, name);
    put(stream, "\" ");
    put(stream, attributes);
    put(stream, ">\n");
}

- (void)begin_texts:(const char *)name color:(const char *)color font_size:(double)size
{
    put(stream, "<g id=\"");
    put(stream, name);
    put(stream, "\" fill=\"");
    put(stream, color);
    put(stream, "\" font-size=\"", size, "\">\n");
}

- (void)end_group
{
    put(stream, "</g>\n");
}

- (void)add_line_from:(double)x y:(double)y to:(double)other_x y:(double)other_y
{
    put(stream, "<line x1=\"", x, "\" y1=\"", y, "\" x2=\"", other_x, "\" y2=\"", other_y, "\"/>\n");
}

- (void)add_frame:(double)x y:(double)y width:(double)width height:(double)height
{
    put(stream, "<rect x=\"", x, "\" y=\"", y, "\" width=\"", width, "\" height=\"", height, "\"/>\n");
}

- (void)add_dot:(double)x y:(double)y radius:(double)radius
{
    put(stream, "<circle cx=\"", x, "\" cy=\"", y, "\" r=\"", radius, "\"/>\n");
}

- (void)begin_path
{
    put(stream, "<path fill=\"none\" d=\"");
}

- (void)move_to:(double)x y:(double)y
{
    put(stream, "M", x, " ", y, "\n");
}

- (void)draw_to:(double)x y:(double)y
{
    put(stream, "L", x, " ", y, "\n");
}

- (void)end_path
{
    put(stream, "\"/>\n");
}

- (void)add_text:(ZEB_Wide_Char_Vector *)line x:(double)x y:(double)y anchor:(Text_Anchor)anchor
{
    [self add_text:line raised_from:[line count] x:x y:y anchor:anchor];
}

- (void)add_text:(ZEB_Wide_Char_Vector *)line
     raised_from:(uint32_t)index
               x:(double)x
               y:(double)y
          anchor:(Text_Anchor)anchor
{
    constexpr const char *anchors[] = {"start", "middle", "end"};
    const uint32_t count = [line count];
    put(stream, "<text x=\"", x, "\" y=\"", y, "\" text-anchor=\"");
    put(stream, anchors[anchor]);
    put(stream, "\">");
    put_text(stream, line, 0, std::min(index, count));
    if (index < count) {
        put(stream, "<tspan dy=\"-0.4em\" font-size=\"75%\">");
        put_text(stream, line, index, count);
        put(stream, "</tspan>");
    }
    put(stream, "</text>\n");
}

- (void)add_upright_text:(ZEB_Wide_Char_Vector *)line x:(double)x y:(double)y
{
    put(stream, "<g transform=\"rotate(-90 ", x, " ", y, ")\">\n");
    [self add_text:line x:x y:y anchor:TEXT_IS_CENTERED];
    put(stream, "</g>\n");
}

- (ZEB_String *)finished_text
{
    put(stream, "</svg>\n");
    return [stream failure_count] == 0 ? text : nil;
}

@end
