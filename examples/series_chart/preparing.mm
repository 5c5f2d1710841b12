#import "preparing.h"

#import <Korvane_ZEB/ZEB_Array_Spans.hpp>

#include <algorithm>
#include <cmath>
#include <numeric>

namespace
{

/// Seconds from 1970; the years of dates have 32 bits.
constexpr double greatest_instant = 6e16;

/// Keeps the points at dates.
void leave_out_what_is_no_date(ZEB_Double_Array *instants, ZEB_Double_Array *values)
{
    const auto xs = zeb::elements(instants), ys = zeb::elements(values);
    size_t kept = 0;
    for (size_t i = 0; i < xs.size(); ++i)
        if (std::fabs(xs[i]) <= greatest_instant) {
            xs[kept] = xs[i];
            ys[kept++] = ys[i];
        }
    [instants set_count:static_cast<uint32_t>(kept)];
    [values set_count:static_cast<uint32_t>(kept)];
}

bool sort_by_instants(ZEB_Double_Array *instants, ZEB_Double_Array *values)
{
    const auto xs = zeb::elements(instants);
    if (std::is_sorted(xs.begin(), xs.end()))
        return true;
    ZEB_UInt_Array *const indexes = [[[ZEB_UInt_Array alloc] init_with_length:[instants count]] autorelease];
    ZEB_Double_Array *const unsorted = [values duplicate];
    if ([indexes count] != [instants count] || [unsorted count] != [values count])
        return false;
    const auto index = zeb::elements(indexes);
    std::iota(index.begin(), index.end(), 0);
    [instants sort_with_permutation:indexes];
    const auto from = zeb::elements(unsorted), to = zeb::elements(values);
    for (size_t i = 0; i < to.size(); ++i)
        to[i] = from[index[i]];
    return true;
}

} // namespace

bool prepare_series(Series *series)
{
    ZEB_Double_Array *const instants = [series instants], *const values = [series values];
    leave_out_what_is_no_date(instants, values);
    for (double &value : zeb::elements(values))
        value = std::isfinite(value) ? value : NAN;
    return sort_by_instants(instants, values);
}
