#import <Korvane_ZEB/ZEB_File.h>

#import <Korvane_ZEB/ZEB_String.h>
#import <Korvane_ZEB/ZEB_String_Text.h>

#import "filesystem/ZEB_File_Private.h"
#import "filesystem/ZEB_File_Start_Up_Private.h"

#include "core/engine/namespace.hpp"
#include "core/engine/notice.hpp"
#include "filesystem/engine/file_status.hpp"

#include <fcntl.h>

namespace
{

constexpr uint32_t first_path_capacity = 1024;

void set_rights(engine::Access_Rights rights, uint8_t &read, uint8_t &write, uint8_t &execute)
{
    read = rights.read;
    write = rights.write;
    execute = rights.execute;
}

} // namespace

@implementation ZEB_File

+ (const char *)get_KVX_proprietary_software_notice
{
    return engine::proprietary_software_notice;
}

- (id)init
{
    self = [super init];
    if (self == nil)
        return nil;
    engine::start_up_filesystem();
    path = [[ZEB_String alloc] init_with_capacity:first_path_capacity];
    owner_read = owner_write = 1;
    uid = engine::process_user();
    gid = engine::process_group();
    first_general_setting = second_general_setting = third_general_setting = 1;
    load_details = report_errors = 1;
    return self;
}

- (void)dealloc
{
    [path release];
    [super dealloc];
}

- (id)copyWithZone:(NSZone *)zone
{
    ZEB_File *const made = [[[self class] allocWithZone:zone] init];
    if (made == nil)
        return nil;
    [made set_path:path];
    made->exists = exists;
    made->kind = kind;
    made->owner_read = owner_read;
    made->owner_write = owner_write;
    made->owner_execute = owner_execute;
    made->group_read = group_read;
    made->group_write = group_write;
    made->group_execute = group_execute;
    made->other_read = other_read;
    made->other_write = other_write;
    made->other_execute = other_execute;
    made->size = size;
    made->access_time = access_time;
    made->modification_time = modification_time;
    made->status_change_time = status_change_time;
    made->uid = uid;
    made->gid = gid;
    made->can_read = can_read;
    made->can_write = can_write;
    made->can_execute = can_execute;
    engine::take_settings(made, self);
    made->interceptor = interceptor;
    made->greatest_contents_size = greatest_contents_size;
    // A path that could not be copied is the copy's own error.
    if (made->last_error == 0)
        made->last_error = last_error;
    return made;
}

- (ZEB_String *)path
{
    return path;
}

- (void)set_path:(ZEB_String *)string
{
    [path set_contents_of_array:string];
    // An unchanged path would refer to another file than the caller asked for.
    const BOOL is_taken = [path count] == [string count];
    last_error = is_taken ? 0 : ENOMEM;
    if (!is_taken)
        [path clear];
    [path append_null_terminator];
}

- (void)take_details:(const engine::File_Status &)status
{
    set_rights(status.owner, owner_read, owner_write, owner_execute);
    set_rights(status.group, group_read, group_write, group_execute);
    set_rights(status.other, other_read, other_write, other_execute);
    access_time = status.access_time;
    modification_time = status.modification_time;
    status_change_time = status.status_change_time;
    uid = status.uid;
    gid = status.gid;
    const engine::Access_Rights before{can_read != 0, can_write != 0, can_execute != 0};
    const engine::Access_Rights rights = engine::effective_rights(status, uid == engine::process_user(),
                                                                  gid == engine::process_group(), before);
    set_rights(rights, can_read, can_write, can_execute);
}

- (void)take_status:(const engine::File_Status &)status error:(int)error
{
    exists = error == 0;
    size = error == 0 ? status.size : 0;
    last_error = error == ENOENT || error == ENOTDIR ? 0 : error;
    if (error != 0)
        return;
    kind = status.kind;
    if (load_details)
        [self take_details:status];
}

- (uint32_t)read_status:(engine::Links)links
{
    const engine::Platform_Path platform_path(path);
    engine::File_Status status{};
    const int error = engine::read_status_in(AT_FDCWD, platform_path.c_string(), links, status);
    [self take_status:status error:platform_path.cause_of(error)];
    return 1;
}

- (uint32_t)refresh_status_with:(engine::Links)links
{
    ZEB_File *const file = self;
    return engine::intercepted(
        file, ZEB_FILE_REFRESH_STATUS, @selector(intercept_refresh_status:),
        [=](id<ZEB_File_Interceptor> other) { return [other intercept_refresh_status:file]; },
        [=] { return [file read_status:links]; }, engine::After_Acting::stops);
}

- (uint32_t)refresh_status
{
    return [self refresh_status_with:engine::Links::are_followed];
}

- (uint32_t)refresh_link_status
{
    return [self refresh_status_with:engine::Links::are_entries];
}

@end
