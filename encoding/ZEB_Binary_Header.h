/*
 * The header of the external binary format.
 */
#import <Korvane_ZEB/ZEB_String.h>

ZEB_ASSUME_NONNULL_BEGIN

ZEB_EXTERN_C_BEGIN

/** The size of the header in bytes; records follow it directly. */
enum { ZEB_BINARY_HEADER_SIZE = 64 };

/** Writes the header, in this machine's byte order, into the first 64 bytes of a buffer. A shorter buffer is
    first set to a length of 64 bytes; one that refuses, being a link, is unchanged. */
ZEB_EXPORT void ZEB_write_binary_header(ZEB_String *ZEB_NULLABLE buffer);

/** Sets `needs_swap` to 1 if the buffer begins with the header of a machine of the other byte order, else to
    0: for this machine's header, any other text, and fewer than 64 bytes. */
ZEB_EXPORT void ZEB_read_binary_header(ZEB_Char_Vector *ZEB_NULLABLE buffer, uint8_t *needs_swap);

ZEB_EXTERN_C_END

ZEB_ASSUME_NONNULL_END
