#import "value_axis.h"

#import "extremes.h"

#include <algorithm>
#include <cfloat>
#include <cmath>

namespace
{

/// Below this share of the values their differences would not show in the labels.
constexpr double least_share = 1e-9;
/// Below this size the powers of ten that the steps need would leave the range of doubles.
constexpr double least_size = 1e-280;

struct Range {
    double low, high;
};

double within_doubles(double number) { return std::clamp(number, -DBL_MAX, DBL_MAX); }

/// Returns the range of the values, widened if they hardly differ, and 0 to 1 if there are none.
Range range_of(ZEB_Double_Vector *values)
{
    Range range{0, 1};
    if (!get_extremes(values, &range.low, &range.high))
        return {0, 1};
    const double size = std::max(std::fabs(range.low), std::fabs(range.high));
    if (size >= least_size && range.high / 2 - range.low / 2 > size * least_share)
        return range;
    const double margin = size < least_size ? 1 : size / 10;
    return {within_doubles(range.low - margin), within_doubles(range.high + margin)};
}

/// digit * 10^power
struct Step {
    int digit;
    int power;

    double times(double count) const
    {
        // A division rounds once, where a product with a negative power would do so twice.
        return power < 0 ? count * digit / std::pow(10.0, -power) : count * digit * std::pow(10.0, power);
    }
};

/// Returns the least step that divides half a range into at most so many parts.
Step step_of(double half_range, double count)
{
    const double least = half_range / count;
    const int power = static_cast<int>(std::floor(std::log10(least)));
    for (const int digit : {1, 2, 5})
        if (Step{digit, power}.times(1) >= least)
            return {digit, power};
    return {1, power + 1};
}

void append_ticks(Axis *axis, Step step, double from, double to)
{
    ZEB_Number_Format *const format = [[[ZEB_Number_Format alloc] init] autorelease];
    ZEB_Wide_String *const none = [ZEB_Wide_String array_with_capacity:1];
    const double size = std::max(std::fabs([axis first]), std::fabs([axis last]));
    [format set_precision:static_cast<uint32_t>(std::max(0.0, std::floor(std::log10(size)) - step.power))];
    [format set_zero_reference:step.times(1)];
    for (double count = from; count <= to; ++count) {
        const double value = step.times(count);
        if (!std::isfinite(value))
            continue;
        [[format text] clear];
        [format format_value:value];
        const ZEB_Index_Range exponent = [format range];
        [axis append_tick:value
                    label:[format text]
              raised_from:exponent.start != 0 ? exponent.start : [[format text] count]
                  context:none];
    }
}

} // namespace

Axis *value_axis(ZEB_Double_Vector *values, uint32_t greatest_count)
{
    const Range range = range_of(values);
    const Step step = step_of(range.high / 2 - range.low / 2, (greatest_count - 2) / 2.0);
    const double size = step.times(1);
    const double from = std::floor(range.low / size), to = std::ceil(range.high / size);
    Axis *const axis = [[[Axis alloc] init_from:within_doubles(step.times(from))
                                             to:within_doubles(step.times(to))] autorelease];
    append_ticks(axis, step, from, to);
    return axis;
}
