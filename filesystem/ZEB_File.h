/*
 * A file-system entry.
 */
#import <Korvane_ZEB/ZEB_File_Interceptor.h>

ZEB_ASSUME_NONNULL_BEGIN

/**
 * A path, and a snapshot of the status of the entry at that path.
 *
 * Paths are POSIX paths. A null that ends the counted path, as `backstore` leaves it, is not part of the
 * visible path; a path with any other null is refused with the operation's own failure message.
 *
 * If `log_actions` is set, successes are reported on the shared standard-output stream; if `report_errors` is
 * set, failures on the shared error stream. A report is one line of fixed text and the path; it does not
 * depend on `verbose` and is not counted. In all cases `last_error` stores the cause. Nothing throws.
 *
 * An entry is not archived, its status being of one machine and moment: archive its path.
 *
 * Different entries may be used on different threads while they report nothing (ZEB_Object.h): the streams
 * are shared. There is no locking, also not of files.
 */
ZEB_EXPORT
@interface ZEB_File : ZEB_Object <NSCopying> {
    ZEB_PROTECTED
    ZEB_UNRETAINED ZEB_String *ZEB_NULLABLE path;
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
    ZEB_UNRETAINED id<ZEB_File_Interceptor> ZEB_NULLABLE interceptor;
    int32_t last_error;
    uint32_t greatest_contents_size;
}

/** Returns the proprietary notice. */
+ (const char *)get_KVX_proprietary_software_notice;

/** Initialises an entry without a path, owned by this process's user and group, readable and writable by its
    owner, with `contents_compressed` and `log_actions` off and all other settings on. */
- (instancetype)init;

/** Returns a copy of the path, the snapshot, the settings, the interceptor and the last error. */
- (id)copyWithZone:(NSZone *ZEB_NULLABLE)zone;

/** Returns the path, which the entry owns. */
- (ZEB_String *)path;

/** Replaces the path and appends a null that is not counted. The snapshot does not change. If allocation
    fails the path becomes empty, which every operation refuses, and `last_error` is ENOMEM. */
- (void)set_path:(ZEB_String *ZEB_NULLABLE)string;

/** Reads the status of the entry at the path, following symbolic links, into the snapshot. If nothing exists
    there, `exists` and `size` become 0 and the rest does not change. The same happens if the status cannot be
    read (no permission, a failing device), but then `last_error` has the cause: check it before writing
    there. With `load_details` the effective access is computed as well; for a process that is not the owner,
    rights of the previous snapshot stay set. Returns 1, or the interceptor's result. */
- (uint32_t)refresh_status;

/** Reads the status of the entry itself, in the same way: a symbolic link has the kind of one, and is not
    followed. */
- (uint32_t)refresh_link_status;

@end

/** The snapshot taken by the last `refresh_status`, and the attributes of created entries. */
@interface ZEB_File (Status)

/** Whether an entry existed, its type, and its size in bytes. An interceptor that refreshes the status sets
    them; nothing changes on disk. */
- (uint8_t)exists;
- (void)set_exists:(uint8_t)value;
- (ZEB_File_Kind)kind;
- (void)set_kind:(ZEB_File_Kind)value;
- (uint64_t)size;
- (void)set_size:(uint64_t)value;

/** Returns 1 if something exists at the path now. The snapshot does not change. */
- (uint8_t)exists_now;

/** Whether the snapshot's effective access has every requested right. */
- (uint8_t)has_access:(uint8_t)execute write:(uint8_t)write read:(uint8_t)read;
- (uint8_t)has_access:(uint8_t)write read:(uint8_t)read;

/** Times since 1970-01-01 00:00. */
- (ZEB_Time_Value)access_time;
- (ZEB_Time_Value)modification_time;
- (ZEB_Time_Value)status_change_time;

/** The owner and the group. Setting them changes nothing on disk. */
- (uint32_t)uid;
- (void)set_uid:(uint32_t)value;
- (uint32_t)gid;
- (void)set_gid:(uint32_t)value;

/** The effective access of this process. */
- (uint8_t)can_read;
- (uint8_t)can_write;
- (uint8_t)can_execute;

/** The permission bits. Setting them changes nothing on disk. */
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

/** The result of the last operation. */
@interface ZEB_File (Errors)

/** The platform's error code, as in <errno.h>, of the last operation that failed, lost bytes, or left
    something undone; 0 after a success. In addition to the platform's own causes: EINVAL for a path with a
    null inside, for a file copied to itself, and for a replacement of what is not a regular file, ENOMEM for
    an array that could not grow, ENODATA for a file without contents or shorter than the snapshot's size,
    EILSEQ for contents that cannot be decompressed or are no document, EFBIG for contents above the greatest
    size, EFAULT for null contents that have a length, EIO for bytes that were not written, ECANCELED for a
    refusal by the interceptor. */
- (int32_t)last_error;

/** Sets the error, for an interceptor that acts in place of the entry. Each action starts with 0. */
- (void)set_last_error:(int32_t)error;

@end

/** Settings of operations and reports. */
@interface ZEB_File (Settings)

/** Three settings that are stored and copied for applications; no operation here uses them. */
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

/** The greatest size of contents that are read, as stored and as decompressed; 0, the first value, for any
    that an array can hold. Set it before you read foreign files. */
- (uint32_t)greatest_contents_size;
- (void)set_greatest_contents_size:(uint32_t)value;

/** Whether successes are reported on the standard-output stream. */
- (uint8_t)log_actions;
- (void)set_log_actions:(uint8_t)value;

/** Whether failures are reported on the error stream. */
- (uint8_t)report_errors;
- (void)set_report_errors:(uint8_t)value;

/** The object that decides on each action; not retained, nil at first. */
- (id<ZEB_File_Interceptor> ZEB_NULLABLE)interceptor;
- (void)set_interceptor:(id<ZEB_File_Interceptor> ZEB_NULLABLE)object;

@end

ZEB_ASSUME_NONNULL_END
