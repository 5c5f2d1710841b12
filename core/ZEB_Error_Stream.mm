#import "core/ZEB_Error_Stream_Private.h"

#import <Korvane_ZEB/ZEB_Platform_Names.h>
#import <Korvane_ZEB/ZEB_String.h>

#import "core/ZEB_Stream_Private.h"

#include "core/engine/char_span.hpp"
#include "core/engine/namespace.hpp"
#include "core/engine/notice.hpp"
#include "core/engine/platform_call.hpp"

#import <objc/runtime.h>

#include <stdio.h>
#include <string.h>

namespace
{

constexpr ZEB_Char_Span overload_lead = engine::span_of("Need to overload selector: ");
constexpr ZEB_Char_Span implement_lead = engine::span_of("Need to implement selector: ");
constexpr ZEB_Char_Span fix_lead = engine::span_of("Need to fix algorithm in selector: ");
constexpr ZEB_Char_Span class_lead = engine::span_of(" for object of class: ");
constexpr ZEB_Char_Span line_break = engine::span_of("\n");
constexpr ZEB_Char_Span no_text = {"", 0};

ZEB_Char_Span name_span(const char *name) { return {name, static_cast<uint32_t>(strlen(name))}; }

/// Returns a name, empty for null. Reads the runtime's static texts, so a diagnostic creates no object even
/// when it reports a failed allocation.
ZEB_Char_Span name_of(SEL selector) { return selector != NULL ? name_span(sel_getName(selector)) : no_text; }

ZEB_Char_Span class_name_of(id object)
{
    return object != nil ? name_span(class_getName([object class])) : no_text;
}

NSAutoreleasePool *new_pool()
{
    return static_cast<NSAutoreleasePool *>(
        engine::result_or_null([]() -> void * { return [[NSAutoreleasePool alloc] init]; }));
}

/// Writes the pieces of a diagnostic to a stream, under an autorelease pool of its own. A diagnostic raised
/// meanwhile, by a subclass that handles the text, is written directly to standard error.
void write_line(ZEB_Stream *stream, engine::Message_Pieces pieces)
{
    static bool is_writing = false;
    if (is_writing) {
        for (const ZEB_Char_Span piece : pieces)
            fwrite(piece.char_c_array, 1, piece.length, stderr);
        return;
    }
    is_writing = true;
    NSAutoreleasePool *const pool = new_pool();
    for (const ZEB_Char_Span piece : pieces)
        engine::put(stream, piece);
    [pool drain];
    is_writing = false;
}

} // namespace

@implementation ZEB_Error_Stream

+ (ZEB_Error_Stream *)shared_error_stream
{
    static ZEB_Error_Stream *shared = nil;
    if (shared == nil)
        shared = [[ZEB_Error_Stream alloc] init];
    return shared;
}

+ (ZEB_Error_Stream *)shared_error_stream_if_verbose
{
    ZEB_Error_Stream *const stream = [self shared_error_stream];
    return [stream verbose] != 0 ? stream : nil;
}

+ (const char *)get_KVX_proprietary_software_notice
{
    return engine::proprietary_software_notice;
}

- (id)init
{
    self = [super init];
    if (self != nil)
        verbose = 1;
    return self;
}

- (void)put_bytes:(const char *)bytes length:(uint32_t)length
{
    if (length != 0)
        fwrite(bytes, 1, length, stderr);
}

- (uint32_t)warning_count
{
    return warning_count;
}

- (void)set_warning_count:(uint32_t)value
{
    warning_count = value;
}

- (void)reset_warning_count
{
    warning_count = 0;
}

- (void)increment_warning_count
{
    ++warning_count;
}

- (uint32_t)verbose
{
    return verbose;
}

- (void)set_verbose:(uint32_t)value
{
    verbose = value;
}

- (void)diagnose:(ZEB_Char_Span)lead selector:(SEL)selector object:(id)object note:(ZEB_Char_Span)note
{
    ++warning_count;
    if (verbose == 0)
        return;
    const ZEB_Char_Span before_note = note.length != 0 ? engine::span_of(". ") : engine::span_of(".");
    const ZEB_Char_Span pieces[] = {lead, name_of(selector), class_lead, class_name_of(object), before_note,
                                    note, line_break};
    [self put_diagnostic:engine::Message_Pieces(pieces)];
}

- (void)put_diagnostic:(engine::Message_Pieces)pieces
{
    write_line(self, pieces);
}

- (void)need_to_overload:(SEL)selector object:(id)object note:(ZEB_Char_Span)note
{
    [self diagnose:overload_lead selector:selector object:object note:note];
}

- (void)need_to_implement:(SEL)selector object:(id)object note:(ZEB_Char_Span)note
{
    [self diagnose:implement_lead selector:selector object:object note:note];
}

- (void)need_to_fix_algorithm:(SEL)selector object:(id)object note:(ZEB_Char_Span)note
{
    [self diagnose:fix_lead selector:selector object:object note:note];
}

- (void)write_selector:(SEL)selector
{
    ZC_assign_selector_name(scratch_string, selector);
    [self write_string:scratch_string];
}

- (void)write_selector_with_format:(SEL)selector format:(const char *)format
{
    ZC_assign_selector_name(scratch_string, selector);
    [self write_string_with_format:scratch_string format:format];
}

- (void)write_class:(Class)named
{
    ZC_assign_class_name(scratch_string, named);
    [self write_string:scratch_string];
}

- (void)write_class_with_format:(Class)named format:(const char *)format
{
    ZC_assign_class_name(scratch_string, named);
    [self write_string_with_format:scratch_string format:format];
}

// Bypasses `char_format`: only the writer with a format argument prints through one.
- (void)write_char:(int)value
{
    const char character = static_cast<char>(value);
    [self put_bytes:&character length:1];
}

- (void)write_unsigned_long_with_format:(uint64_t)value format:(const char *)format
{
    // The unsigned-long writers stay on standard output.
    [[ZEB_Stream shared_stream] write_unsigned_long_with_format:value format:format];
}

@end
