#import <Korvane_ZEB/ZEB_T_Enumeration.h>

#import "arrays/ZEB_T_Storage_Private.h"

#include "arrays/engine/storage/enumeration.hpp"
#include "core/engine/namespace.hpp"

@implementation ZEB_T_Vector (Enumeration)

- (NSUInteger)countByEnumeratingWithState:(NSFastEnumerationState *)state
                                  objects:(id *)buffer
                                    count:(NSUInteger)room
{
    (void)buffer;
    (void)room;
    return engine::enumerate_all_at_once(*state, data, count);
}

@end
