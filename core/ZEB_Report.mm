#import "core/ZEB_Report_Private.h"

#import <Korvane_ZEB/ZEB_Error_Stream.h>

namespace zeb::engine
{

void Fix_Report::operator()(ZEB_Char_Span note) const
{
    [[ZEB_Error_Stream shared_error_stream] need_to_fix_algorithm:selector object:receiver note:note];
}

void report_need_to_implement(id receiver, SEL selector, ZEB_Char_Span note)
{
    [[ZEB_Error_Stream shared_error_stream] need_to_implement:selector object:receiver note:note];
}

void report_need_to_overload(id receiver, SEL selector, ZEB_Char_Span note)
{
    [[ZEB_Error_Stream shared_error_stream] need_to_overload:selector object:receiver note:note];
}

} // namespace zeb::engine
