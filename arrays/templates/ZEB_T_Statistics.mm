#import <Korvane_ZEB/ZEB_T_Statistics.h>

#import <Korvane_ZEB/ZEB_Double_Vector.h>
#import <Korvane_ZEB/ZEB_UInt_Vector.h>

#import "core/ZEB_Report_Private.h"

#include "arrays/engine/algorithms/histogram.hpp"
#include "arrays/engine/algorithms/quantiles.hpp"
#include "arrays/engine/algorithms/statistics.hpp"
#include "arrays/engine/storage/array_notes.hpp"
#include "core/engine/namespace.hpp"

namespace
{

std::span<const ZEB_T_Element> read(ZEB_T_Vector *vector) { return {[vector TT_word_data], [vector count]}; }

uint8_t answer(bool is_done, engine::Fix_Report report)
{
    if (!is_done)
        report(engine::notes::allocate_failed);
    return is_done;
}

} // namespace

@implementation ZEB_T_Vector (Statistics)

- (void)get_TT_word_statistics:(ZEB_T_Statistics *)statistics
{
    const engine::Statistics<ZEB_T_Element> all = engine::statistics(read(self));
    *statistics = {all.sum,          all.mean,      all.variance,  all.sample_variance,
                   all.number_count, all.nan_count, all.sum_is_cut};
}

- (uint8_t)get_quantiles:(ZEB_Double_Vector *)quantiles at_fractions:(ZEB_Double_Vector *)fractions
{
    if (quantiles == nil || fractions == nil || [quantiles count] != [fractions count])
        return 0;
    return answer(
        engine::quantiles(read(self), {[fractions double_data], [fractions count]}, [quantiles double_data]),
        engine::Fix_Report{self, _cmd});
}

- (uint8_t)count_in_bins:(ZEB_UInt_Vector *)bins
                    from:(double)low
                      to:(double)high
                    rest:(ZEB_Histogram_Rest *)rest
{
    const engine::Equal_Parts parts(low, high, [bins count]);
    if (bins == nil || [bins count] == 0 || !parts.are_usable())
        return 0;
    ZEB_Histogram_Rest others{};
    return answer(
        engine::histogram(read(self), parts, {[bins uint_data], [bins count]}, rest != NULL ? *rest : others),
        engine::Fix_Report{self, _cmd});
}

@end
