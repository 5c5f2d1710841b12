#import "arrays/ZEB_Printing_Private.h"

#import <Korvane_ZEB/ZEB_Byte_Array.h>
#import <Korvane_ZEB/ZEB_Number_Functions.h>
#import <Korvane_ZEB/ZEB_String.h>
#import <Korvane_ZEB/ZEB_String_Converter.h>
#import <Korvane_ZEB/ZEB_Wide_String.h>

#include "numbers/engine/unsigned_text.hpp"

#include <inttypes.h>
#include <stdio.h>

namespace zeb::engine
{
namespace
{

/// Prints a number with one of the number writers.
template <class Writer, class Number>
void print_number(ZEB_Stream *stream, Writer write, Number number)
{
    char text[ZEB_NUMBER_TEXT_SIZE];
    char *const end = write(text, number);
    [stream write_bytes:text length:static_cast<uint32_t>(end - text)];
}

} // namespace

void print_element(ZEB_Stream *stream, uint8_t element)
{
    print_number(stream, ZC_pretty_format_unsigned, element);
}

void print_element(ZEB_Stream *stream, char element)
{
    // Signed on every machine, also where plain char is unsigned.
    print_element(stream, int32_t{static_cast<signed char>(element)});
}

void print_element(ZEB_Stream *stream, int32_t element)
{
    [stream write_int_with_format:element format:"%d"];
}

void print_element(ZEB_Stream *stream, uint32_t element)
{
    print_number(stream, ZC_pretty_format_unsigned, element);
}

void print_element(ZEB_Stream *stream, int64_t element)
{
    print_number(stream, put_signed_64, element);
}

void print_element(ZEB_Stream *stream, float element)
{
    print_number(stream, ZC_pretty_format_float, element);
}

void print_element(ZEB_Stream *stream, double element)
{
    print_number(stream, ZC_pretty_format_double, element);
}

void print_element(ZEB_Stream *stream, void *element)
{
    // Not with the unsigned-long writer, which the error stream sends to standard output.
    char text[ZEB_NUMBER_TEXT_SIZE];
    const int length = snprintf(text, sizeof text, "%" PRIuPTR, reinterpret_cast<uintptr_t>(element));
    [stream write_bytes:text length:static_cast<uint32_t>(length)];
}

void print_element(ZEB_Stream *stream, id element) { [stream write_object:element]; }

void print_element(ZEB_Stream *stream, ZEB_String *element) { [stream write_string:element]; }

void print_element(ZEB_Stream *stream, ZEB_Wide_String *element)
{
    ZEB_String *const text = [[ZEB_String alloc] init];
    ZEB_String_Converter *const converter = [[ZEB_String_Converter alloc] init];
    [converter set_target:text];
    [converter set_from_wide_string:element];
    [stream write_string:text];
    [converter release];
    [text release];
}

void print_element(ZEB_Stream *stream, ZEB_Byte_Array *element) { [stream write_object:element]; }

} // namespace zeb::engine
