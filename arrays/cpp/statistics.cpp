#include <Korvane_ZEB_engine/statistics.hpp>

#include "arrays/cpp/element_types.hpp"
#include "arrays/engine/algorithms/histogram.hpp"
#include "arrays/engine/algorithms/quantiles.hpp"
#include "arrays/engine/algorithms/statistics.hpp"

namespace zeb::detail
{

template <Element Type>
Statistics<Type> statistics(std::span<const Type> values) noexcept
{
    const engine::Statistics<Type> all = engine::statistics(values);
    return {all.sum,          all.mean,      all.variance,  all.sample_variance,
            all.number_count, all.nan_count, all.sum_is_cut};
}

template <Element Type>
bool quantiles(std::span<const Type> values, std::span<const double> fractions,
               std::span<double> results) noexcept
{
    return fractions.size() == results.size() && engine::quantiles(values, fractions, results.data());
}

template <Element Type>
bool histogram(std::span<const Type> values, double low, double high, std::span<std::uint32_t> bins,
               Histogram_Rest *rest) noexcept
{
    if (bins.empty() || bins.size() > greatest_count)
        return false;
    const engine::Equal_Parts parts(low, high, static_cast<std::uint32_t>(bins.size()));
    Histogram_Rest others;
    return parts.are_usable() && engine::histogram(values, parts, bins, rest == nullptr ? others : *rest);
}

#define ZEB_INSTANTIATE(Type)                                                                                \
    template Statistics<Type> statistics(std::span<const Type>) noexcept;                                    \
    template bool quantiles(std::span<const Type>, std::span<const double>, std::span<double>) noexcept;     \
    template bool histogram(std::span<const Type>, double, double, std::span<std::uint32_t>,                 \
                            Histogram_Rest *) noexcept;
ZEB_FOR_EACH_ELEMENT_TYPE

} // namespace zeb::detail
