/*
 * Shared parts of the operations of file entries.
 */
#import <Korvane_ZEB/ZEB_File.h>
#import <Korvane_ZEB/ZEB_Stream.h>

#include "core/engine/c_text.hpp"
#include "filesystem/engine/file_status.hpp"
#include "filesystem/engine/path_text.hpp"

#include <errno.h>
#include <initializer_list>

@interface ZEB_File (Private)

/** Takes over the status of an entry, or, for an error, that there is none. */
- (void)take_status:(const zeb::engine::File_Status &)status error:(int)error;

/** Removes the entry without asking the interceptor; a directory with all that is in it. */
- (uint32_t)remove_itself;

@end

namespace zeb::engine
{

/// Returns the visible text of a path.
ZEB_Char_Span visible_path(ZEB_String *path);

/// A null-terminated path for platform calls.
class Platform_Path
{
public:
    /// Appends `suffix` to the visible text.
    explicit Platform_Path(ZEB_String *path, const char *suffix = "");

    /// Returns the path, never null. It is empty, which the platform refuses, for a path with a null inside
    /// and if allocation failed.
    const char *c_string() const { return text.c_string(); }

    /// Whether the platform can take it.
    bool is_usable() const { return fault == 0; }

    /// Returns the cause of a platform error: the reason for an empty path, or the error itself.
    int cause_of(int error) const { return error != 0 && fault != 0 ? fault : error; }

private:
    C_Text text;
    int fault;
};

/// Returns the permissions and the owner that created entries receive.
Entry_Attributes attributes_of(ZEB_File *file);

/// Returns the effective access of the snapshot.
Access_Rights access_of(ZEB_File *file);

/// Gives an entry the seven settings of another.
void take_settings(ZEB_File *file, ZEB_File *other);

/// Whether the entry acts after the interceptor did.
enum class After_Acting { runs, stops };

/// Returns the interceptor's decision on an action, whose message is `operation`. The entry acts if there is
/// no interceptor, or if the interceptor does not implement the decision or the operation.
uint32_t decision_on(ZEB_File *file, ZEB_File_Action action, SEL operation);

/// Runs an action by the interceptor's decision, if there is an interceptor. `act` runs the interceptor's
/// operation, `run` the entry's own implementation; both return the action's result and start with
/// `last_error` 0. If only the interceptor acted, `settle` receives its result.
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

/// The texts of which a line of a report is made.
using Line = std::initializer_list<ZEB_Char_Span>;

/// Writes a line onto a stream.
void write_line(ZEB_Stream *stream, Line line);

/// Reports a success if the entry logs actions: a line of `message` and the path, or the line given.
void report_success(ZEB_File *file, ZEB_Char_Span message);
void report_success(ZEB_File *file, Line line);

/// Stores the error and, if the entry reports errors, reports a line of `message` and the path, or the line
/// given. Returns 0, the result of the operation.
uint32_t report_failure(ZEB_File *file, ZEB_Char_Span message, int error);
uint32_t report_failure(ZEB_File *file, Line line, int error);

/// A number as text. The error stream's unsigned-long writer writes to standard output.
class Number_Text
{
public:
    explicit Number_Text(uint64_t number);
    ZEB_Char_Span text() const { return {characters, length}; }

private:
    char characters[24];
    uint32_t length;
};

/// Stores the error and, if the entry reports errors, reports that `actual` bytes were transferred instead of
/// `expected`.
void report_discrepancy(ZEB_File *file, ZEB_Char_Span lead, uint64_t actual, ZEB_Char_Span against,
                        uint64_t expected, ZEB_Char_Span occasion, int error);

} // namespace zeb::engine
