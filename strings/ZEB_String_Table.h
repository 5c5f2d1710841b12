/*
 * String arrays made from tables of fixed text.
 */
#import <Korvane_ZEB/ZEB_String_Array.h>

ZEB_ASSUME_NONNULL_BEGIN

ZEB_EXTERN_C_BEGIN

/** Returns a new array of `n` strings, owned by the caller; string i has the text of span i. No span is read
    if `n` is 0. */
ZEB_EXPORT ZEB_String_Array *ZC_string_array_from_spans(const ZEB_Char_Span *ZEB_NULLABLE spans,
                                                        uint32_t n) NS_RETURNS_RETAINED;

ZEB_EXTERN_C_END

ZEB_ASSUME_NONNULL_END
