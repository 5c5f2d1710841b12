/*
 * How a stream reaches what it writes into: the two primitives below bear every writer, so a subclass
 * that redirects these redirects all.
 */
#import <Korvane_ZEB/ZEB_Stream.h>

#include <stdarg.h>
#include <stdio.h>

@interface ZEB_Stream (Sink)

/** Where this stream's bytes and formatted values go: standard output. */
- (FILE *)output_file;

/** Where this stream's readers read: standard input. */
- (FILE *)input_file;

/** Writes exactly `length` bytes. */
- (void)put_bytes:(const char *)bytes length:(uint32_t)length;

/** Prints the arguments through a printf format. */
- (void)put_format:(const char *)format arguments:(va_list)arguments;

/** Scans through a scanf format; answers how many fields were stored. */
- (int)take_format:(const char *)format arguments:(va_list)arguments;

@end

namespace zeb::engine
{

/// Writes a span onto a stream.
inline void put(ZEB_Stream *stream, ZEB_Char_Span span)
{
    [stream put_bytes:span.char_c_array length:span.length];
}

} // namespace zeb::engine
