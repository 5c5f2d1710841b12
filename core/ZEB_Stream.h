/*
 * Text output, and a little input.
 */
#import <Korvane_ZEB/ZEB_Object.h>

@class ZEB_Collection;
@class ZEB_String;

/**
 * Writes values, objects and lists as text. This class writes to the process's standard output and reads
 * from standard input; subclasses send the same operations elsewhere.
 *
 * Numbers go through printf formats that the stream holds, one for each type. Formats are not copied: the
 * caller keeps their text alive. A format is the caller's code and is not checked; a null one stands for
 * the type's first format, as listed below. Numbers are written and read as in the "C" locale, whatever
 * locale the application has set.
 *
 * Results of printf, scanf and fwrite are ignored here. Nothing is locked.
 */
ZEB_EXPORT
@interface ZEB_Stream : ZEB_Object {
    ZEB_PROTECTED
    const char *char_format;            /* "%c" */
    const char *int_format;             /* "%d" */
    const char *unsigned_format;        /* "%u" */
    const char *float_format;           /* "%g" */
    const char *double_format;          /* "%g" */
    const char *character_code_format;  /* "'\%03X'" */
    const char *unsigned_long_format;   /* "%lu" */
    const char *hex_format;             /* "%08X" */
    const char *date_format;            /* "%m/%d/%Y %H:%M:%S", for strftime */
    ZEB_Char_Span list_open_delimiter;  /* "{" */
    ZEB_Char_Span list_close_delimiter; /* "}" */
    ZEB_Char_Span list_separator;       /* ", " */
    uint32_t failure_count;
    ZEB_String *scratch_string;
}

/** The one standard-output stream of the process, made on the first call and never released. */
+ (ZEB_Stream *)shared_stream;

/** The proprietary notice. */
+ (const char *)get_KVX_proprietary_software_notice;

/** A stream with the first formats and delimiters. */
- (id)init;

/** Sets `failure_count` to 0; subclasses that keep what was written forget that too. */
- (void)reset;

/** As `reset`. */
- (void)reset_failure_count;

/** How many writes fell short; this class counts none. */
- (uint32_t)failure_count;
- (void)set_failure_count:(uint32_t)value;

/** Writes exactly `length` bytes. */
- (void)write_bytes:(const char *)char_c_array length:(uint32_t)length;

/** Writes the string's characters; none for nil. */
- (void)write_string:(ZEB_String *)string;

/** Lets the object write itself, by `send_to_stream:`. */
- (void)write_object:(id)object;

/** As `write_object:`; the format is ignored. */
- (void)write_object_with_format:(id)object format:(const char *)format;

/** As `write_object:`. */
- (void)write_value:(id)object;

/** Lets the object write itself by `send_text_to_stream:`, or by `send_contents_to_stream:`. */
- (void)write_object_text:(id)object;
- (void)write_object_contents:(id)object;

/** Writes a vector as a list: the open delimiter, its elements with the separator between them, the close
    delimiter. An empty list writes the two delimiters. */
- (void)ZEB_send_delimited_list:(ZEB_Collection *)list;

/** Writes a vector's elements with nothing around or between them. */
- (void)ZEB_send_list:(ZEB_Collection *)list;

/** Not implemented: each writes "Need to implement ZEB_receive_delimited_list:" or "Need to implement
    ZEB_receive_list:" and a line break to standard output, on every stream, and reads nothing. */
- (void)ZEB_receive_delimited_list:(ZEB_Collection *)list;
- (void)ZEB_receive_list:(ZEB_Collection *)list;

@end

/** What a stream makes of numbers, and of lists. */
@interface ZEB_Stream (Formats)

/** The format of each type: a pointer that the stream does not own. */
- (const char *)char_format;
- (void)set_char_format:(const char *)format;
- (const char *)int_format;
- (void)set_int_format:(const char *)format;
- (const char *)unsigned_format;
- (void)set_unsigned_format:(const char *)format;
- (const char *)float_format;
- (void)set_float_format:(const char *)format;
- (const char *)double_format;
- (void)set_double_format:(const char *)format;
- (const char *)character_code_format;
- (void)set_character_code_format:(const char *)format;
- (const char *)unsigned_long_format;
- (void)set_unsigned_long_format:(const char *)format;
- (const char *)hex_format;
- (void)set_hex_format:(const char *)format;
- (const char *)date_format;
- (void)set_date_format:(const char *)format;

/** What stands around and between the elements of a delimited list. The characters are not copied, and
    are written by their length; a length of 0 writes nothing. */
- (ZEB_Char_Span)list_open_delimiter;
- (void)set_list_open_delimiter:(ZEB_Char_Span)delimiter;
- (ZEB_Char_Span)list_close_delimiter;
- (void)set_list_close_delimiter:(ZEB_Char_Span)delimiter;
- (ZEB_Char_Span)list_separator;
- (void)set_list_separator:(ZEB_Char_Span)separator;

@end

/** Numbers, characters and formatted strings, out and in. */
@interface ZEB_Stream (Values)

/** Prints the string through a format with one `%s`; characters past a null in it are not seen. */
- (void)write_string_with_format:(ZEB_String *)string format:(const char *)format;

/** Writes a value with the stream's format, or with the given one. */
- (void)write_double:(double)value;
- (void)write_double_with_format:(double)value format:(const char *)format;
- (void)write_int:(int32_t)value;
- (void)write_int_with_format:(int32_t)value format:(const char *)format;
- (void)write_unsigned:(uint32_t)value;
- (void)write_unsigned_with_format:(uint32_t)value format:(const char *)format;
- (void)write_float:(float)value;
- (void)write_float_with_format:(float)value format:(const char *)format;
- (void)write_char:(int)value;
- (void)write_char_with_format:(int)value format:(const char *)format;
- (void)write_character_code:(uint32_t)value;
- (void)write_character_code_with_format:(uint32_t)value format:(const char *)format;
- (void)write_hex:(uint32_t)value;
- (void)write_hex_with_format:(uint32_t)value format:(const char *)format;
- (void)write_unsigned_long:(uint64_t)value;
- (void)write_unsigned_long_with_format:(uint64_t)value format:(const char *)format;

/** Reads a value with the stream's format, or with the given one; 0 where none can be read. The format
    stores one value. One for a double may leave the `l` out. A character is a signed byte. */
- (double)read_double;
- (double)read_double_with_format:(const char *)format;
- (int32_t)read_int;
- (int32_t)read_int_with_format:(const char *)format;
- (uint32_t)read_unsigned;
- (uint32_t)read_unsigned_with_format:(const char *)format;
- (float)read_float;
- (float)read_float_with_format:(const char *)format;
- (int)read_char;
- (int)read_char_with_format:(const char *)format;

@end
