#include <Korvane_ZEB_engine/reorder.hpp>

#include "arrays/cpp/element_types.hpp"
#include "arrays/engine/algorithms/permutation.hpp"
#include "arrays/engine/algorithms/reorder.hpp"
#include "arrays/engine/overlap.hpp"

namespace zeb::detail
{

template <Element Type>
void reverse(std::span<Type> values) noexcept
{
    engine::reverse_elements(values);
}

template <Element Type>
bool move_element(std::span<Type> values, std::size_t from, std::size_t to) noexcept
{
    if (from >= values.size() || to >= values.size())
        return false;
    engine::move_element(values, static_cast<std::uint32_t>(from), static_cast<std::uint32_t>(to));
    return true;
}

template <Element Type>
bool permute(std::span<Type> values, std::span<const std::uint32_t> permutation, bool is_inverse) noexcept
{
    using enum engine::Permutation_Direction;
    if (permutation.size() > values.size() || !engine::are_valid_indexes(permutation, values.size()))
        return false;
    if (!engine::overlaps<std::uint32_t>(permutation, values.data(), values.size_bytes()))
        return engine::rearrange(values, permutation, is_inverse ? inverse : forward);
    const engine::Scratch<std::uint32_t> aside(permutation.size());
    if (aside.get() == nullptr)
        return false;
    std::copy(permutation.begin(), permutation.end(), aside.get());
    return engine::rearrange(values, {aside.get(), permutation.size()}, is_inverse ? inverse : forward);
}

template <Element Type>
bool transpose(std::span<Type> values, std::size_t rows, std::size_t columns) noexcept
{
    if (rows > values.size() || columns > values.size() || rows * columns != values.size())
        return false;
    return engine::transpose(values, static_cast<std::uint32_t>(rows), static_cast<std::uint32_t>(columns));
}

#define ZEB_INSTANTIATE(Type)                                                                                \
    template void reverse(std::span<Type>) noexcept;                                                         \
    template bool move_element(std::span<Type>, std::size_t, std::size_t) noexcept;                          \
    template bool permute(std::span<Type>, std::span<const std::uint32_t>, bool) noexcept;                   \
    template bool transpose(std::span<Type>, std::size_t, std::size_t) noexcept;
ZEB_FOR_EACH_ELEMENT_TYPE

} // namespace zeb::detail
