/// The element that follows the last one of an array.
#pragma once

#include "arrays/engine/storage/array_storage.hpp"

namespace zeb::engine
{

/// Returns what the slot after the last element holds, if the array owns a block that has one: a value of
/// any kind for plain elements, an object that the array made and keeps for reuse; else 0 or nil.
template <class Kind>
typename Kind::Element element_past_end(Array_Storage<Kind> array) noexcept
{
    using Element = typename Kind::Element;
    if (array.is_link() || array.data == nullptr || array.capacity <= array.count)
        return Element{};
    if constexpr (Kind::is_plain)
        return array.data[array.count];
    else if constexpr (Kind::holds_objects)
        return array.count < array.kind.made() ? array.data[array.count] : Element{};
    else
        return Element{};
}

} // namespace zeb::engine
