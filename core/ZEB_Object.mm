#import <Korvane_ZEB/ZEB_Object.h>

#include "core/engine/namespace.hpp"
#include "core/engine/notice.hpp"

@implementation ZEB_Object

+ (id)ZEB_alloc
{
    return [super alloc];
}

+ (const char *)get_KVX_proprietary_software_notice
{
    return engine::proprietary_software_notice;
}

- (id)ZEB_init
{
    return [super init];
}

- (uint8_t)ZEB_is_kind_of_class:(Class)other
{
    return [super isKindOfClass:other] ? 1 : 0;
}

- (uint8_t)ZEB_responds_to_selector:(SEL)selector
{
    return selector != NULL && [super respondsToSelector:selector] ? 1 : 0;
}

- (id)ZEB_perform_selector:(SEL)selector
{
    return selector != NULL ? [super performSelector:selector] : nil;
}

- (id)ZEB_perform_selector_with_object:(SEL)selector object:(id)object
{
    return selector != NULL ? [super performSelector:selector withObject:object] : nil;
}

- (id)ZEB_retain
{
    return [super retain];
}

- (void)ZEB_release
{
    [super release];
}

@end
