#import <Korvane_ZEB/ZEB_T_Reversal.h>

#include "arrays/engine/algorithms/reorder.hpp"
#include "core/engine/namespace.hpp"

@implementation ZEB_T_Vector (Reversal)

- (void)reverse_elements
{
    engine::reverse_elements(std::span<ZEB_T_Element>(data, count));
}

@end
