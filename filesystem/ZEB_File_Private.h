/*
 * What the operations of file entries share.
 */
#import <Korvane_ZEB/ZEB_File.h>

#include "core/engine/c_text.hpp"
#include "filesystem/engine/path_text.hpp"

#include <errno.h>

namespace zeb::engine
{

/// The visible text of a path.
ZEB_Char_Span visible_path(ZEB_String *path);

/// A path as the platform takes it.
class Platform_Path
{
public:
    /// `suffix` goes behind the visible text.
    explicit Platform_Path(ZEB_String *path, const char *suffix = "");

    /// Never null; the empty path, which the platform refuses, stands for one with a null inside, and for
    /// one that there is no memory for.
    const char *c_string() const { return text.c_string(); }

    /// Why the platform refused this path: its own error, or what stands behind an empty path.
    int cause_of(int error) const { return error != 0 && fault != 0 ? fault : error; }

private:
    C_Text text;
    int fault;
};

/// Whether the entry acts itself after the interceptor did.
enum class After_Acting { runs, stops };

/// What the entry's interceptor decides on an action, for which it has `operation`. The entry acts where
/// there is no interceptor, and where it answers either question not at all.
uint32_t decision_on(ZEB_File *file, ZEB_File_Action action, SEL operation);

/// Asks the interceptor, if there is one, about an action. `act` lets it act by `operation`, `run` is the
/// entry's own way; both answer the action's result, and begin without an error. Where the interceptor alone
/// acted, `settle` gets its answer.
template <class Act, class Run, class Settle>
uint32_t intercepted(ZEB_File *file, ZEB_File_Action action, SEL operation, Act act, Run run,
                     After_Acting after, Settle settle)
{
    const uint32_t decision = decision_on(file, action, operation);
    [file set_last_error:decision == ZEB_INTERCEPT_REFUSE ? ECANCELED : 0];
    if (decision == ZEB_INTERCEPT_REFUSE)
        return 0;
    if (decision != ZEB_INTERCEPT_ACT && decision != ZEB_INTERCEPT_ACT_AND_RUN)
        return run();
    const uint32_t answer = act([file interceptor]);
    if (decision == ZEB_INTERCEPT_ACT_AND_RUN && after == After_Acting::runs) {
        [file set_last_error:0];
        return run();
    }
    settle(answer);
    return answer;
}

template <class Act, class Run>
uint32_t intercepted(ZEB_File *file, ZEB_File_Action action, SEL operation, Act act, Run run,
                     After_Acting after = After_Acting::runs)
{
    return intercepted(file, action, operation, act, run, after, [](uint32_t) {});
}

/// Tells a success, where the entry logs them: a line of `message` and the path.
void tell_success(ZEB_File *file, ZEB_Char_Span message);

/// Keeps the cause of a failure and tells it, where the entry reports them: a line of `message` and the path.
void tell_failure(ZEB_File *file, ZEB_Char_Span message, int error);

/// Keeps `error`, and tells, where the entry reports failures, that `actual` bytes went where `expected` were
/// to.
void tell_discrepancy(ZEB_File *file, ZEB_Char_Span lead, uint64_t actual, ZEB_Char_Span against,
                      uint64_t expected, ZEB_Char_Span occasion, int error);

} // namespace zeb::engine
