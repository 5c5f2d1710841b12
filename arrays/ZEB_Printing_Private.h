/*
 * How elements are printed: numbers in decimal, without needless digits.
 */
#import <Korvane_ZEB/ZEB_Stream.h>

#include <span>

@class ZEB_Byte_Array, ZEB_String, ZEB_Wide_String;

namespace zeb
{

void print_element(ZEB_Stream *stream, uint8_t element);
void print_element(ZEB_Stream *stream, char element);
void print_element(ZEB_Stream *stream, int32_t element);
void print_element(ZEB_Stream *stream, uint32_t element);
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
    [stream write_bytes:"{" length:1];
    bool is_first = true;
    for (const Element &element : elements) {
        if (!is_first)
            [stream write_bytes:", " length:2];
        is_first = false;
        print_element(stream, element);
    }
    [stream write_bytes:"}" length:1];
}

} // namespace zeb
