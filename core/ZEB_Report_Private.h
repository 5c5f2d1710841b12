/*
 * The way of a refusal from the engine to the diagnostic channel.
 */
#import <Foundation/Foundation.h>

#include <Korvane_ZEB/ZEB_Types.h>

namespace zeb::engine
{

/// Takes an engine's note and reports it, for the operation `selector` of `receiver`, through the shared
/// error stream's `need_to_fix_algorithm`.
struct Fix_Report {
    id receiver;
    SEL selector;

    void operator()(ZEB_Char_Span note) const;
};

/// The same through `need_to_implement`, and through `need_to_overload`.
void report_need_to_implement(id receiver, SEL selector, ZEB_Char_Span note);
void report_need_to_overload(id receiver, SEL selector, ZEB_Char_Span note);

} // namespace zeb::engine
