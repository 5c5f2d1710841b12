#import "calendar/ZEB_Date_Private.h"

#import <Korvane_ZEB/ZEB_Stream.h>
#import <Korvane_ZEB/ZEB_String_Text.h>

#include "calendar/engine/civil_date.hpp"
#include "calendar/engine/date_text.hpp"
#include "calendar/engine/iso8601.hpp"
#include "calendar/engine/local_time.hpp"
#include "core/engine/namespace.hpp"
#include "core/engine/stream_formats.hpp"

using engine::value_of;

namespace
{

void append(ZEB_String *string, const char *text, const char *end)
{
    [string append_c_string:text length:static_cast<uint32_t>(end - text)];
}

/// Calls `take` with the date's strftime text, as pointer and length, unless it is empty.
template <class Take>
void with_strftime_text(ZEB_Date *date, const char *format, Take take)
{
    char text[engine::strftime_limit];
    const char *const used = engine::or_default(format, engine::default_date_format);
    const std::size_t length = engine::format_with_strftime(text, used, value_of(date));
    if (length != 0)
        take(text, static_cast<uint32_t>(length));
}

} // namespace

@implementation ZEB_Date (Text)

- (void)append_strftime_text:(ZEB_String *)string format:(const char *)format
{
    with_strftime_text(self, format, [=](const char *text, uint32_t length) {
        [string append_c_string:text length:length];
    });
}

- (void)append_strftime_text:(ZEB_String *)string
{
    ZEB_String *const format = [[ZEB_String alloc] init_as_copy_of_char_vector:string];
    [format append_char:'\0'];
    if ([format count] != [string count]) // else the allocation failed
        [self append_strftime_text:string format:[format char_data]];
    [format release];
}

- (void)write_text:(ZEB_String *)string
{
    char text[engine::slash_text_size];
    const char *const end = engine::write_slash_text(text, value_of(self));
    [string copy_c_string:text length:static_cast<uint32_t>(end - text)];
}

- (void)append_text:(ZEB_String *)string
{
    char text[engine::slash_text_size];
    append(string, text, engine::write_slash_text(text, value_of(self)));
}

- (void)assign_from_text:(ZEB_String *)string
{
    engine::set_value(self, engine::read_spaced_text([string char_data], [string count]));
}

- (void)append_iso8601_text:(ZEB_String *)string
{
    char text[engine::iso8601_text_size];
    append(string, text, engine::write_iso8601(text, engine::day_from_civil_date(date), time));
}

- (void)append_iso8601_date_text:(ZEB_String *)string
{
    char text[engine::iso8601_text_size];
    append(string, text, engine::write_iso8601_date(text, date));
}

- (uint32_t)assign_from_iso8601_text:(ZEB_String *)string
{
    engine::Date_Time value = value_of(self);
    const uint32_t consumed =
        engine::scan_iso8601([string char_data], [string count], value.date, value.time);
    if (consumed != 0)
        engine::set_value(self, engine::make_civil_date_time(value.date, value.time));
    return consumed;
}

- (void)send_to_stream:(ZEB_Stream *)stream
{
    with_strftime_text(self, [stream date_format],
                       [=](const char *text, uint32_t length) { [stream write_bytes:text length:length]; });
}

- (void)send_text_to_stream:(ZEB_Stream *)stream
{
    [self send_to_stream:stream];
}

- (void)send_contents_to_stream:(ZEB_Stream *)stream
{
    [self send_to_stream:stream];
}

@end
