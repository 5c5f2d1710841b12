/*
 * What the operations of file entries share.
 */
#import <Korvane_ZEB/ZEB_File.h>

#include "core/engine/c_text.hpp"
#include "filesystem/engine/path_text.hpp"

namespace zeb
{

/// The visible text of a path.
ZEB_Char_Span visible_path(ZEB_String *path);

/// A path as the platform takes it; null where it cannot be given to it.
class Platform_Path
{
public:
    /// `suffix` goes behind the visible text.
    explicit Platform_Path(ZEB_String *path, const char *suffix = "");

    /// Never null; the empty path, which the platform refuses, stands for one with a null inside.
    const char *c_string() const { return text.c_string(); }

private:
    C_Text text;
};

/// Whether the entry acts itself after the interceptor did.
enum class After_Acting { runs, stops };

/// Asks the interceptor, if there is one, about an action. `act` lets it act, `run` is the entry's own way;
/// both answer the action's result. Where the interceptor alone acted, `settle` gets its answer.
template <class Act, class Run, class Settle>
uint32_t intercepted(ZEB_File *file, ZEB_File_Action action, Act act, Run run, After_Acting after,
                     Settle settle)
{
    const id<ZEB_File_Interceptor> interceptor = [file interceptor];
    if (interceptor == nil)
        return run();
    const uint32_t decision = [interceptor decide_action:action file:file];
    if (decision == ZEB_INTERCEPT_REFUSE)
        return 0;
    if (decision != ZEB_INTERCEPT_ACT && decision != ZEB_INTERCEPT_ACT_AND_RUN)
        return run();
    const uint32_t answer = act(interceptor);
    if (decision == ZEB_INTERCEPT_ACT_AND_RUN && after == After_Acting::runs)
        return run();
    settle(answer);
    return answer;
}

template <class Act, class Run>
uint32_t intercepted(ZEB_File *file, ZEB_File_Action action, Act act, Run run,
                     After_Acting after = After_Acting::runs)
{
    return intercepted(file, action, act, run, after, [](uint32_t) {});
}

/// Tells a success, where the entry logs them: a line of `message` and the path.
void tell_success(ZEB_File *file, ZEB_Char_Span message);

/// Tells a failure, where the entry reports them: a line of `message` and the path.
void tell_failure(ZEB_File *file, ZEB_Char_Span message);

/// Tells, where the entry reports failures, that `actual` bytes went where `expected` were to.
void tell_discrepancy(ZEB_File *file, ZEB_Char_Span lead, uint64_t actual, ZEB_Char_Span against,
                      uint64_t expected, ZEB_Char_Span occasion);

} // namespace zeb
