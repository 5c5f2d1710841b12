/* Calls to the platform that fail as planned: linked to a test, or preloaded into a program, which is then
 * told by its environment. Counted are calls on files beneath one folder, and allocations after the first of
 * these calls, save those of the Objective-C runtime. Not on macOS; allocations not beneath a sanitizer. */
#ifndef ZEB_FAILING_CALLS_H
#define ZEB_FAILING_CALLS_H

#ifdef __cplusplus
extern "C" {
#endif

/* What becomes of the planned call, beside failing with an error above 0. */
enum {
    ZEB_CALL_ANSWERS_0 = 0,   /* and does nothing */
    ZEB_CALL_DOES_HALF = -1,  /* of a read, write or copy_file_range */
    ZEB_CALL_IS_THE_LAST = -2 /* the process is killed before it, or halfway through a write or copy */
};

/* Plans for the call of that number, from 1, counted from now on. `call` is "open", "read", "write", "close",
 * or another call on files that stands in failing_calls.c, "memory", "thread", or "file" for any of those on
 * files; with "+" behind it for all calls from that number on. */
void zeb_plan_failure(const char *folder, const char *call, unsigned number, int outcome);

/* How many such calls were made since then. */
unsigned zeb_calls_made(const char *call);

#ifdef __cplusplus
}

#include <string>

namespace support
{

/// Runs a piece of work with a failure planned in it, and returns how many such calls were made.
template <class Work>
unsigned run_failing(const std::string &folder, const char *call, unsigned number, int outcome, Work work)
{
    zeb_plan_failure(folder.c_str(), call, number, outcome);
    work();
    const unsigned calls = zeb_calls_made(call);
    zeb_plan_failure("", "file", 0, 0);
    return calls;
}

} // namespace support
#endif

#endif
