/*
 * Text output to a file, and input from one.
 */
#import <Korvane_ZEB/ZEB_Stream.h>

#include <stdio.h>

ZEB_ASSUME_NONNULL_BEGIN

/**
 * Writes to a C file and reads from it. `failure_count` is the stream's state: 0 means good. It counts files
 * that cannot be opened, writes of which the C library took less than all (also for a full device and a
 * closed pipe, which raises no signal here), formats that it refuses, and every use of a stream without a
 * file; a reader that finds no number in an open file counts nothing and returns 0. Nothing is printed.
 *
 * The C library buffers: a write that failed may be counted only by a later one, by `flush` or by `close`.
 *
 * Different objects may be used on different threads; ZEB_Object.h says what may not.
 */
ZEB_EXPORT
@interface ZEB_File_Stream : ZEB_Stream {
    ZEB_PROTECTED
    FILE *ZEB_NULLABLE file;
    ZEB_UNRETAINED ZEB_String *ZEB_NULLABLE path;
    uint8_t may_signal; /* whether writing can raise SIGPIPE */
}

/** Returns the proprietary notice. */
+ (const char *)get_KVX_proprietary_software_notice;

/** The directory, with or without a "/" at its end, in which paths that do not begin with "/" are opened;
    nil, the first value, for none. Setting it stores a copy. */
+ (ZEB_String *ZEB_NULLABLE)default_directory;
+ (void)set_default_directory:(ZEB_String *ZEB_NULLABLE)directory;

/** Initialises a stream without a file. */
- (instancetype)init;

/** Initialise a stream and open a file, with mode "r" or "w". */
- (instancetype)init_for_reading:(ZEB_String *ZEB_NULLABLE)name;
- (instancetype)init_for_writing:(ZEB_String *ZEB_NULLABLE)name;

/** Set the path and open the file there, for reading from its start or, emptied or created, for writing. A
    file that is open is closed first. `failure_count` becomes 0, or 1 if the file cannot be opened. Return 1
    if it can. A path that is empty or nil, or has a null before its end, cannot. */
- (uint8_t)open_for_reading:(ZEB_String *ZEB_NULLABLE)name;
- (uint8_t)open_for_writing:(ZEB_String *ZEB_NULLABLE)name;

/** The same with the path that is set. */
- (uint8_t)reopen_for_reading;
- (uint8_t)reopen_for_writing;

/** Writes what the C library has buffered and returns `is_good`. */
- (uint8_t)flush;

/** Closes the file, if there is one, and sets `failure_count` to 0. Returns 1 if nothing failed since the
    file was opened, closing included: what was written is then with the operating system. */
- (uint8_t)close;

/** Returns 1 if `failure_count` is 0, else 0. */
- (uint8_t)is_good;

/** Replaces a string's contents with as many bytes of the file as its path's status says, from the present
    position on. An empty file leaves the string unchanged. What cannot be read counts as a failure: the
    string is then unchanged or, if fewer bytes came, filled up with zeros. */
- (void)read_contents:(ZEB_String *ZEB_NULLABLE)string;

/** The path, which the stream owns, with a null after its last character. Setting it opens nothing; a path
    that does not begin with "/" is appended to the default directory. A null at the end of
    the counted path is left out. */
- (ZEB_String *)path;
- (void)set_path:(ZEB_String *ZEB_NULLABLE)name;
- (void)set_path_from_c_string:(const char *ZEB_NULLABLE)name;
- (void)set_path_from_chars:(const char *ZEB_NULLABLE)name length:(uint32_t)length;

/** The file, NULL if there is none. The stream closes it. Setting one closes the former. */
- (FILE *ZEB_NULLABLE)file;
- (void)set_file:(FILE *ZEB_NULLABLE)opened;

@end

ZEB_ASSUME_NONNULL_END
