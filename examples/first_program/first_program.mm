// Stores three numbers in a file, loads them back and prints them: first_program PATH
#import <Korvane_ZEB/Korvane_ZEB.h>

#include <stdio.h>

// A file that is already there becomes "PATH~".
static bool set_aside(ZEB_String *path)
{
    ZEB_File *const file = [[[ZEB_File alloc] init] autorelease];
    [file set_path:path];
    if ([file last_error] != 0)
        return false;
    [file refresh_status];
    if (![file exists])
        return [file last_error] == 0;
    return [file kind] == ZEB_FILE_KIND_REGULAR && [file backstore] == 1;
}

static bool store(ZEB_File *file, ZEB_Double_Array *values)
{
    ZEB_String *const buffer = [ZEB_String array_with_capacity:0];
    ZEB_write_binary_header(buffer);
    [values ZEB_encode_binary_contents:buffer]; // 64 bytes, a count, the values
    return [file write_contents:[buffer char_data] length:[buffer count]] == 1 && [file last_error] == 0;
}

static bool load(ZEB_File *file, ZEB_Double_Array *values)
{
    ZEB_Byte_Array *const contents = [ZEB_Byte_Array array_with_capacity:0];
    [file refresh_status];
    [file read_contents:contents];
    if ([file last_error] != 0 || [contents count] < ZEB_BINARY_HEADER_SIZE)
        return false;
    ZEB_String *const buffer = [ZEB_String link_to_chars:(char *)[contents byte_data] count:[contents count]];
    uint8_t needs_swap = 0; // 1 for the file of a machine of the other byte order
    ZEB_read_binary_header(buffer, &needs_swap);
    [buffer relink_to_chars:[buffer char_data] + ZEB_BINARY_HEADER_SIZE
                      count:[buffer count] - ZEB_BINARY_HEADER_SIZE];
    return [values ZEB_decode_binary_contents:buffer needs_swap:needs_swap] == [buffer count];
}

static bool print(ZEB_Double_Array *values)
{
    [[ZEB_Stream shared_stream] write_object:values];
    return printf("\n") > 0 && fflush(stdout) == 0;
}

static bool run(ZEB_String *path)
{
    ZEB_Double_Array *const values = [ZEB_Double_Array array_with_capacity:3];
    [values append_double:2.5];
    [values append_double:-1];
    [values append_double:1e6];
    ZEB_Double_Array *const loaded = [ZEB_Double_Array array_with_capacity:0];
    ZEB_File *const file = [[[ZEB_File alloc] init] autorelease];
    [file set_path:path];
    [file set_contents_compressed:1];
    return print(values) && set_aside(path) && store(file, values) && load(file, loaded) && print(loaded) &&
           [loaded count] == 3 && [loaded isEqual:values];
}

int main(int count, const char **arguments)
{
    NSAutoreleasePool *const pool = [[NSAutoreleasePool alloc] init];
    const char *const given = count == 2 ? arguments[1] : "";
    const bool is_done = run([ZEB_String string_with_c_string:given]);
    if (!is_done)
        fprintf(stderr, "first_program: \"%s\" is not stored\n", given);
    [pool drain];
    return is_done ? 0 : 1;
}
