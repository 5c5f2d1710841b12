#import <Korvane_ZEB/ZEB_Decimation.h>

#include "arrays/engine/algorithms/decimation.hpp"
#include "core/engine/namespace.hpp"

uint8_t ZC_decimate(ZEB_Double_Vector *positions, ZEB_Double_Vector *values, double start, double end,
                    ZEB_Chart_Column *columns, uint32_t column_count)
{
    if (positions == nil || values == nil || columns == NULL || [positions count] != [values count])
        return 0;
    const uint32_t count = [positions count];
    return engine::decimate({[positions double_data], count}, {[values double_data], count}, start, end,
                            {columns, column_count});
}
