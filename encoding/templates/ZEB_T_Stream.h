/*
 * Text output into TT_PHRASE.
 */
#import <Korvane_ZEB/ZEB_Stream.h>

TT_FORWARD_CLASSES

ZEB_ASSUME_NONNULL_BEGIN

/**
 * Appends its text to a target string. Each byte becomes one character, as the string's `append_c_string:`
 * stores it. What cannot be appended, because the target is a link (which also reports), because allocation
 * fails, or because there is no target, increments `failure_count`; so does a format that the C library
 * refuses.
 *
 * The readers are those of the base class: they read standard input.
 *
 * Different objects may be used on different threads; ZEB_Object.h says what may not.
 */
ZEB_EXPORT
@interface ZEB_T_Stream : ZEB_Stream {
    ZEB_PROTECTED
    ZEB_UNRETAINED TT_VALUE target;
    uint8_t owns_target;
    uint32_t read_position;
    char *ZEB_NULLABLE formatting_buffer;
}

/** Returns the proprietary notice. */
+ (const char *)get_KVX_proprietary_software_notice;

/** Initialises a stream with a new target of its own, with a capacity of 1024. */
- (instancetype)init;

/** Initialises a stream onto a string that it neither retains nor releases: the caller keeps it alive. */
- (instancetype)init_with_string:(TT_VALUE)string;

/** Makes another string the target, as `init_with_string:` does, and sets the read position to 0. A target
    that the stream owns is released; if it is given again, it stays the stream's. */
- (void)set_string:(TT_VALUE)string;

/** Returns the target. Setting it is `set_string:`. */
- (TT_VALUE)target;
- (void)set_target:(TT_VALUE)string;

/** Whether the stream releases its target: 1 for yes. Before 1 is set under automatic reference counting, the
    target is handed over as ZEB_Ownership.h shows. */
- (uint8_t)owns_target;
- (void)set_owns_target:(uint8_t)value;

/** A position for applications that read the target; no operation here moves it forward. */
- (uint32_t)read_position;
- (void)set_read_position:(uint32_t)value;

/** The buffer of 1024 bytes through which formats are printed: values in their first format, and texts too
    long for it, take other ways. Setting it frees the former one and takes over `buffer`, which must come
    from malloc and have as many bytes; null leaves the stream without one. */
- (char *ZEB_NULLABLE)formatting_buffer ZEB_INNER_POINTER;
- (void)set_formatting_buffer:(char *ZEB_NULLABLE)buffer;

/** Empties the target and sets the read position and `failure_count` to 0. */
- (void)reset;

@end

ZEB_ASSUME_NONNULL_END
