/// Quantiles: what is found at fractions of the way through the sorted numbers.
#pragma once

#include "arrays/engine/kernels/element_lanes.hpp"
#include "arrays/engine/kernels/sort.hpp"
#include "arrays/engine/scratch.hpp"

#include <algorithm>
#include <limits>
#include <span>

namespace zeb::engine
{

namespace quantile_detail
{

/// Copies the elements that are numbers, -0.0 as 0.0: zeros of one sign are sorted faster. Returns how many.
template <class Element>
std::size_t copy_numbers(std::span<const Element> elements, Element *numbers) noexcept
{
    std::size_t count = 0;
    for (const Element element : elements) {
        numbers[count] = static_cast<Element>(element + Element(0));
        count += element == element;
    }
    return count;
}

/// The value at a fraction of the way from the first number to the last, on the line between its neighbours.
template <class Element>
double value_at(std::span<const Element> ascending, double fraction) noexcept
{
    if (ascending.empty() || !(fraction >= 0 && fraction <= 1))
        return std::numeric_limits<double>::quiet_NaN();
    const double place = fraction * static_cast<double>(ascending.size() - 1);
    const auto index = static_cast<std::size_t>(place);
    const double share = place - static_cast<double>(index);
    const double below = static_cast<double>(ascending[index]);
    if (share == 0)
        return below;
    const double above = static_cast<double>(ascending[index + 1]);
    return below == above ? below : below * (1 - share) + above * share;
}

} // namespace quantile_detail

/// Sets each value to the quantile at the fraction beside it; as many values as fractions, which may be the
/// same memory or that of the elements. Returns false, nothing changed, if allocation fails.
template <class Element>
bool quantiles(std::span<const Element> elements, std::span<const double> fractions, double *values) noexcept
{
    const Scratch<Element> numbers(elements.size());
    const Scratch<double> places(fractions.size());
    if ((numbers.get() == nullptr && !elements.empty()) || (places.get() == nullptr && !fractions.empty()))
        return false;
    const std::size_t count = quantile_detail::copy_numbers(elements, numbers.get());
    if (count > 1)
        kernels::sort(lanes_of<Order_Lane<Element>>(numbers.get()), count);
    std::copy(fractions.begin(), fractions.end(), places.get());
    const std::span<const Element> ascending(numbers.get(), count);
    std::transform(places.get(), places.get() + fractions.size(), values,
                   [ascending](double fraction) { return quantile_detail::value_at(ascending, fraction); });
    return true;
}

} // namespace zeb::engine
