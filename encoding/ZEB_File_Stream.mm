#import <Korvane_ZEB/ZEB_File_Stream.h>

#import <Korvane_ZEB/ZEB_String.h>
#import <Korvane_ZEB/ZEB_String_Text.h>

#import "core/ZEB_Stream_Private.h"
#import "filesystem/ZEB_File_Private.h"

#include "core/engine/namespace.hpp"
#include "core/engine/notice.hpp"
#include "encoding/engine/pipe_signal.hpp"

#include <optional>
#include <string.h>
#include <sys/stat.h>

namespace
{

constexpr uint32_t path_capacity = 1024;

ZEB_String *default_directory = nil;

/// Returns the path that a name stands for, owned by the caller.
ZEB_String *new_path(const char *name, uint32_t length)
{
    ZEB_String *const made = [[ZEB_String alloc] init_with_capacity:path_capacity];
    const uint32_t visible = engine::visible_path_length(name, length);
    if (visible != 0 && name[0] != '/' && [default_directory count] != 0) {
        [made append_array:default_directory];
        if ([made char_at_index:[made count] - 1] != '/')
            [made append_char:'/'];
    }
    [made append_c_string:name length:visible];
    return made;
}

/// Returns the size of the file at a path; nothing if its status cannot be read.
std::optional<uint64_t> size_of_file(ZEB_String *path)
{
    struct stat status;
    if (stat(engine::Platform_Path(path).c_string(), &status) != 0 || status.st_size < 0)
        return {};
    return static_cast<uint64_t>(status.st_size);
}

/// Reads `length` bytes into a string, which is filled up with zeros if fewer come and unchanged if it cannot
/// hold them. Returns whether all came.
bool read_all(FILE *file, ZEB_String *string, uint32_t length)
{
    [string set_length:length];
    if ([string count] != length)
        return false;
    const size_t count = fread([string char_data], 1, length, file);
    memset([string char_data] + count, 0, length - count);
    return count == length;
}

} // namespace

@interface ZEB_File_Stream (Opening)

- (uint8_t)open_with_mode:(const char *)mode;
- (BOOL)forget_file;
- (BOOL)put_all:(const char *)bytes length:(uint32_t)length;

@end

@implementation ZEB_File_Stream

+ (const char *)get_KVX_proprietary_software_notice
{
    return engine::proprietary_software_notice;
}

+ (ZEB_String *)default_directory
{
    return default_directory;
}

+ (void)set_default_directory:(ZEB_String *)directory
{
    ZEB_String *const stored = [directory copy];
    [default_directory release];
    default_directory = stored;
}

- (id)init
{
    self = [super init];
    if (self != nil)
        path = [[ZEB_String alloc] init_with_capacity:path_capacity];
    return self;
}

- (id)init_for_reading:(ZEB_String *)name
{
    self = [self init];
    [self open_for_reading:name];
    return self;
}

- (id)init_for_writing:(ZEB_String *)name
{
    self = [self init];
    [self open_for_writing:name];
    return self;
}

- (void)dealloc
{
    [self forget_file];
    [path release];
    [super dealloc];
}

- (uint8_t)open_for_reading:(ZEB_String *)name
{
    [self set_path:name];
    return [self reopen_for_reading];
}

- (uint8_t)reopen_for_reading
{
    return [self open_with_mode:"r"];
}

- (uint8_t)open_for_writing:(ZEB_String *)name
{
    [self set_path:name];
    return [self reopen_for_writing];
}

- (uint8_t)reopen_for_writing
{
    return [self open_with_mode:"w"];
}

- (uint8_t)flush
{
    const engine::Without_Pipe_Signal scope(may_signal);
    if (file == NULL || fflush(file) != 0)
        ++failure_count;
    return [self is_good];
}

- (uint8_t)close
{
    const BOOL is_closed = [self forget_file];
    const uint8_t was_good = [self is_good];
    failure_count = 0;
    return is_closed && was_good ? 1 : 0;
}

- (uint8_t)is_good
{
    return failure_count == 0 ? 1 : 0;
}

- (void)read_contents:(ZEB_String *)string
{
    const std::optional<uint64_t> size = size_of_file(path);
    if (file != NULL && size == 0U)
        return;
    if (file == NULL || !size || *size > UINT32_MAX || !read_all(file, string, static_cast<uint32_t>(*size)))
        ++failure_count;
}

- (ZEB_String *)path
{
    return path;
}

- (void)set_path:(ZEB_String *)name
{
    // The stream's own path already names its directory.
    if (name != path)
        [self set_path_from_chars:[name char_data] length:[name count]];
}

- (void)set_path_from_c_string:(const char *)name
{
    [self set_path_from_chars:name length:name != NULL ? static_cast<uint32_t>(strlen(name)) : 0];
}

- (void)set_path_from_chars:(const char *)name length:(uint32_t)length
{
    ZEB_String *const made = new_path(name, length);
    [path set_contents_of_array:made];
    [path append_null_terminator];
    [made release];
}

- (FILE *)file
{
    return file;
}

- (void)set_file:(FILE *)opened
{
    if (opened == file)
        return;
    [self forget_file];
    file = opened;
    may_signal = opened != NULL && engine::may_raise_pipe_signal(fileno(opened));
}

- (void)put_bytes:(const char *)bytes length:(uint32_t)length
{
    if (![self put_all:bytes length:length])
        ++failure_count;
}

- (void)put_format:(const char *)format arguments:(va_list)arguments
{
    char buffer[engine::printing_size];
    if (file == NULL || !engine::put_printed(self, buffer, format, arguments))
        ++failure_count;
}

- (int)take_format:(const char *)format arguments:(va_list)arguments
{
    if (file != NULL)
        return vfscanf(file, format, arguments);
    ++failure_count;
    return 0;
}

@end

@implementation ZEB_File_Stream (Opening)

- (uint8_t)open_with_mode:(const char *)mode
{
    // First, or its buffered output would land in the file that "w" has just emptied.
    [self set_file:NULL];
    [self set_file:fopen(engine::Platform_Path(path).c_string(), mode)];
    failure_count = file != NULL ? 0 : 1;
    return [self is_good];
}

/// Closes the file and returns whether that succeeded.
- (BOOL)forget_file
{
    const engine::Without_Pipe_Signal scope(may_signal);
    const BOOL is_closed = file == NULL || fclose(file) == 0;
    file = NULL;
    may_signal = 0;
    return is_closed;
}

- (BOOL)put_all:(const char *)bytes length:(uint32_t)length
{
    const engine::Without_Pipe_Signal scope(may_signal);
    return file != NULL && (length == 0 || fwrite(bytes, 1, length, file) == length);
}

@end
