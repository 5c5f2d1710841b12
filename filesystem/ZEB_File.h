/*
 * A file-system entry.
 */
#import <Korvane_ZEB/ZEB_File_Interceptor.h>

/**
 * A path, and a snapshot of what was found there.
 *
 * Paths are POSIX paths. A null that ends the counted path, as `backstore` leaves it, is not part of its
 * visible text; a path with any other null is refused with the operation's own failure message.
 *
 * Successes are told on the shared standard-output stream when `log_actions` is set, failures on the
 * shared error stream when `report_errors` is: one line with a fixed text and the path, whatever
 * `verbose` says, and uncounted. Either way `last_error` keeps the cause. Nothing throws. Nothing is locked.
 */
ZEB_EXPORT
@interface ZEB_File : ZEB_Object <NSCopying> {
    ZEB_PROTECTED
    ZEB_String *path;
    uint8_t exists;
    ZEB_File_Kind kind;
    uint8_t owner_read;
    uint8_t owner_write;
    uint8_t owner_execute;
    uint8_t group_read;
    uint8_t group_write;
    uint8_t group_execute;
    uint8_t other_read;
    uint8_t other_write;
    uint8_t other_execute;
    uint64_t size;
    ZEB_Time_Value access_time;
    ZEB_Time_Value modification_time;
    ZEB_Time_Value status_change_time;
    uint32_t uid;
    uint32_t gid;
    uint8_t can_read;
    uint8_t can_write;
    uint8_t can_execute;
    uint8_t first_general_setting;
    uint8_t second_general_setting;
    uint8_t third_general_setting;
    uint8_t load_details;
    uint8_t contents_compressed;
    uint8_t log_actions;
    uint8_t report_errors;
    id<ZEB_File_Interceptor> interceptor;
    int32_t last_error;
}

/** The proprietary notice. */
+ (const char *)get_KVX_proprietary_software_notice;

/** Makes an entry without a path, owned by this process's user and group, readable and writable by its
    owner, with `contents_compressed` and `log_actions` off and every other setting on. */
- (id)init;

/** A copy of the path, the snapshot, the settings, the interceptor and the last error. */
- (id)copyWithZone:(NSZone *)zone;

/** The entry's path, which stays the entry's. */
- (ZEB_String *)path;

/** Replaces the path and ends it with a null that is not counted. The snapshot stays. Where there is no
    memory for it the path becomes empty, which every operation refuses, and `last_error` is ENOMEM. */
- (void)set_path:(ZEB_String *)string;

/** Asks the platform what the path leads to, symbolic links followed, and takes the answer into the
    fields. Where nothing is there, `exists` and `size` become 0 and the rest stays. The same happens where
    the platform cannot tell (no right to look, a failing device), but then `last_error` has the reason: look
    at it before writing there. With `load_details` the effective access is worked out too; it keeps what it
    was where this process is neither the owner nor in the group, and others have no right either. Answers 1,
    or what an interceptor answers. */
- (uint32_t)refresh_status;

@end

/** The snapshot that the last `refresh_status` took, and what created entries are given. */
@interface ZEB_File (Status)

/** 1 when something was there. */
- (uint8_t)exists;

- (ZEB_File_Kind)kind;

/** In bytes. */
- (uint64_t)size;

/** Times since 1970-01-01 00:00. */
- (ZEB_Time_Value)access_time;
- (ZEB_Time_Value)modification_time;
- (ZEB_Time_Value)status_change_time;

/** The owner and the group; setting them changes nothing on disk. */
- (uint32_t)uid;
- (void)set_uid:(uint32_t)value;
- (uint32_t)gid;
- (void)set_gid:(uint32_t)value;

/** The effective access of this process. */
- (uint8_t)can_read;
- (uint8_t)can_write;
- (uint8_t)can_execute;

/** The permission bits; setting them changes nothing on disk. */
- (uint8_t)owner_read;
- (void)set_owner_read:(uint8_t)value;
- (uint8_t)owner_write;
- (void)set_owner_write:(uint8_t)value;
- (uint8_t)owner_execute;
- (void)set_owner_execute:(uint8_t)value;
- (uint8_t)group_read;
- (void)set_group_read:(uint8_t)value;
- (uint8_t)group_write;
- (void)set_group_write:(uint8_t)value;
- (uint8_t)group_execute;
- (void)set_group_execute:(uint8_t)value;
- (uint8_t)other_read;
- (void)set_other_read:(uint8_t)value;
- (uint8_t)other_write;
- (void)set_other_write:(uint8_t)value;
- (uint8_t)other_execute;
- (void)set_other_execute:(uint8_t)value;

@end

/** How its last operation went. */
@interface ZEB_File (Errors)

/** Why the last operation on the platform failed, or lost bytes: the platform's code, as in <errno.h>; 0
    after a success. Beside the platform's own causes: EINVAL for a path with a null inside, ENOMEM where an
    array could not grow, ENODATA for a file without contents or shorter than the snapshot's size, EILSEQ for
    contents that cannot be decompressed, EIO for bytes that were not written, ECANCELED where the interceptor
    refused. */
- (int32_t)last_error;

/** For an interceptor that acts in the entry's place; each action begins with 0. */
- (void)set_last_error:(int32_t)error;

@end

/** What the entry does and tells. */
@interface ZEB_File (Settings)

/** Three settings that are kept and copied for applications; no operation here consults them. */
- (uint8_t)first_general_setting;
- (void)set_first_general_setting:(uint8_t)value;
- (uint8_t)second_general_setting;
- (void)set_second_general_setting:(uint8_t)value;
- (uint8_t)third_general_setting;
- (void)set_third_general_setting:(uint8_t)value;

/** Whether `refresh_status` also loads permissions, times, owner, group and effective access. */
- (uint8_t)load_details;
- (void)set_load_details:(uint8_t)value;

/** Whether the contents are stored compressed, as a zlib stream. */
- (uint8_t)contents_compressed;
- (void)set_contents_compressed:(uint8_t)value;

/** Whether successes are told on the standard-output stream. */
- (uint8_t)log_actions;
- (void)set_log_actions:(uint8_t)value;

/** Whether failures are told on the error stream. */
- (uint8_t)report_errors;
- (void)set_report_errors:(uint8_t)value;

/** Who is asked before each action; not retained, nil at first. */
- (id<ZEB_File_Interceptor>)interceptor;
- (void)set_interceptor:(id<ZEB_File_Interceptor>)object;

@end
