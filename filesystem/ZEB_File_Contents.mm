#import <Korvane_ZEB/ZEB_File_Contents.h>

#import <Korvane_ZEB/ZEB_Byte_Array.h>
#import <Korvane_ZEB/ZEB_Compression.h>

#import "arrays/ZEB_Byte_Storage_Private.h"
#import "filesystem/ZEB_File_Private.h"

#include "core/engine/namespace.hpp"
#include "encoding/engine/zlib_arrays.hpp"
#include "filesystem/engine/file_contents.hpp"
#include "filesystem/engine/file_messages.hpp"
#include "filesystem/engine/file_replacement.hpp"

#include <algorithm>
#include <string.h>

namespace messages = engine::messages;

namespace
{

/// Returns the most bytes that may be read.
uint64_t greatest_size(ZEB_File *file)
{
    return [file greatest_contents_size] != 0 ? [file greatest_contents_size] : UINT64_MAX;
}

/// Reports why contents cannot be decompressed.
void report_decompression(ZEB_File *file, int32_t status)
{
    if (status == engine::zlib_out_of_room)
        engine::report_failure(file, messages::error_too_large, EFBIG);
    else
        engine::report_failure(file, messages::error_decompressing,
                               status == engine::zlib_out_of_memory ? ENOMEM : EILSEQ);
}

/// Reads the file into `target`, whose length becomes `size`; missing bytes are zero. Reports and returns
/// false if nothing can be read.
bool read_into(ZEB_File *file, ZEB_Byte_Array *target, uint64_t size)
{
    const engine::Platform_Path path([file path]);
    engine::Open_File input = engine::Open_File::for_reading(path.c_string());
    if (input.opening_error() != 0)
        return engine::report_failure(file, messages::error_opening, path.cause_of(input.opening_error()));
    if (size == 0)
        return engine::report_failure(file, messages::error_no_size, ENODATA);
    if (size > greatest_size(file))
        return engine::report_failure(file, messages::error_too_large, EFBIG);
    const uint32_t length = size < UINT32_MAX ? static_cast<uint32_t>(size) : UINT32_MAX;
    [target set_length:length];
    if ([target count] != length) {
        // The array has reported it.
        [file set_last_error:ENOMEM];
        return false;
    }
    size_t count = 0;
    const int error = input.read([target byte_data], length, count);
    if (error != 0)
        return engine::report_failure(file, messages::error_reading, error);
    memset([target byte_data] + count, 0, length - count);
    if (count != size)
        engine::report_discrepancy(file, messages::warning_length_read, count, messages::against_content_size,
                                   size, messages::while_reading, ENODATA);
    return true;
}

/// Replaces the destination with decompressed contents of at most `most` bytes. A truncated stream can go on
/// for long: it is tried without its output first, so that memory does not grow for nothing.
int32_t decompress(ZEB_Byte_Array *stored, ZEB_Byte_Array *destination, uint64_t most)
{
    const engine::Byte_Run source{reinterpret_cast<const char *>([stored byte_data]), [stored count]};
    const auto run = [=](auto work) {
        [destination clear];
        return engine::run_zlib(
            source, engine::storage_of_array(destination),
            engine::Fix_Report { destination, @selector(append_bytes:count:) },
            [=](const char *bytes, uint32_t length, engine::Zlib_Output output) {
                return work(bytes, length, output, most);
            });
    };
    const int32_t status = run(engine::decompress_once);
    if (status != engine::zlib_truncated)
        return status;
    const int32_t tried = engine::decompress(source.bytes, source.length, engine::discarded_output(), most);
    return tried == 0 ? run(engine::decompress) : tried;
}

/// Reads the compressed file and replaces `destination` with its decompressed contents. Returns false after
/// reporting a failure.
bool read_compressed(ZEB_File *file, ZEB_Byte_Array *destination, uint64_t size)
{
    ZEB_Byte_Array *const stored = [[ZEB_Byte_Array alloc] init];
    const bool was_read = read_into(file, stored, size);
    int32_t status = 0;
    if (was_read) {
        status = decompress(stored, destination, std::min<uint64_t>(greatest_size(file), UINT32_MAX));
        if (status != 0)
            report_decompression(file, status);
    }
    [stored release];
    return was_read && status == 0;
}

/// Makes the bytes the contents of the open file. Returns false after reporting a failure.
bool write_out(ZEB_File *file, engine::Open_File &output, const void *bytes, uint32_t length)
{
    size_t count = 0;
    const int error = output.write_all_and_close(bytes, length, count);
    if (error != 0)
        return engine::report_failure(file, messages::error_writing, error);
    if (count != length)
        engine::report_discrepancy(file, messages::warning_length_written, count,
                                   messages::against_specified_length, length, messages::while_writing, EIO);
    return true;
}

/// Compresses the bytes into an empty array. Returns false after reporting a failure; the array then holds
/// what was compressed so far.
bool compress(ZEB_File *file, const void *bytes, uint32_t length, ZEB_Byte_Array *stored)
{
    // The link only reads, but its initialiser takes a mutable pointer.
    ZEB_Byte_Array *const source =
        [[ZEB_Byte_Array alloc] init_as_link_to_bytes:static_cast<uint8_t *>(const_cast<void *>(bytes))
                                                count:length];
    const int32_t status = ZC_compress_bytes_to_bytes(source, stored);
    [source release];
    if (status != 0)
        engine::report_failure(file, messages::error_compressing,
                               status == engine::zlib_out_of_memory ? ENOMEM : EIO);
    return status == 0;
}

bool write_compressed(ZEB_File *file, engine::Open_File &output, const void *bytes, uint32_t length)
{
    ZEB_Byte_Array *const stored = [[ZEB_Byte_Array alloc] init];
    // If errors are not reported, the bytes compressed so far are written and only the error is stored.
    const bool is_written = (compress(file, bytes, length, stored) || ![file report_errors]) &&
                            write_out(file, output, [stored byte_data], [stored count]);
    [stored release];
    return is_written;
}

/// Replaces the file by one of these contents. Returns 0 after reporting a failure.
uint32_t replace(ZEB_File *file, const void *bytes, uint32_t length)
{
    const engine::Platform_Path path([file path]);
    const engine::Replacement_Result result = engine::replace_file(path.c_string(), bytes, length);
    if (result.error != 0 && result.step == engine::Replacing_Step::opening)
        return engine::report_failure(file, messages::error_opening, path.cause_of(result.error));
    if (result.error != 0 && result.step == engine::Replacing_Step::writing)
        return engine::report_failure(file, messages::error_writing, result.error);
    [file set_last_error:result.error];
    return 1;
}

uint32_t replace_compressed(ZEB_File *file, const void *bytes, uint32_t length)
{
    ZEB_Byte_Array *const stored = [[ZEB_Byte_Array alloc] init];
    const uint32_t answer =
        compress(file, bytes, length, stored) ? replace(file, [stored byte_data], [stored count]) : 0;
    [stored release];
    return answer;
}

/// Asks the interceptor about writing, for both ways of it.
template <class Run>
uint32_t intercepted_writing(ZEB_File *file, const void *bytes, uint32_t length, Run run)
{
    return engine::intercepted(
        file, ZEB_FILE_WRITE_CONTENTS, @selector(intercept_write_contents:bytes:length:),
        [=](id<ZEB_File_Interceptor> other) {
            return [other intercept_write_contents:file bytes:bytes length:length];
        },
        [=] {
            // Found here, missing bytes cost no old contents.
            return bytes == nullptr && length != 0
                       ? engine::report_failure(file, messages::error_writing, EFAULT)
                       : run();
        });
}

} // namespace

