#import <Korvane_ZEB/ZEB_Arrow_Array.h>

#import "encoding/ZEB_Arrow_Private.h"

#include "core/engine/notice.hpp"

@implementation ZEB_Arrow_Array

+ (const char *)get_KVX_proprietary_software_notice
{
    return engine::proprietary_software_notice;
}

- (id)init_with_arrow_array:(struct ArrowArray *)given_array schema:(struct ArrowSchema *)given_schema
{
    if (given_array == nullptr || given_schema == nullptr ||
        !engine::is_usable(*given_array, *given_schema)) {
        [self release];
        return nil;
    }
    self = [super init];
    if (self != nil) {
        array = *given_array;
        schema = *given_schema;
        start = static_cast<uint64_t>(array.offset);
        count = static_cast<uint64_t>(array.length);
        given_array->release = nullptr;
        given_schema->release = nullptr;
    }
    return self;
}

+ (ZEB_INSTANCE_OF(ZEB_Arrow_Array *))arrow_array_with:(struct ArrowArray *)given_array schema:(struct ArrowSchema *)given_schema
{
    return [[[self alloc] init_with_arrow_array:given_array schema:given_schema] autorelease];
}

- (id)init_with_column:(uint32_t)index of_table:(ZEB_Arrow_Array *)owner
{
    self = [super init];
    if (self != nil) {
        table = [owner retain];
        array = *owner->array.children[index];
        schema = *owner->schema.children[index];
        start = owner->start + static_cast<uint64_t>(array.offset);
        count = owner->count;
    }
    return self;
}

- (void)dealloc
{
    // A column's structs are the table's.
    if (table == nil && array.release != nullptr)
        array.release(&array);
    if (table == nil && schema.release != nullptr)
        schema.release(&schema);
    [table release];
    [super dealloc];
}

- (uint64_t)count
{
    return count;
}

- (uint64_t)null_count
{
    return engine::null_count(engine::slice_of(self));
}

- (const char *)format
{
    return schema.format;
}

- (const char *)name
{
    return schema.name != nullptr ? schema.name : "";
}

- (uint32_t)column_count
{
    return engine::is_table(schema) ? static_cast<uint32_t>(schema.n_children) : 0;
}

- (ZEB_Arrow_Array *)column_at_index:(uint32_t)index
{
    if (index >= [self column_count] || [self null_count] != 0 ||
        !engine::is_usable(*array.children[index], *schema.children[index]) ||
        start + count > static_cast<uint64_t>(array.children[index]->length))
        return nil;
    return [[[ZEB_Arrow_Array alloc] init_with_column:index of_table:self] autorelease];
}

@end
