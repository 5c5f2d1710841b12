/// Writing lists as text.
#pragma once

#include "core/engine/char_span.hpp"

#include <cstdint>

namespace zeb::engine
{

/// The texts around and between the elements of a list.
struct List_Delimiters {
    Char_Span open;
    Char_Span close;
    Char_Span separator;
};

/// Writes a list: calls `put` with each delimiter and `put_element` with each index.
template <class Put, class Put_Element>
void write_delimited_list(std::uint32_t count, const List_Delimiters &delimiters, Put put,
                          Put_Element put_element)
{
    put(delimiters.open);
    for (std::uint32_t i = 0; i < count; ++i) {
        if (i != 0)
            put(delimiters.separator);
        put_element(i);
    }
    put(delimiters.close);
}

/// Writes the elements without delimiters.
template <class Put_Element>
void write_list(std::uint32_t count, Put_Element put_element)
{
    for (std::uint32_t i = 0; i < count; ++i)
        put_element(i);
}

} // namespace zeb::engine
