#include <Korvane_ZEB_engine/sort.hpp>

#include "arrays/cpp/element_types.hpp"
#include "arrays/engine/algorithms/sort.hpp"
#include "arrays/engine/algorithms/total_order.hpp"

namespace zeb::detail
{
namespace
{

/// More elements than these the engine's sort leaves alone; without NaN its result is that of the total
/// order, but for the signs of zeros.
constexpr std::size_t greatest_sorted_count = INT32_MAX;

} // namespace

template <Element Type>
void sort(std::span<Type> values) noexcept
{
    if (values.size() <= greatest_sorted_count)
        engine::sort(values);
    else
        engine::sort_by_total_order(values);
}

template <Element Type>
bool sort(std::span<Type> values, std::span<std::uint32_t> companions) noexcept
{
    if (values.size() <= greatest_sorted_count)
        return engine::sort_with_permutation(values, companions);
    return sort_by_total_order(values, companions);
}

template <Element Type>
void sort_by_total_order(std::span<Type> values) noexcept
{
    engine::sort_by_total_order(values);
}

template <Element Type>
bool sort_by_total_order(std::span<Type> values, std::span<std::uint32_t> companions) noexcept
{
    return companions.size() >= values.size() && engine::sort_by_total_order(values, companions);
}

#define ZEB_INSTANTIATE(Type)                                                                                \
    template void sort(std::span<Type>) noexcept;                                                            \
    template bool sort(std::span<Type>, std::span<std::uint32_t>) noexcept;                                  \
    template void sort_by_total_order(std::span<Type>) noexcept;                                             \
    template bool sort_by_total_order(std::span<Type>, std::span<std::uint32_t>) noexcept;
ZEB_FOR_EACH_ELEMENT_TYPE

} // namespace zeb::detail
