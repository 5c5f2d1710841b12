#import <Korvane_ZEB/ZEB_Root_Operations.h>

@implementation NSObject (ZEB_Root_Operations)

+ (uint8_t)ZEB_responds_to_selector:(SEL)selector
{
    return selector != NULL && [self respondsToSelector:selector] ? 1 : 0;
}

+ (uint8_t)ZEB_instances_respond_to_selector:(SEL)selector
{
    return selector != NULL && [self instancesRespondToSelector:selector] ? 1 : 0;
}

+ (Class)ZEB_class
{
    return [self class];
}

+ (id)ZEB_alloc
{
    return NSAllocateObject(self, 0, NULL);
}

- (id)ZEB_init
{
    // Returns the receiver even if `init` returns another object.
    (void)[self init];
    return self;
}

- (id)ZEB_copy
{
    return [self copy];
}

- (Class)ZEB_class
{
    return [self class];
}

- (uint8_t)ZEB_is_kind_of_class:(Class)other
{
    return [self isKindOfClass:other] ? 1 : 0;
}

- (uint8_t)ZEB_responds_to_selector:(SEL)selector
{
    return selector != NULL && [self respondsToSelector:selector] ? 1 : 0;
}

- (id)ZEB_perform_selector:(SEL)selector
{
    return selector != NULL ? [self performSelector:selector] : nil;
}

- (id)ZEB_perform_selector_with_object:(SEL)selector object:(id)object
{
    return selector != NULL ? [self performSelector:selector withObject:object] : nil;
}

- (id)ZEB_retain
{
    return [self retain];
}

- (void)ZEB_release
{
    [self release];
}

@end
