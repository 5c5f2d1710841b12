/*
 * The one diagnostic channel.
 */
#import <Korvane_ZEB/ZEB_Stream.h>

/**
 * Writes onto standard error, and emits the diagnostics of the framework, one line each. A diagnostic
 * never fails and never stops its caller.
 *
 * Two things stay on the standard streams of the base class: the unsigned-long writers, on standard
 * output, and all readers, on standard input.
 */
ZEB_EXPORT
@interface ZEB_Error_Stream : ZEB_Stream {
    ZEB_PROTECTED
    uint32_t warning_count;
    uint32_t verbose; /* 1 at first */
}

/** The one standard-error stream of the process, made on the first call and never released. */
+ (ZEB_Error_Stream *)shared_error_stream;

/** The same when its `verbose` is not 0, else nil: for callers that report only when printing is on. */
+ (ZEB_Error_Stream *)shared_error_stream_if_verbose;

/** The proprietary notice. */
+ (const char *)get_KVX_proprietary_software_notice;

/** How many diagnostics were asked for, printed or not. */
- (uint32_t)warning_count;
- (void)set_warning_count:(uint32_t)value;
- (void)reset_warning_count;
- (void)increment_warning_count;

/** Whether diagnostics are printed: 0 prints none. */
- (uint32_t)verbose;
- (void)set_verbose:(uint32_t)value;

/**
 * The three diagnostics. Each counts itself in `warning_count`, and then, unless `verbose` is 0, writes
 * one line: "Need to overload selector: ", "Need to implement selector: " or "Need to fix algorithm in
 * selector: ", the selector's name, " for object of class: ", the class's name, ".", and, for a note that
 * is not empty, a space and the note. Neither the object nor the note is kept; either name is left out
 * where there is none.
 */
- (void)need_to_overload:(SEL)selector object:(id)object note:(ZEB_Char_Span)note;
- (void)need_to_implement:(SEL)selector object:(id)object note:(ZEB_Char_Span)note;
- (void)need_to_fix_algorithm:(SEL)selector object:(id)object note:(ZEB_Char_Span)note;

/** Writes the name of a selector or of a class as it stands, or through a format with one `%s`. */
- (void)write_selector:(SEL)selector;
- (void)write_selector_with_format:(SEL)selector format:(const char *)format;
- (void)write_class:(Class)named;
- (void)write_class_with_format:(Class)named format:(const char *)format;

@end
