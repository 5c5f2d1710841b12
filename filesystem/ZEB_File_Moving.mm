#import <Korvane_ZEB/ZEB_File_Moving.h>

#import <Korvane_ZEB/ZEB_String.h>
#import <Korvane_ZEB/ZEB_String_Text.h>

#import "arrays/ZEB_Char_Storage_Private.h"
#import "filesystem/ZEB_File_Private.h"

#include "core/engine/namespace.hpp"
#include "filesystem/engine/file_messages.hpp"

#include <stdio.h>

namespace messages = engine::messages;

namespace
{

/// The suffix of a backup's path, and its size with the null.
constexpr char suffix[] = "~";
constexpr uint32_t suffix_size = sizeof suffix;

/// Renames an entry, replacing one at the other path. Returns 0 or the platform's error.
int renaming_error(const engine::Platform_Path &from, const engine::Platform_Path &to)
{
    const int error = rename(from.c_string(), to.c_string()) == 0 ? 0 : errno;
    return to.cause_of(from.cause_of(error));
}

/// Makes room in a path for a text of that length and a null. A path without room would not refer to the
/// renamed file.
bool has_room(ZEB_String *path, uint64_t length)
{
    if (length < UINT32_MAX)
        [path ensure_capacity_greater_than:static_cast<uint32_t>(length)];
    return engine::storage_of_array(path).capacity > length;
}

/// Sets the path to a destination that the interceptor has moved the entry to, and keeps its error.
void follow(ZEB_File *file, ZEB_String *destination)
{
    const int32_t error = [file last_error];
    [file set_path:destination];
    if ([file last_error] == 0)
        [file set_last_error:error];
}

} // namespace

@implementation ZEB_File (Moving)

/// Moves to a destination that is a string of its own.
- (uint32_t)move_and_follow:(ZEB_String *)destination
{
    const engine::Platform_Path from(path);
    const engine::Platform_Path to(destination);
    const int error = has_room(path, [destination count]) ? renaming_error(from, to) : ENOMEM;
    if (error != 0)
        return engine::report_failure(self,
                                      {messages::error_moving, engine::visible_path(path), messages::to,
                                       engine::visible_path(destination)},
                                      error);
    engine::report_success(
        self, {messages::moved, engine::visible_path(path), messages::to, engine::visible_path(destination)});
    [path set_contents_of_array:destination];
    [path append_null_terminator];
    return 1;
}

- (uint32_t)move_entry_to:(ZEB_String *)destination
{
    // The destination may view the path, whose block moves when it grows.
    ZEB_String *const own = [[ZEB_String alloc] init_as_copy_of_char_vector:destination];
    const uint32_t answer = [own count] == [destination count]
                                ? [self move_and_follow:own]
                                : engine::report_failure(self,
                                                         {messages::error_moving, engine::visible_path(path),
                                                          messages::to, engine::visible_path(destination)},
                                                         ENOMEM);
    [own release];
    return answer;
}

- (uint32_t)move_to:(ZEB_String *)destination
{
    ZEB_File *const file = self;
    return engine::intercepted(
        file, ZEB_FILE_MOVE, @selector(intercept_move_to:destination:),
        [=](id<ZEB_File_Interceptor> other) {
            return [other intercept_move_to:file destination:destination];
        },
        [=] { return [file move_entry_to:destination]; }, engine::After_Acting::runs,
        [=](uint32_t answer) {
            if (answer == 1)
                follow(file, destination);
        });
}

/// Appends "~" and a counted null to the visible path.
- (void)extend_path_by_suffix
{
    [path set_count:engine::visible_path(path).length];
    [path append_chars:suffix count:suffix_size];
}

- (uint32_t)set_aside
{
    const engine::Platform_Path from(path);
    const engine::Platform_Path to(path, suffix);
    const int error =
        has_room(path, uint64_t{[path count]} + suffix_size) ? renaming_error(from, to) : ENOMEM;
    if (error != 0)
        return engine::report_failure(self, messages::error_backstoring, error);
    engine::report_success(self, messages::backstored);
    [self extend_path_by_suffix];
    return 1;
}

- (uint32_t)backstore
{
    ZEB_File *const file = self;
    return engine::intercepted(
        file, ZEB_FILE_BACKSTORE, @selector(intercept_backstore:),
        [=](id<ZEB_File_Interceptor> other) { return [other intercept_backstore:file]; },
        [=] { return [file set_aside]; }, engine::After_Acting::runs,
        [=](uint32_t answer) {
            if (answer == 1)
                [file extend_path_by_suffix];
        });
}

- (uint32_t)restore
{
    const engine::Platform_Path from(path, suffix);
    const engine::Platform_Path to(path);
    const int error = renaming_error(from, to);
    if (error != 0)
        return engine::report_failure(self, messages::error_restoring, error);
    last_error = 0;
    engine::report_success(self, messages::restored);
    return 1;
}

@end
