#import "store.h"

#import "files.h"

#import <Korvane_ZEB/ZEB_Array_Spans.hpp>

#include <algorithm>
#include <errno.h>
#include <string.h>

namespace
{

/// Turns the framework's diagnostics off while the input may be anything.
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

constexpr uint32_t header_text_length = 32;
constexpr uint8_t compressed_header[] = {0x78, 0x9C};
constexpr int32_t is_no_whole_stream = -3;
constexpr int32_t memory_is_short = -4;

/// Whether the bytes, as far as there are any, are those of a header.
bool agrees_with_header(ZEB_Byte_Array *contents)
{
    ZEB_String *const header = [ZEB_String array_with_capacity:ZEB_BINARY_HEADER_SIZE];
    ZEB_write_binary_header(header);
    const uint32_t size = std::min([contents count], header_text_length);
    return size == 0 ||
           ([header count] >= size && memcmp([contents byte_data], [header char_data], size) == 0);
}

/// True for a file that never received its contents: an empty one, or one left by a power failure.
bool holds_only_zeros(ZEB_Byte_Array *stored)
{
    const auto bytes = zeb::elements(stored);
    return std::all_of(bytes.begin(), bytes.end(), [](uint8_t byte) { return byte == 0; });
}

/// Whether the bytes, as far as there are any, are the first of a compressed stream.
bool agrees_with_stream(ZEB_Byte_Array *stored)
{
    const size_t size = std::min<size_t>([stored count], sizeof compressed_header);
    return size == 0 || memcmp([stored byte_data], compressed_header, size) == 0;
}

bool begins_with_header(ZEB_Byte_Array *contents)
{
    return [contents count] >= ZEB_BINARY_HEADER_SIZE && agrees_with_header(contents);
}

/// Decodes the record at `at` and advances `at` past it. Returns false if the record is incomplete.
bool decode_record(ZEB_Byte_Array *contents, uint32_t &at, uint8_t needs_swap, ZEB_Double_Array *values)
{
    char *const rest = reinterpret_cast<char *>([contents byte_data]) + at;
    const uint32_t size = [values ZEB_decode_binary_contents:[ZEB_String link_to_chars:rest
                                                                                 count:[contents count] - at]
                                                  needs_swap:needs_swap];
    at += size;
    return size != 0;
}

/// Returns null, or the fault.
const char *decode_series(ZEB_Byte_Array *contents, Series *series)
{
    if (!begins_with_header(contents))
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

/// Whether the series can be decoded again: an array that could not grow lacks some of it.
bool is_encoding_of(Series *series, ZEB_String *contents)
{
    Series *const decoded = [[[Series alloc] init] autorelease];
    ZEB_Byte_Array *const bytes =
        [ZEB_Byte_Array link_to_bytes:reinterpret_cast<uint8_t *>([contents char_data])
                                count:[contents count]];
    return decode_series(bytes, decoded) == NULL && [decoded is_identical_to:series];
}

/// Returns null, or the fault. `is_cut_short` is set to whether the fault is a missing end.
const char *load_stored(ZEB_Byte_Array *stored, Series *series, bool &is_cut_short)
{
    if (begins_with_header(stored))
        return "it is not compressed";
    ZEB_Byte_Array *const contents = [ZEB_Byte_Array array_with_capacity:0];
    const int32_t status = ZC_decompress_bytes_to_bytes(stored, contents);
    if (status == memory_is_short)
        return "there is no memory for it";
    // A stream without an end may be the beginning of a store.
    is_cut_short = holds_only_zeros(stored) || (status == is_no_whole_stream && agrees_with_stream(stored) &&
                                                agrees_with_header(contents));
    if (is_cut_short)
        return "it is cut short";
    return status != 0 ? "it is no store" : decode_series(contents, series);
}

} // namespace

ZEB_String *encoded_series(Series *series)
{
    ZEB_String *const contents = [ZEB_String array_with_capacity:ZEB_BINARY_HEADER_SIZE];
    ZEB_write_binary_header(contents);
    [[series instants] ZEB_encode_binary_contents:contents];
    [[series values] ZEB_encode_binary_contents:contents];
    return is_encoding_of(series, contents) ? contents : nil;
}

Store_State decode_store(ZEB_Byte_Array *stored, Series *series, const char **fault)
{
    const Quiet_Diagnostics quiet;
    bool is_cut_short = false;
    *fault = load_stored(stored, series, is_cut_short);
    if (*fault == NULL)
        return STORE_WHOLE;
    return is_cut_short ? STORE_CUT_SHORT : STORE_UNKNOWN;
}

Store_State load_series(const char *path, Series *series, const char **fault)
{
    ZEB_Byte_Array *const stored = [ZEB_Byte_Array array_with_capacity:0];
    const File_Outcome outcome = read_file(path, stored, fault);
    if (outcome != FILE_READ)
        return outcome == FILE_MISSING ? STORE_MISSING : STORE_UNKNOWN;
    return decode_store(stored, series, fault);
}

bool begins_as_store(ZEB_Byte_Array *stored) { return [stored is_not_empty] && agrees_with_stream(stored); }

const char *write_store(const char *path, ZEB_String *contents)
{
    ZEB_File *const file = file_at(path);
    [file set_contents_compressed:1];
    const uint32_t answer = [file replace_contents:[contents char_data] length:[contents count]];
    const int error = file != nil ? [file last_error] : ENOMEM;
    // Also 1 if a power failure may bring the old store back.
    return answer == 1 && error == 0 ? NULL : strerror(error);
}
