#import "filesystem/ZEB_File_Private.h"

#import <Korvane_ZEB/ZEB_Error_Stream.h>
#import <Korvane_ZEB/ZEB_String.h>

#include "core/engine/char_span.hpp"

namespace zeb::engine
{
namespace
{

constexpr Char_Span line_break = span_of("\n");

} // namespace

ZEB_Char_Span visible_path(ZEB_String *path)
{
    const char *const text = [path char_data];
    return {text, visible_path_length(text, [path count])};
}

Platform_Path::Platform_Path(ZEB_String *path, const char *suffix)
    : text([path char_data],
           has_no_inner_null([path char_data], [path count]) ? visible_path(path).length : 0,
           has_no_inner_null([path char_data], [path count]) ? suffix : ""),
      fault(0)
{
    if (!has_no_inner_null([path char_data], [path count]))
        fault = EINVAL;
    else if (*text.c_string() == '\0' && visible_path(path).length != 0)
        fault = ENOMEM;
}

uint32_t decision_on(ZEB_File *file, ZEB_File_Action action, SEL operation)
{
    constexpr uint32_t entry_acts = 1;
    const id interceptor = [file interceptor];
    if (![interceptor respondsToSelector:@selector(decide_action:file:)])
        return entry_acts;
    const uint32_t decision = [interceptor decide_action:action file:file];
    return decision == ZEB_INTERCEPT_REFUSE || [interceptor respondsToSelector:operation] ? decision
                                                                                          : entry_acts;
}

void write_line(ZEB_Stream *stream, Line line)
{
    for (const ZEB_Char_Span piece : line)
        [stream write_bytes:piece.char_c_array length:piece.length];
    [stream write_bytes:line_break.char_c_array length:line_break.length];
}

void report_success(ZEB_File *file, ZEB_Char_Span message)
{
    report_success(file, {message, visible_path([file path])});
}

void report_success(ZEB_File *file, Line line)
{
    if ([file log_actions])
        write_line([ZEB_Stream shared_stream], line);
}

uint32_t report_failure(ZEB_File *file, ZEB_Char_Span message, int error)
{
    return report_failure(file, {message, visible_path([file path])}, error);
}

uint32_t report_failure(ZEB_File *file, Line line, int error)
{
    [file set_last_error:error];
    if ([file report_errors])
        write_line([ZEB_Error_Stream shared_error_stream], line);
    return 0;
}

Number_Text::Number_Text(uint64_t number)
    : length(static_cast<uint32_t>(
          snprintf(characters, sizeof characters, "%llu", static_cast<unsigned long long>(number))))
{
}

void report_discrepancy(ZEB_File *file, ZEB_Char_Span lead, uint64_t actual, ZEB_Char_Span against,
                        uint64_t expected, ZEB_Char_Span occasion, int error)
{
    const Number_Text actual_text(actual), expected_text(expected);
    report_failure(
        file, {lead, actual_text.text(), against, expected_text.text(), occasion, visible_path([file path])},
        error);
}

} // namespace zeb::engine
