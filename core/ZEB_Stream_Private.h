/*
 * What the framework's own streams override beside the public sink.
 */
#import <Korvane_ZEB/ZEB_Stream.h>

#include <stdarg.h>
#include <stddef.h>

#include <span>

@interface ZEB_Stream (Raw_Values)

/** Writes the bytes of a value as they are in memory and returns YES, on streams that do not write values as
    text; returns NO on all others. */
- (BOOL)put_raw:(const void *)value size:(uint32_t)size;

/** Reads `size` bytes into a value and returns YES, on streams that do not read values as text; returns NO on
    all others. */
- (BOOL)take_raw:(void *)value size:(uint32_t)size;

@end

namespace zeb::engine
{

/// Writes a span to a stream.
inline void put(ZEB_Stream *stream, ZEB_Char_Span span)
{
    [stream put_bytes:span.char_c_array length:span.length];
}

/// The size of the buffers through which streams print.
inline constexpr size_t printing_size = 512;

/// Prints the arguments through a format, in `buffer` if it is large enough, and writes the resulting bytes
/// to a stream, if there are any. Returns false if they cannot be printed.
bool put_printed(ZEB_Stream *stream, std::span<char> buffer, const char *format, va_list arguments);

} // namespace zeb::engine
