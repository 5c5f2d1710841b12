#import <Korvane_ZEB/ZEB_File.h>

#import "filesystem/ZEB_File_Private.h"

#include "core/engine/namespace.hpp"

engine::Entry_Attributes engine::attributes_of(ZEB_File *file)
{
    const Access_Rights owner{file->owner_read != 0, file->owner_write != 0, file->owner_execute != 0},
        group{file->group_read != 0, file->group_write != 0, file->group_execute != 0},
        other{file->other_read != 0, file->other_write != 0, file->other_execute != 0};
    return {permissions_of(owner, group, other), file->uid, file->gid};
}

engine::Access_Rights engine::access_of(ZEB_File *file)
{
    return {file->can_read != 0, file->can_write != 0, file->can_execute != 0};
}

@implementation ZEB_File (Status)

- (uint8_t)exists
{
    return exists;
}

- (void)set_exists:(uint8_t)value
{
    exists = value != 0;
}

- (ZEB_File_Kind)kind
{
    return kind;
}

- (void)set_kind:(ZEB_File_Kind)value
{
    kind = value;
}

- (uint64_t)size
{
    return size;
}

- (void)set_size:(uint64_t)value
{
    size = value;
}

- (uint8_t)exists_now
{
    return engine::exists_at(engine::Platform_Path(path).c_string()) ? 1 : 0;
}

- (uint8_t)has_access:(uint8_t)execute write:(uint8_t)write read:(uint8_t)read
{
    return engine::covers(engine::access_of(self), {read != 0, write != 0, execute != 0}) ? 1 : 0;
}

- (uint8_t)has_access:(uint8_t)write read:(uint8_t)read
{
    return engine::covers(engine::access_of(self), {read != 0, write != 0, false}) ? 1 : 0;
}

- (ZEB_Time_Value)access_time
{
    return access_time;
}

- (ZEB_Time_Value)modification_time
{
    return modification_time;
}

- (ZEB_Time_Value)status_change_time
{
    return status_change_time;
}

- (uint32_t)uid
{
    return uid;
}

- (void)set_uid:(uint32_t)value
{
    uid = value;
}

- (uint32_t)gid
{
    return gid;
}

- (void)set_gid:(uint32_t)value
{
    gid = value;
}

- (uint8_t)can_read
{
    return can_read;
}

- (uint8_t)can_write
{
    return can_write;
}

- (uint8_t)can_execute
{
    return can_execute;
}

- (uint8_t)owner_read
{
    return owner_read;
}

- (void)set_owner_read:(uint8_t)value
{
    owner_read = value != 0;
}

- (uint8_t)owner_write
{
    return owner_write;
}

- (void)set_owner_write:(uint8_t)value
{
    owner_write = value != 0;
}

- (uint8_t)owner_execute
{
    return owner_execute;
}

- (void)set_owner_execute:(uint8_t)value
{
    owner_execute = value != 0;
}

- (uint8_t)group_read
{
    return group_read;
}

- (void)set_group_read:(uint8_t)value
{
    group_read = value != 0;
}

- (uint8_t)group_write
{
    return group_write;
}

- (void)set_group_write:(uint8_t)value
{
    group_write = value != 0;
}

- (uint8_t)group_execute
{
    return group_execute;
}

- (void)set_group_execute:(uint8_t)value
{
    group_execute = value != 0;
}

- (uint8_t)other_read
{
    return other_read;
}

- (void)set_other_read:(uint8_t)value
{
    other_read = value != 0;
}

- (uint8_t)other_write
{
    return other_write;
}

- (void)set_other_write:(uint8_t)value
{
    other_write = value != 0;
}

- (uint8_t)other_execute
{
    return other_execute;
}

- (void)set_other_execute:(uint8_t)value
{
    other_execute = value != 0;
}

@end
