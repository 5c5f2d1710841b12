#import "files.h"

#include <errno.h>
#include <stdio.h>
#include <string.h>

namespace
{

uint32_t length_of(const char *text) { return static_cast<uint32_t>(strlen(text)); }

} // namespace

ZEB_File *file_at(const char *path)
{
    ZEB_File *const file = [[[ZEB_File alloc] init] autorelease];
    [file set_report_errors:0];
    [file set_path:[ZEB_String link_to_chars:const_cast<char *>(path) count:length_of(path)]];
    return [file last_error] == 0 ? file : nil;
}

File_Outcome read_file(const char *path, ZEB_Byte_Array *contents, const char **fault)
{
    ZEB_File *const file = file_at(path);
    [file refresh_status];
    if (file != nil && [file last_error] == 0 && ![file exists]) {
        *fault = "it is not there";
        return FILE_MISSING;
    }
    if ([file exists] && [file kind] != ZEB_FILE_KIND_REGULAR) {
        *fault = "it is no regular file";
        return FILE_UNREADABLE;
    }
    // To the framework, reading an empty file is an error.
    if ([file size] != 0)
        [file read_contents:contents];
    const int error = file != nil ? [file last_error] : ENOMEM;
    *fault = error != 0 ? strerror(error) : NULL;
    return error == 0 ? FILE_READ : FILE_UNREADABLE;
}

const char *path_with_suffix(const char *path, const char *suffix)
{
    const uint32_t length = length_of(path), suffix_length = length_of(suffix);
    ZEB_String *const text = [ZEB_String array_with_capacity:length + suffix_length + 1];
    [text append_chars:path count:length];
    [text append_chars:suffix count:suffix_length + 1];
    return [text count] == length + suffix_length + 1 ? [text char_data] : NULL;
}

bool complain(const char *path, const char *fault)
{
    fprintf(stderr, "%s: %s: %s\n", program_name, path, fault);
    return false;
}
