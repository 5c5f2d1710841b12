/*
 * Whole buffers in the zlib format.
 */
#import <Korvane_ZEB/ZEB_Byte_Array.h>
#import <Korvane_ZEB/ZEB_String.h>

ZEB_EXTERN_C_BEGIN

/**
 * Each function reads the source from `offset` (or from its start), appends what zlib makes of it to the
 * destination, whose contents stay, and answers a status: 0 for success, a negative zlib status, or -1.
 * A source that is empty or nil, or an offset at or past its end, answers 0 and appends nothing. What was
 * appended before a failure stays. The source is not changed; it may be the destination, and is then copied
 * first. A nil destination answers -1. A destination that is a link reports "Cannot append array through
 * link, no append made.", and -1 is the answer; one that cannot grow reports so, and -4 is the answer.
 *
 * zlib's own failures are also told on standard error, uncounted. A truncated stream answers what zlib
 * says when it is handed the input again; where that does not end, after 65,536 passes, 256 MiB of input
 * handed in again, or 64 MiB of output beyond what the first pass gave, -3.
 */
ZEB_EXPORT int32_t ZC_compress_string_to_string(ZEB_String *source, ZEB_String *destination);
ZEB_EXPORT int32_t ZC_compress_bytes_to_bytes(ZEB_Byte_Array *source, ZEB_Byte_Array *destination);
ZEB_EXPORT int32_t ZC_compress_string_to_bytes(ZEB_String *source, ZEB_Byte_Array *destination);
ZEB_EXPORT int32_t ZC_decompress_string_to_string(ZEB_String *source, ZEB_String *destination,
                                                  uint32_t offset);
ZEB_EXPORT int32_t ZC_decompress_bytes_to_bytes(ZEB_Byte_Array *source, ZEB_Byte_Array *destination);
ZEB_EXPORT int32_t ZC_decompress_bytes_to_string(ZEB_Byte_Array *source, ZEB_String *destination,
                                                 uint32_t offset);

/** Writes "zlib error: " to standard error, and after it a line for a status from -6 to -1; -5 and any
    other status add nothing, no line break either. */
ZEB_EXPORT void print_zlib_error(int32_t status);

ZEB_EXTERN_C_END
