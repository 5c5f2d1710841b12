/// The contents of a vector as a list of hexadecimal numbers.
#pragma once

#include "arrays/engine/storage/insertion.hpp"
#include "encoding/engine/hexadecimal.hpp"

namespace zeb::engine
{

/// Appends the list of a vector's elements to an 8-bit string. The vector may view the string's own block.
/// Reports and appends nothing if the string is a link or allocation fails.
template <class Element, class Report>
void append_hex_contents(Vector_Storage<Plain_Elements<Element>> vector,
                         Array_Storage<Plain_Elements<char>> buffer, Report report) noexcept
{
    if (buffer.is_link())
        return report(notes::room_through_link);
    const Unaliased_Values<Element> source({}, vector.elements(), buffer.data, buffer.capacity);
    if (!source.is_valid())
        return report(notes::reallocate_failed);
    const std::uint64_t room = vector.count == 0 ? 2 : vector.count * hex_room_per_value<Element>;
    if (!grow(buffer, buffer.count + room, report))
        return;
    const char *const end =
        put_hex_list(buffer.data + buffer.count, source.elements().data(), source.elements().size());
    buffer.count = static_cast<std::uint32_t>(end - buffer.data);
}

} // namespace zeb::engine
