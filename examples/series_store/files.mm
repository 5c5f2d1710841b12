#import "files.h"

#include <stdio.h>
#include <string.h>

ZEB_File *file_at(const char *path)
{
    ZEB_File *const file = [[[ZEB_File alloc] init] autorelease];
    ZEB_String *const text = [[ZEB_String alloc] init];
    [text set_chars:path count:static_cast<uint32_t>(strlen(path))];
    [file set_path:text];
    [text release];
    [file set_report_errors:0];
    return file;
}

ZEB_Byte_Array *contents_of(ZEB_File *file, const char **fault)
{
    ZEB_Byte_Array *const contents = [ZEB_Byte_Array array_with_capacity:0];
    *fault = NULL;
    [file refresh_status];
    if ([file last_error] == 0 && ![file exists])
        *fault = "it is not there";
    else if ([file last_error] == 0 && [file kind] != ZEB_FILE_KIND_REGULAR)
        *fault = "it is no regular file";
    else if ([file last_error] == 0 && [file size] != 0)
        [file read_contents:contents];
    if ([file last_error] != 0)
        *fault = strerror([file last_error]);
    return *fault == NULL ? contents : nil;
}

bool complain(const char *path, const char *fault)
{
    fprintf(stderr, "series_store: %s: %s\n", path, fault);
    return false;
}
