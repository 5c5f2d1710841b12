/*
 * The input and output primitives of streams. Every writer ends in `put_bytes:length:` or
 * `put_format:arguments:`, so a subclass that overrides both redirects all output.
 */
#import <Korvane_ZEB/ZEB_Stream.h>

#include <stdarg.h>
#include <stdio.h>

@interface ZEB_Stream (Sink)

/** The file that this stream's bytes and formatted values are written to: standard output. */
- (FILE *)output_file;

/** The file that this stream's readers read: standard input. */
- (FILE *)input_file;

/** Writes exactly `length` bytes. */
- (void)put_bytes:(const char *)bytes length:(uint32_t)length;

/** Prints the arguments through a printf format. */
- (void)put_format:(const char *)format arguments:(va_list)arguments;

/** Scans through a scanf format and returns the number of fields stored. */
- (int)take_format:(const char *)format arguments:(va_list)arguments;

@end

namespace zeb::engine
{

/// Writes a span to a stream.
inline void put(ZEB_Stream *stream, ZEB_Char_Span span)
{
    [stream put_bytes:span.char_c_array length:span.length];
}

} // namespace zeb::engine
