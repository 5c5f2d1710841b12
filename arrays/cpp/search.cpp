#include <Korvane_ZEB_engine/search.hpp>

#include "arrays/cpp/element_types.hpp"
#include "arrays/engine/algorithms/ordered_search.hpp"
#include "arrays/engine/algorithms/search.hpp"

namespace zeb::detail
{
namespace
{

Index as_index(std::uint32_t index) noexcept { return index == ZEB_NOT_FOUND ? Index() : Index(index); }

} // namespace

template <Element Type>
Index index_of(std::span<const Type> values, Type value) noexcept
{
    return as_index(engine::first_index_of(values, value));
}

template <Element Type>
Index last_index_of(std::span<const Type> values, Type value) noexcept
{
    return as_index(engine::last_index_of(values, value));
}

template <Element Type>
Index find_run(std::span<const Type> values, std::span<const Type> run, std::size_t from) noexcept
{
    if (from >= values.size())
        return std::nullopt;
    return as_index(engine::find_occurrence<Type>(values, run, static_cast<std::uint32_t>(from)));
}

template <Element Type>
Index ordered_find(std::span<const Type> values, Type value) noexcept
{
    return value == value ? as_index(engine::ordered_find(values, value).index) : Index();
}

template <Element Type>
Index ordered_find_nearest(std::span<const Type> values, Type value) noexcept
{
    return value == value ? as_index(engine::ordered_find_nearest(values, value).index) : Index();
}

template <Element Type>
std::size_t ordered_insert_position(std::span<const Type> values, Type value) noexcept
{
    return value == value ? engine::ordered_insert_position(values, value).index : values.size();
}

#define ZEB_INSTANTIATE(Type)                                                                                \
    template Index index_of(std::span<const Type>, Type) noexcept;                                           \
    template Index last_index_of(std::span<const Type>, Type) noexcept;                                      \
    template Index find_run(std::span<const Type>, std::span<const Type>, std::size_t) noexcept;             \
    template Index ordered_find(std::span<const Type>, Type) noexcept;                                       \
    template Index ordered_find_nearest(std::span<const Type>, Type) noexcept;                               \
    template std::size_t ordered_insert_position(std::span<const Type>, Type) noexcept;
ZEB_FOR_EACH_ELEMENT_TYPE

} // namespace zeb::detail
