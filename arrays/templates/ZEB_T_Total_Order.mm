#import <Korvane_ZEB/ZEB_T_Total_Order.h>

#import <Korvane_ZEB/ZEB_UInt_Array.h>

#import "core/ZEB_Report_Private.h"

#include "arrays/engine/algorithms/total_order.hpp"
#include "arrays/engine/storage/array_notes.hpp"
#include "core/engine/namespace.hpp"

namespace
{

std::span<ZEB_T_Element> elements_of(ZEB_T_Vector *vector) { return {[vector TT_word_data], [vector count]}; }

} // namespace

@implementation ZEB_T_Vector (Total_Order)

- (void)sort_by_total_order
{
    engine::sort_by_total_order(elements_of(self));
}

- (void)sort_by_total_order_with_permutation:(ZEB_UInt_Array *)indexes
{
    if (!engine::sort_by_total_order(elements_of(self), {[indexes uint_data], [indexes count]}))
        engine::Fix_Report{self, _cmd}(engine::notes::allocate_failed);
}

@end
