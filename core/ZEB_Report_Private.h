/*
 * Passes engine notes to the shared error stream.
 */
#import <Foundation/Foundation.h>

#include <Korvane_ZEB/ZEB_Types.h>

namespace zeb::engine
{

/// Reports an engine note for the operation `selector` of `receiver`, through the shared error stream's
/// `need_to_fix_algorithm`.
struct Fix_Report {
    id receiver;
    SEL selector;

    void operator()(ZEB_Char_Span note) const;
};

/// Report a note through `need_to_implement` or `need_to_overload`.
void report_need_to_implement(id receiver, SEL selector, ZEB_Char_Span note);
void report_need_to_overload(id receiver, SEL selector, ZEB_Char_Span note);

} // namespace zeb::engine
