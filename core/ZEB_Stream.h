/*
 * Text output, and a little input.
 */
#import <Korvane_ZEB/ZEB_Object.h>

#include <stdarg.h>

@class ZEB_Collection;
@class ZEB_String;

ZEB_ASSUME_NONNULL_BEGIN

/**
 * Writes values, objects and lists as text to standard output, and reads numbers and characters from standard
 * input. Subclasses redirect the same operations.
 *
 * Numbers go through printf formats that the stream holds, one for each type. Formats are not copied: the
 * caller keeps their text alive. A format is trusted like any printf argument and not checked; a null one
 * selects the type's first format, as listed below. Numbers are written and read as in the "C" locale,
 * whatever locale the application has set.
 *
 * Results of printf, scanf and fwrite are ignored here. There is no locking: the shared stream is for one
 * thread, different streams that write to different places may be used on different threads.
 */
ZEB_EXPORT
@interface ZEB_Stream : ZEB_Object {
    ZEB_PROTECTED
    const char *ZEB_NULLABLE char_format;           /* "%c" */
    const char *ZEB_NULLABLE int_format;            /* "%d" */
    const char *ZEB_NULLABLE unsigned_format;       /* "%u" */
    const char *ZEB_NULLABLE float_format;          /* "%g" */
    const char *ZEB_NULLABLE double_format;         /* "%g" */
    const char *ZEB_NULLABLE character_code_format; /* "'\%03X'" */
    const char *ZEB_NULLABLE unsigned_long_format;  /* "%lu" */
    const char *ZEB_NULLABLE hex_format;            /* "%08X" */
    const char *ZEB_NULLABLE date_format;           /* "%m/%d/%Y %H:%M:%S", for strftime */
    ZEB_Char_Span list_open_delimiter;              /* "{" */
    ZEB_Char_Span list_close_delimiter;             /* "}" */
    ZEB_Char_Span list_separator;                   /* ", " */
    uint32_t failure_count;
    ZEB_UNRETAINED ZEB_String *ZEB_NULLABLE scratch_string;
}

/** Returns the shared standard-output stream of the process, created on the first call and never released. */
+ (ZEB_Stream *)shared_stream;

/** Returns the proprietary notice. */
+ (const char *)get_KVX_proprietary_software_notice;

/** Initialises a stream with the first formats and delimiters. */
- (instancetype)init;

/** Sets `failure_count` to 0; subclasses that keep their output also discard it. */
- (void)reset;

/** Same as `reset`. */
- (void)reset_failure_count;

/** The number of incomplete writes; this class counts none. */
- (uint32_t)failure_count;
- (void)set_failure_count:(uint32_t)value;

/** Writes exactly `length` bytes. */
- (void)write_bytes:(const char *ZEB_NULLABLE)char_c_array length:(uint32_t)length;

/** Writes the string's characters; nothing for nil. */
- (void)write_string:(ZEB_String *ZEB_NULLABLE)string;

/** Sends `send_to_stream:` to the object. */
- (void)write_object:(id ZEB_NULLABLE)object;

/** Same as `write_object:`; the format is ignored. */
- (void)write_object_with_format:(id ZEB_NULLABLE)object format:(const char *ZEB_NULLABLE)format;

/** Same as `write_object:`. */
- (void)write_value:(id ZEB_NULLABLE)object;

/** Send `send_text_to_stream:` or `send_contents_to_stream:` to the object. */
- (void)write_object_text:(id ZEB_NULLABLE)object;
- (void)write_object_contents:(id ZEB_NULLABLE)object;

/** Writes a vector as a list: the open delimiter, its elements with the separator between them, the close
    delimiter. An empty list writes the two delimiters. */
- (void)ZEB_send_delimited_list:(ZEB_Collection *ZEB_NULLABLE)list;

/** Writes a vector's elements with nothing around or between them. */
- (void)ZEB_send_list:(ZEB_Collection *ZEB_NULLABLE)list;

/** Not implemented: each writes "Need to implement ZEB_receive_delimited_list:" or "Need to implement
    ZEB_receive_list:" and a line break to standard output, on every stream, and reads nothing. */
- (void)ZEB_receive_delimited_list:(ZEB_Collection *ZEB_NULLABLE)list;
- (void)ZEB_receive_list:(ZEB_Collection *ZEB_NULLABLE)list;

@end

/*
 * A stream that collects its text:
 *
 *     @interface Log_Stream : ZEB_Stream {
 *         NSMutableData *log;
 *     }
 *     @end
 *
 *     @implementation Log_Stream
 *     - (void)put_bytes:(const char *)bytes length:(uint32_t)length
 *     {
 *         [log appendBytes:bytes length:length];
 *     }
 *     @end
 */

/**
 * Where a stream's output goes and its input comes from, for subclasses to override.
 *
 * All output of a stream (values, strings, objects, lists, and the diagnostics of an error stream) ends in
 * `put_bytes:length:`, so a subclass that overrides this one operation redirects all of it; the unsigned-long
 * writers of an error stream alone write to the shared stream. All input comes from
 * `take_format:arguments:`, which is called in the "C" locale.
 */
