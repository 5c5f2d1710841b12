#include <Korvane_ZEB_engine/replacement.hpp>

#include "arrays/cpp/element_types.hpp"
#include "arrays/engine/algorithms/fill.hpp"
#include "arrays/engine/algorithms/removal.hpp"
#include "arrays/engine/algorithms/replacement.hpp"

namespace zeb::detail
{

template <Element Type>
void fill(std::span<Type> values, Type value) noexcept
{
    engine::fill(values, value);
}

template <Element Type>
std::size_t replace(std::span<Type> values, Type value, Type replacement) noexcept
{
    return engine::replace_equal(values, value, replacement);
}

template <Element Type>
std::size_t remove(std::span<Type> values, Type value) noexcept
{
    return engine::remove_equal(values, value);
}

#define ZEB_INSTANTIATE(Type)                                                                                \
    template void fill(std::span<Type>, Type) noexcept;                                                      \
    template std::size_t replace(std::span<Type>, Type, Type) noexcept;                                      \
    template std::size_t remove(std::span<Type>, Type) noexcept;
ZEB_FOR_EACH_ELEMENT_TYPE

} // namespace zeb::detail
