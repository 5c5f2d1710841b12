/*
 * The stream of all diagnostics.
 */
#import <Korvane_ZEB/ZEB_Stream.h>

ZEB_ASSUME_NONNULL_BEGIN

/**
 * Writes to standard error and prints the framework's diagnostics, one line each. A diagnostic never fails
 * and never stops its caller.
 *
 * The unsigned-long writers still write to standard output, and all readers read from standard input, as in
 * the base class.
 *
 * The shared stream is for one thread, and so are operations that it is to report.
 */
ZEB_EXPORT
@interface ZEB_Error_Stream : ZEB_Stream {
    ZEB_PROTECTED
    uint32_t warning_count;
    uint32_t verbose; /* 1 at first */
}

/** Returns the shared standard-error stream of the process, created on the first call and never released. */
+ (ZEB_Error_Stream *)shared_error_stream;

/** Returns the shared stream if its `verbose` is not 0, else nil. */
+ (ZEB_Error_Stream *ZEB_NULLABLE)shared_error_stream_if_verbose;

/** Returns the proprietary notice. */
+ (const char *)get_KVX_proprietary_software_notice;

/** The number of diagnostics reported, printed or not. */
- (uint32_t)warning_count;
- (void)set_warning_count:(uint32_t)value;
- (void)reset_warning_count;
- (void)increment_warning_count;

/** Whether diagnostics are printed; 0 prints none. */
- (uint32_t)verbose;
- (void)set_verbose:(uint32_t)value;

/**
 * Report a diagnostic: increment `warning_count` and, unless `verbose` is 0, print one line: "Need to
 * overload selector: ", "Need to implement selector: " or "Need to fix algorithm in selector: ", the
 * selector's name, " for object of class: ", the class's name, ".", and, if the note is not empty, a space
 * and the note. A null selector or a nil object leaves out its name. Neither the object nor the note is
 * retained.
 */
- (void)need_to_overload:(SEL ZEB_NULLABLE)selector object:(id ZEB_NULLABLE)object note:(ZEB_Char_Span)note;
- (void)need_to_implement:(SEL ZEB_NULLABLE)selector object:(id ZEB_NULLABLE)object note:(ZEB_Char_Span)note;
- (void)need_to_fix_algorithm:(SEL ZEB_NULLABLE)selector
                       object:(id ZEB_NULLABLE)object
                         note:(ZEB_Char_Span)note;

/** Write the name of a selector or class, as it is or through a printf format with one `%s`. */
- (void)write_selector:(SEL ZEB_NULLABLE)selector;
- (void)write_selector_with_format:(SEL ZEB_NULLABLE)selector format:(const char *ZEB_NULLABLE)format;
- (void)write_class:(Class ZEB_NULLABLE)named;
- (void)write_class_with_format:(Class ZEB_NULLABLE)named format:(const char *ZEB_NULLABLE)format;

@end

ZEB_ASSUME_NONNULL_END