@implementation ZEB_File (Contents)

- (uint32_t)take_contents_into:(ZEB_Byte_Array *)destination
{
    const bool is_read =
        contents_compressed ? read_compressed(self, destination, size) : read_into(self, destination, size);
    if (!is_read)
        [destination clear];
    return is_read ? 1 : 0;
}

- (void)read_contents:(ZEB_Byte_Array *)destination
{
    ZEB_File *const file = self;
    engine::intercepted(
        file, ZEB_FILE_READ_CONTENTS, @selector(intercept_read_contents:destination:),
        [=](id<ZEB_File_Interceptor> other) {
            return [other intercept_read_contents:file destination:destination];
        },
        [=] { return [file take_contents_into:destination]; }, engine::After_Acting::stops);
}

- (void)load_contents:(ZEB_Byte_Array *)destination
{
    [self read_contents:destination];
}

- (uint32_t)put_contents:(const void *)bytes length:(uint32_t)length
{
    const engine::Platform_Path platform_path(path);
    engine::Open_File output = engine::Open_File::for_writing(platform_path.c_string());
    if (output.opening_error() != 0)
        return engine::report_failure(self, messages::error_opening,
                                      platform_path.cause_of(output.opening_error()));
    const bool is_written = contents_compressed ? write_compressed(self, output, bytes, length)
                                                : write_out(self, output, bytes, length);
    return is_written ? 1 : 0;
}

- (uint32_t)write_contents:(const void *)bytes length:(uint32_t)length
{
    ZEB_File *const file = self;
    return intercepted_writing(file, bytes, length, [=] { return [file put_contents:bytes length:length]; });
}

- (uint32_t)replace_contents:(const void *)bytes length:(uint32_t)length
{
    ZEB_File *const file = self;
    return intercepted_writing(file, bytes, length, [=] {
        return [file contents_compressed] ? replace_compressed(file, bytes, length)
                                          : replace(file, bytes, length);
    });
}

@end
