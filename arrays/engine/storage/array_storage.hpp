/// The engine's view of a vector's or array's fields: references to them, built for each operation.
#pragma once

#include <Korvane_ZEB/ZEB_Types.h>

#include "arrays/engine/storage/block_growth.hpp"
#include "arrays/engine/storage/element_kinds.hpp"

#include <span>

namespace zeb::engine
{

/// The marker of links. From this value on arrays refuse to change their block.
inline constexpr std::uint32_t link_marker_of_links = 10000;

/// The capacity of a link: never exceeded, so a link never grows.
inline constexpr std::uint32_t capacity_of_links = UINT32_MAX;

/// The fields of a vector, and its element kind.
template <class Kind>
struct Vector_Storage {
    using Element = typename Kind::Element;

    Element *&data;
    std::uint32_t &count;
    std::uint32_t &link_marker;
    [[no_unique_address]] Kind kind;

    bool owns() const noexcept { return link_marker == 0; }
    std::span<Element> elements() const noexcept { return {data, count}; }

    static constexpr Block_Layout layout() noexcept { return {sizeof(Element), Kind::zero_filled}; }
};

/// The fields of a growable array.
template <class Kind>
struct Array_Storage : Vector_Storage<Kind> {
    std::uint32_t &capacity;
    std::uint32_t growth_seed;

    bool is_link() const noexcept { return this->link_marker >= link_marker_of_links; }

    /// The size in bytes of the block, or of what a link views.
    std::size_t block_size() const noexcept
    {
        return (is_link() ? this->count : capacity) * sizeof(typename Kind::Element);
    }
};

} // namespace zeb::engine