@interface ZEB_Stream (Sink)

/** Writes exactly `length` bytes to standard output; standard error for an error stream. A subclass may
    receive a length of 0. */
- (void)put_bytes:(const char *ZEB_NULLABLE)bytes length:(uint32_t)length;

/** Prints the arguments through a printf format in the "C" locale, and puts the resulting bytes; nothing if
    there are none or the C library fails. Values in their first format do not pass through here. */
- (void)put_format:(const char *ZEB_NULLABLE)format arguments:(va_list)arguments;

/** Scans standard input through a scanf format and returns the number of fields stored. */
- (int)take_format:(const char *ZEB_NULLABLE)format arguments:(va_list)arguments;

@end

/** The formats of numbers and the delimiters of lists. */
@interface ZEB_Stream (Formats)

/** The format of each type: a pointer that the stream does not own. */
- (const char *ZEB_NULLABLE)char_format;
- (void)set_char_format:(const char *ZEB_NULLABLE)format;
- (const char *ZEB_NULLABLE)int_format;
- (void)set_int_format:(const char *ZEB_NULLABLE)format;
- (const char *ZEB_NULLABLE)unsigned_format;
- (void)set_unsigned_format:(const char *ZEB_NULLABLE)format;
- (const char *ZEB_NULLABLE)float_format;
- (void)set_float_format:(const char *ZEB_NULLABLE)format;
- (const char *ZEB_NULLABLE)double_format;
- (void)set_double_format:(const char *ZEB_NULLABLE)format;
- (const char *ZEB_NULLABLE)character_code_format;
- (void)set_character_code_format:(const char *ZEB_NULLABLE)format;
- (const char *ZEB_NULLABLE)unsigned_long_format;
- (void)set_unsigned_long_format:(const char *ZEB_NULLABLE)format;
- (const char *ZEB_NULLABLE)hex_format;
- (void)set_hex_format:(const char *ZEB_NULLABLE)format;
- (const char *ZEB_NULLABLE)date_format;
- (void)set_date_format:(const char *ZEB_NULLABLE)format;

/** The texts around and between the elements of a delimited list. The characters are not copied, and are
    written by their length; a length of 0 writes nothing. */
- (ZEB_Char_Span)list_open_delimiter;
- (void)set_list_open_delimiter:(ZEB_Char_Span)delimiter;
- (ZEB_Char_Span)list_close_delimiter;
- (void)set_list_close_delimiter:(ZEB_Char_Span)delimiter;
- (ZEB_Char_Span)list_separator;
- (void)set_list_separator:(ZEB_Char_Span)separator;

@end

/** Numbers, characters and formatted strings, written and read. */
@interface ZEB_Stream (Values)

/** Prints the string through a format with one `%s`; characters after a null are not printed. */
- (void)write_string_with_format:(ZEB_String *ZEB_NULLABLE)string format:(const char *ZEB_NULLABLE)format;

/** Write a value with the stream's format, or with the given one. */
- (void)write_double:(double)value;
- (void)write_double_with_format:(double)value format:(const char *ZEB_NULLABLE)format;
- (void)write_int:(int32_t)value;
- (void)write_int_with_format:(int32_t)value format:(const char *ZEB_NULLABLE)format;
- (void)write_unsigned:(uint32_t)value;
- (void)write_unsigned_with_format:(uint32_t)value format:(const char *ZEB_NULLABLE)format;
- (void)write_float:(float)value;
- (void)write_float_with_format:(float)value format:(const char *ZEB_NULLABLE)format;
- (void)write_char:(int)value;
- (void)write_char_with_format:(int)value format:(const char *ZEB_NULLABLE)format;
- (void)write_character_code:(uint32_t)value;
- (void)write_character_code_with_format:(uint32_t)value format:(const char *ZEB_NULLABLE)format;
- (void)write_hex:(uint32_t)value;
- (void)write_hex_with_format:(uint32_t)value format:(const char *ZEB_NULLABLE)format;
- (void)write_unsigned_long:(uint64_t)value;
- (void)write_unsigned_long_with_format:(uint64_t)value format:(const char *ZEB_NULLABLE)format;

/** Read a value with the stream's format, or with the given one; the result is 0 if none can be read. The
    format must store exactly one value; for a double its `l` may be left out. A character is read as a signed
    byte. */
- (double)read_double;
- (double)read_double_with_format:(const char *ZEB_NULLABLE)format;
- (int32_t)read_int;
- (int32_t)read_int_with_format:(const char *ZEB_NULLABLE)format;
- (uint32_t)read_unsigned;
- (uint32_t)read_unsigned_with_format:(const char *ZEB_NULLABLE)format;
- (float)read_float;
- (float)read_float_with_format:(const char *ZEB_NULLABLE)format;
- (int)read_char;
- (int)read_char_with_format:(const char *ZEB_NULLABLE)format;

@end

ZEB_ASSUME_NONNULL_END
