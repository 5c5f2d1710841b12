#import "store.h"

#include <string.h>

namespace
{

/// Silences the diagnostics of the framework while what is read may be anything.
class Quiet_Diagnostics
{
public:
    Quiet_Diagnostics() : verbose([[ZEB_Error_Stream shared_error_stream] verbose])
    {
        [[ZEB_Error_Stream shared_error_stream] set_verbose:0];
    }

    ~Quiet_Diagnostics() { [[ZEB_Error_Stream shared_error_stream] set_verbose:verbose]; }

private:
    uint32_t verbose;
};

constexpr size_t header_text_length = 32;

bool begins_with_header(const uint8_t *bytes, uint32_t length)
{
    ZEB_String *const header = [ZEB_String array_with_capacity:ZEB_BINARY_HEADER_SIZE];
    ZEB_write_binary_header(header);
    return length >= ZEB_BINARY_HEADER_SIZE && memcmp(bytes, [header char_data], header_text_length) == 0;
}

/// Decodes the record at `at` and moves `at` behind it; false where it is not all there.
bool decode_record(ZEB_Byte_Array *contents, uint32_t &at, uint8_t needs_swap, ZEB_Double_Array *values)
{
    char *const rest = reinterpret_cast<char *>([contents byte_data]) + at;
    const uint32_t size = [values ZEB_decode_binary_contents:[ZEB_String link_to_chars:rest
                                                                                 count:[contents count] - at]
                                                  needs_swap:needs_swap];
    at += size;
    return size != 0;
}

const char *decode_series(ZEB_Byte_Array *contents, Series *series)
{
    if (!begins_with_header([contents byte_data], [contents count]))
        return "it holds something else than a series";
    ZEB_String *const header = [ZEB_String link_to_chars:reinterpret_cast<char *>([contents byte_data])
                                                   count:ZEB_BINARY_HEADER_SIZE];
    uint8_t needs_swap = 0;
    ZEB_read_binary_header(header, &needs_swap);
    uint32_t at = ZEB_BINARY_HEADER_SIZE;
    const bool is_whole = decode_record(contents, at, needs_swap, [series instants]) &&
                          decode_record(contents, at, needs_swap, [series values]);
    if (!is_whole || at != [contents count] || [[series instants] count] != [[series values] count])
        return "its records are not those of a series";
    return NULL;
}

} // namespace

ZEB_File *file_at(const char *path)
{
    ZEB_File *const file = [[[ZEB_File alloc] init] autorelease];
    ZEB_String *const text = [[ZEB_String alloc] init];
    [text set_chars:path count:static_cast<uint32_t>(strlen(path))];
    [file set_path:text];
    [text release];
    return file;
}

ZEB_String *encoded_series(Series *series)
{
    ZEB_String *const contents = [ZEB_String array_with_capacity:ZEB_BINARY_HEADER_SIZE];
    ZEB_write_binary_header(contents);
    [[series instants] ZEB_encode_binary_contents:contents];
    [[series values] ZEB_encode_binary_contents:contents];
    return contents;
}

const char *load_series(const char *path, Series *series)
{
    const Quiet_Diagnostics quiet;
    ZEB_File *const file = file_at(path);
    [file set_report_errors:0];
    [file refresh_status];
    ZEB_Byte_Array *const stored = [ZEB_Byte_Array array_with_capacity:0];
    [file read_contents:stored];
    if (begins_with_header([stored byte_data], [stored count]))
        return "it is not compressed";
    ZEB_Byte_Array *const contents = [ZEB_Byte_Array array_with_capacity:0];
    if ([stored is_empty] || ZC_decompress_bytes_to_bytes(stored, contents) != 0)
        return "it is truncated, or no store at all";
    return decode_series(contents, series);
}

BOOL store_contents(const char *path, ZEB_String *contents)
{
    ZEB_File *const file = file_at(path);
    [file set_contents_compressed:1];
    return [file write_contents:[contents char_data] length:[contents count]] == 1;
}
