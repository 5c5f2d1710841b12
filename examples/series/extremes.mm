#import "extremes.h"

#import <Korvane_ZEB/ZEB_Array_Spans.hpp>

#include <algorithm>
#include <cmath>

bool get_extremes(ZEB_Double_Vector *values, double *lowest, double *highest)
{
    // A leading NaN would be both.
    const auto all = zeb::elements(values);
    const auto first = std::find_if(all.begin(), all.end(), [](double value) { return !std::isnan(value); });
    if (first == all.end())
        return false;
    ZEB_Double_Array *const numbers =
        [ZEB_Double_Array link_to_doubles:all.data() + (first - all.begin())
                                    count:static_cast<uint32_t>(all.end() - first)];
    [numbers get_minimum_double:lowest maximum:highest];
    return true;
}
