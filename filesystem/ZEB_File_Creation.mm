#import <Korvane_ZEB/ZEB_File_Creation.h>

#import <Korvane_ZEB/ZEB_String.h>

#import "filesystem/ZEB_File_Private.h"

#include "core/engine/namespace.hpp"
#include "filesystem/engine/directory_levels.hpp"
#include "filesystem/engine/file_messages.hpp"

#include <fcntl.h>
#include <string.h>

namespace messages = engine::messages;

namespace
{

constexpr uint32_t failed = 0, done = 1, existed = 2;

/// Creates the entry at the path by `create`, unless there is one. `relative` is the message for a relative
/// path, and `report` tells any other failure.
template <class Create, class Report>
uint32_t create_entry(ZEB_File *file, ZEB_Char_Span relative, ZEB_Char_Span created, Create create,
                      Report report)
{
    const engine::Platform_Path path(file->path);
    if (engine::exists_at(path.c_string()))
        return existed;
    if (!engine::is_absolute_path(engine::visible_path(file->path)))
        return engine::report_failure(file, relative, EINVAL);
    int attribute_error = 0;
    const int error = path.cause_of(create(path.c_string(), engine::attributes_of(file), attribute_error));
    if (error != 0) {
        report(error);
        return failed;
    }
    engine::report_success(file, created);
    [file set_last_error:attribute_error];
    return done;
}

/// Reports why a directory could not be created.
void report_directory(ZEB_File *file, int error)
{
    const ZEB_Char_Span lead = messages::error_creating_directory, path = engine::visible_path(file->path);
    const auto report = [&](ZEB_Char_Span reason, ZEB_Char_Span end) {
        engine::report_failure(file, {lead, path, messages::because, reason, end}, error);
    };
    const char *const text = strerror(error);
    if (error == ENOENT)
        report(messages::no_prefix, {});
    else if (error == ENOTDIR)
        report(messages::no_directory, {});
    else if (error == EEXIST)
        report(messages::exists_already, {});
    else
        report({text, static_cast<uint32_t>(strlen(text))}, messages::full_stop);
}

/// Reports what became of a level of `directory`; returns whether it exists now.
bool report_level(ZEB_File *file, ZEB_Char_Span directory, const engine::Directory_Level &level)
{
    const engine::Number_Text number(level.number);
    const ZEB_Char_Span prefix{directory.char_c_array, level.prefix_length};
    if (level.error == 0)
        engine::report_success(file,
                               {messages::created_level, number.text(), messages::partial_path, prefix});
    else
        engine::report_failure(
            file, {messages::error_creating_level, number.text(), messages::partial_path, prefix},
            level.error);
    return level.error == 0;
}

uint32_t create_levels(ZEB_File *file, ZEB_Char_Span directory)
{
    engine::Missing_Levels levels(directory);
    if (levels.is_complete())
        return existed;
    if (!engine::is_absolute_path(directory)) {
        engine::report_failure(file, {messages::error_relative_directory, directory}, EINVAL);
        return failed;
    }
    engine::Directory_Level level;
    int attribute_error = 0;
    while (levels.create_next(engine::attributes_of(file), level)) {
        if (!report_level(file, directory, level))
            return failed;
        attribute_error = attribute_error != 0 ? attribute_error : level.attribute_error;
    }
    [file set_last_error:attribute_error];
    return done;
}

uint32_t create_parents(ZEB_File *file)
{
    const ZEB_Char_Span path = engine::visible_path(file->path);
    if (engine::last_path_component(path).length == path.length)
        return engine::report_failure(file, messages::error_relative_directory, EINVAL);
    const ZEB_Char_Span directory = engine::parent_path(path);
    if (engine::Platform_Path(file->path).is_usable())
        return create_levels(file, directory);
    report_level(file, directory, {1, directory.length, EINVAL, 0});
    return failed;
}

/// Removes the link at a path, if there is one. Returns false after a report if the path stays occupied.
bool clear_way_for_link(ZEB_File *file, const engine::Platform_Path &link, ZEB_Char_Span text)
{
    engine::File_Status status;
    if (engine::read_status_in(AT_FDCWD, link.c_string(), engine::Links::are_entries, status) != 0)
        return true;
    if (status.kind != ZEB_FILE_KIND_LINK) {
        [file set_last_error:EEXIST];
        engine::report_success(file, {messages::error_link_over_file, text});
        return false;
    }
    const int error = engine::remove_entry(link.c_string());
    if (error == 0)
        engine::report_success(file, {messages::removed_link, text});
    else
        engine::report_failure(file, {messages::error_removing_link, text}, error);
    return error == 0;
}

void make_link(ZEB_File *file, const engine::Platform_Path &link, ZEB_Char_Span text, ZEB_String *target_path)
{
    const engine::Platform_Path target(target_path);
    const ZEB_Char_Span target_text = engine::visible_path(target_path);
    const int error = engine::create_symbolic_link(target.c_string(), link.c_string());
    if (error == 0)
        engine::report_success(file, {messages::made_link, text, messages::leads_to, target_text});
    else
        engine::report_failure(file, {messages::error_making_link, text, messages::leads_to, target_text},
                               target.cause_of(link.cause_of(error)));
}

} // namespace

@implementation ZEB_File (Creation)

- (uint32_t)create_file
{
    ZEB_File *const file = self;
    return engine::intercepted(
        file, ZEB_FILE_CREATE_FILE, @selector(intercept_create_file:),
        [=](id<ZEB_File_Interceptor> other) { return [other intercept_create_file:file]; },
        [=] {
            return create_entry(
                file, messages::error_relative_file, messages::created_file, engine::create_empty_file,
                [=](int error) { engine::report_failure(file, messages::error_creating_file, error); });
        });
}

- (uint32_t)create_directory
{
    ZEB_File *const file = self;
    return engine::intercepted(
        file, ZEB_FILE_CREATE_DIRECTORY, @selector(intercept_create_directory:),
        [=](id<ZEB_File_Interceptor> other) { return [other intercept_create_directory:file]; },
        [=] {
            return create_entry(file, messages::error_relative_directory, messages::created_directory,
                                engine::create_directory, [=](int error) { report_directory(file, error); });
        });
}

- (uint32_t)create_parent_directories
{
    ZEB_File *const file = self;
    return engine::intercepted(
        file, ZEB_FILE_CREATE_PARENT_DIRECTORIES, @selector(intercept_create_parent_directories:),
        [=](id<ZEB_File_Interceptor> other) { return [other intercept_create_parent_directories:file]; },
        [=] { return create_parents(file); });
}

- (uint32_t)make_symbolic_link:(ZEB_String *)link_path target_path:(ZEB_String *)target_path
{
    const engine::Platform_Path link(link_path);
    const ZEB_Char_Span text = engine::visible_path(link_path);
    last_error = 0;
    if (!clear_way_for_link(self, link, text))
        return failed;
    // The result is the same whether the link could be made or not.
    make_link(self, link, text, target_path);
    return done;
}

- (uint32_t)remove
{
    ZEB_File *const file = self;
    return engine::intercepted(
        file, ZEB_FILE_REMOVE, @selector(intercept_remove:),
        [=](id<ZEB_File_Interceptor> other) { return [other intercept_remove:file]; },
        [=] { return [file remove_itself]; });
}

- (uint32_t)remove_itself
{
    const engine::Platform_Path platform_path(path);
    const int error = platform_path.cause_of(engine::remove_entry(platform_path.c_string()));
    if (error != 0)
        return engine::report_failure(self, messages::error_removing_file, error);
    engine::report_success(self, messages::removed_file);
    return done;
}

@end
