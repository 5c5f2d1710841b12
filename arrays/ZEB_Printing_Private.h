/*
 * Printing elements: numbers in decimal without trailing zeros, strings as text (32-bit ones as UTF-8), other
 * objects with `write_object:`.
 */
#import <Korvane_ZEB/ZEB_Stream.h>

#include "core/engine/lists.hpp"

#include <span>

@class ZEB_Byte_Array, ZEB_String, ZEB_Wide_String;

namespace zeb::engine
{

void print_element(ZEB_Stream *stream, uint8_t element);
void print_element(ZEB_Stream *stream, char element);
void print_element(ZEB_Stream *stream, int32_t element);
void print_element(ZEB_Stream *stream, uint32_t element);
void print_element(ZEB_Stream *stream, int64_t element);
void print_element(ZEB_Stream *stream, float element);
void print_element(ZEB_Stream *stream, double element);
void print_element(ZEB_Stream *stream, void *element);
void print_element(ZEB_Stream *stream, id element);
void print_element(ZEB_Stream *stream, ZEB_String *element);
void print_element(ZEB_Stream *stream, ZEB_Wide_String *element);
void print_element(ZEB_Stream *stream, ZEB_Byte_Array *element);

/// Prints a list of elements between braces.
template <class Element>
void print_elements(ZEB_Stream *stream, std::span<Element> elements)
{
    constexpr List_Delimiters braces{span_of("{"), span_of("}"), span_of(", ")};
    write_delimited_list(
        static_cast<uint32_t>(elements.size()), braces,
        [=](ZEB_Char_Span text) { [stream write_bytes:text.char_c_array length:text.length]; },
        [=](uint32_t index) { print_element(stream, elements[index]); });
}

} // namespace zeb::engine
