#import "arrays/ZEB_Platform_Data_Private.h"

#include "arrays/engine/allocator.hpp"
#include "core/engine/platform_call.hpp"

namespace zeb::engine
{

NSData *data_with_bytes(const void *bytes, std::size_t size, Fix_Report report)
{
    NSData *made = nil;
    runs_through([&] { made = [[NSData alloc] initWithBytes:bytes length:size]; });
    if (made == nil)
        report(notes::allocate_failed);
    return [made autorelease];
}

NSData *data_owning_block(void *block, std::size_t size)
{
    NSData *made = nil;
    // Only where it succeeds it is known who frees the block.
    if (has_reserve())
        runs_through([&] { made = [[NSData alloc] initWithBytesNoCopy:block length:size freeWhenDone:YES]; });
    return [made autorelease];
}

} // namespace zeb::engine
