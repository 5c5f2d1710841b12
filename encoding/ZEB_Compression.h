/*
 * Compression of whole buffers in the zlib format: different buffers on different threads.
 */
#import <Korvane_ZEB/ZEB_Byte_Array.h>
#import <Korvane_ZEB/ZEB_String.h>

ZEB_ASSUME_NONNULL_BEGIN

ZEB_EXTERN_C_BEGIN

/**
 * Each function reads the source from `offset` (or from its start) and appends the compressed or decompressed
 * bytes to the destination. Returns 0 for success, a negative zlib status, or -1. What was appended before a
 * failure stays.
 *
 * A source that is empty or nil, or an offset at or past its end, returns 0 and appends nothing. The source
 * is not changed; if it is also the destination, it is copied first. A nil destination returns -1. A
 * destination that is a link reports "Cannot append array through link, no append made." and returns -1; one
 * that cannot grow reports that and returns -4.
 *
 * zlib's own failures are also printed to standard error, without being counted. If the input ends before the
 * stream does, it is passed to zlib again, up to 65,536 passes, 256 MiB of repeated input, or 64 MiB of
 * output beyond that of the first pass; then the result is -3.
 */
ZEB_EXPORT int32_t ZC_compress_string_to_string(ZEB_String *ZEB_NULLABLE source,
                                                ZEB_String *ZEB_NULLABLE destination);
ZEB_EXPORT int32_t ZC_compress_bytes_to_bytes(ZEB_Byte_Array *ZEB_NULLABLE source,
                                              ZEB_Byte_Array *ZEB_NULLABLE destination);
ZEB_EXPORT int32_t ZC_compress_string_to_bytes(ZEB_String *ZEB_NULLABLE source,
                                               ZEB_Byte_Array *ZEB_NULLABLE destination);
ZEB_EXPORT int32_t ZC_decompress_string_to_string(ZEB_String *ZEB_NULLABLE source,
                                                  ZEB_String *ZEB_NULLABLE destination, uint32_t offset);
ZEB_EXPORT int32_t ZC_decompress_bytes_to_bytes(ZEB_Byte_Array *ZEB_NULLABLE source,
                                                ZEB_Byte_Array *ZEB_NULLABLE destination);
ZEB_EXPORT int32_t ZC_decompress_bytes_to_string(ZEB_Byte_Array *ZEB_NULLABLE source,
                                                 ZEB_String *ZEB_NULLABLE destination, uint32_t offset);

/**
 * The same for foreign data: each appends at most `most` bytes. A stream that holds more, of whatever size,
 * ends with -5 (Z_BUF_ERROR) when they are appended; the destination has grown by its rule for that many, and
 * not beyond.
 */
ZEB_EXPORT int32_t ZC_decompress_string_to_string_within(ZEB_String *ZEB_NULLABLE source,
                                                         ZEB_String *ZEB_NULLABLE destination,
                                                         uint32_t offset, uint32_t most);
ZEB_EXPORT int32_t ZC_decompress_bytes_to_bytes_within(ZEB_Byte_Array *ZEB_NULLABLE source,
                                                       ZEB_Byte_Array *ZEB_NULLABLE destination,
                                                       uint32_t offset, uint32_t most);
ZEB_EXPORT int32_t ZC_decompress_bytes_to_string_within(ZEB_Byte_Array *ZEB_NULLABLE source,
                                                        ZEB_String *ZEB_NULLABLE destination, uint32_t offset,
                                                        uint32_t most);

/** Writes "zlib error: " to standard error, followed by a line for a status from -6 to -1; -5 and any other
    status add nothing, not even a line break. */
ZEB_EXPORT void print_zlib_error(int32_t status);

ZEB_EXTERN_C_END

ZEB_ASSUME_NONNULL_END
