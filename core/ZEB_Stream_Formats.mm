#import <Korvane_ZEB/ZEB_Stream.h>

@implementation ZEB_Stream (Formats)

- (const char *)char_format
{
    return char_format;
}

- (void)set_char_format:(const char *)format
{
    char_format = format;
}

- (const char *)int_format
{
    return int_format;
}

- (void)set_int_format:(const char *)format
{
    int_format = format;
}

- (const char *)unsigned_format
{
    return unsigned_format;
}

- (void)set_unsigned_format:(const char *)format
{
    unsigned_format = format;
}

- (const char *)float_format
{
    return float_format;
}

- (void)set_float_format:(const char *)format
{
    float_format = format;
}

- (const char *)double_format
{
    return double_format;
}

- (void)set_double_format:(const char *)format
{
    double_format = format;
}

- (const char *)character_code_format
{
    return character_code_format;
}

- (void)set_character_code_format:(const char *)format
{
    character_code_format = format;
}

- (const char *)unsigned_long_format
{
    return unsigned_long_format;
}

- (void)set_unsigned_long_format:(const char *)format
{
    unsigned_long_format = format;
}

- (const char *)hex_format
{
    return hex_format;
}

- (void)set_hex_format:(const char *)format
{
    hex_format = format;
}

- (const char *)date_format
{
    return date_format;
}

- (void)set_date_format:(const char *)format
{
    date_format = format;
}

- (ZEB_Char_Span)list_open_delimiter
{
    return list_open_delimiter;
}

- (void)set_list_open_delimiter:(ZEB_Char_Span)delimiter
{
    list_open_delimiter = delimiter;
}

- (ZEB_Char_Span)list_close_delimiter
{
    return list_close_delimiter;
}

- (void)set_list_close_delimiter:(ZEB_Char_Span)delimiter
{
    list_close_delimiter = delimiter;
}

- (ZEB_Char_Span)list_separator
{
    return list_separator;
}

- (void)set_list_separator:(ZEB_Char_Span)separator
{
    list_separator = separator;
}

@end
