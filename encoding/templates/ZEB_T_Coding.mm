#import <Korvane_ZEB/ZEB_T_Coding.h>

#import "arrays/ZEB_T_Storage_Private.h"
#import "encoding/ZEB_Archived_Records_Private.h"

#include "core/engine/namespace.hpp"

using engine::storage_of_array;
using engine::storage_of_vector;

namespace
{

bool is_unarchived(ZEB_T_Vector *made, engine::Array_Storage<engine::ZEB_T_Kind> storage, NSCoder *coder,
                   engine::Fix_Report report)
{
    return engine::unarchive_elements(storage, coder, report) &&
           engine::unarchive_settings(made, coder, report);
}

/// The same for a vector, whose block has room for its elements alone.
bool is_vector_unarchived(ZEB_T_Vector *made, NSCoder *coder, engine::Fix_Report report)
{
    uint32_t room = 0;
    const bool is_made = is_unarchived(made, {storage_of_vector(made), room, 0}, coder, report);
    engine::trim(engine::Array_Storage<engine::ZEB_T_Kind>{storage_of_vector(made), room, made->count},
                 report);
    return is_made;
}

} // namespace

@implementation ZEB_T_Vector (Coding)

+ (BOOL)supportsSecureCoding
{
    return engine::is_archived_as_record<engine::ZEB_T_Kind>;
}

- (void)encodeWithCoder:(NSCoder *)coder
{
    engine::archive_elements(storage_of_vector(self), coder, engine::Fix_Report{self, _cmd});
}

- (id)initWithCoder:(NSCoder *)coder
{
    self = [self init_unlinked];
    if (self == nil || is_vector_unarchived(self, coder, engine::Fix_Report{self, _cmd}))
        return self;
    [self release];
    return nil;
}

@end

@implementation ZEB_T_Array (Coding)

- (id)initWithCoder:(NSCoder *)coder
{
    self = [self init_unlinked];
    if (self == nil || is_unarchived(self, storage_of_array(self), coder, engine::Fix_Report{self, _cmd}))
        return self;
    [self release];
    return nil;
}

@end
