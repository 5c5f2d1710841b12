#import <Korvane_ZEB/ZEB_String_Table.h>

#import <Korvane_ZEB/ZEB_String.h>

ZEB_String_Array *ZC_string_array_from_spans(const ZEB_Char_Span *spans, uint32_t n)
{
    ZEB_String_Array *const strings = [[ZEB_String_Array alloc] init_with_length:n];
    for (uint32_t i = 0; i < [strings count]; ++i)
        [[strings string_at_index:i] set_chars:spans[i].char_c_array count:spans[i].length];
    return strings;
}
