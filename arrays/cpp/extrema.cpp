#include <Korvane_ZEB_engine/extrema.hpp>

#include "arrays/cpp/element_types.hpp"
#include "arrays/engine/algorithms/extrema.hpp"

namespace zeb::detail
{

template <Element Type>
Extrema<Type> extrema(std::span<const Type> values) noexcept
{
    const engine::Extrema<Type> both = engine::minimum_and_maximum(values);
    return {both.minimum, both.maximum};
}

#define ZEB_INSTANTIATE(Type) template Extrema<Type> extrema(std::span<const Type>) noexcept;
ZEB_FOR_EACH_ELEMENT_TYPE

} // namespace zeb::detail
