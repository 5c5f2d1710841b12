#import <Korvane_ZEB/ZEB_Release_Level.h>

#import <Korvane_ZEB/ZEB_Object_Array.h>

#include "core/engine/namespace.hpp"
#include "core/engine/notice.hpp"

namespace
{

ZEB_Release_Level *current_level;
uint8_t root_was_made;

} // namespace

@implementation ZEB_Release_Level

+ (const char *)get_KVX_proprietary_software_notice
{
    return engine::proprietary_software_notice;
}

+ (void)push
{
    ZEB_Release_Level *const outer = current_level;
    current_level = outer == nil ? [[self alloc] init] : [[self alloc] init_with_parent:outer];
    [outer set_child:current_level];
}

+ (void)pop
{
    ZEB_Release_Level *const popped = current_level;
    current_level = [popped parent];
    [popped release];
}

+ (void)keep:(id)object
{
    if (object != nil)
        [[current_level kept_objects] append_object:object];
}

+ (ZEB_Release_Level *)current
{
    return current_level;
}

+ (void)set_current:(ZEB_Release_Level *)level
{
    current_level = level;
}

+ (uint8_t)is_started
{
    return root_was_made;
}

- (id)init
{
    self = [self init_with_parent:nil];
    if (self != nil)
        root_was_made = 1;
    return self;
}

- (id)init_with_parent:(ZEB_Release_Level *)level
{
    self = [super init];
    if (self != nil) {
        parent = level;
        kept_objects = [[ZEB_Object_Array alloc] init_with_capacity:0];
        platform_pool = [[NSAutoreleasePool alloc] init];
    }
    return self;
}

- (void)dealloc
{
    // The current level never is one that is going away: what is released here may keep objects.
    if (child != nil || current_level == self)
        current_level = parent;
    [child set_parent:parent];
    [child release];
    if (parent != nil)
        parent->child = nil;
    [kept_objects release];
    [platform_pool release];
    [super dealloc];
}

- (ZEB_Release_Level *)parent
{
    return parent;
}

- (void)set_parent:(ZEB_Release_Level *)level
{
    parent = level;
}

- (ZEB_Release_Level *)child
{
    return child;
}

- (void)set_child:(ZEB_Release_Level *)level
{
    child = level;
}

- (ZEB_Object_Array *)kept_objects
{
    return kept_objects;
}

- (void)set_kept_objects:(ZEB_Object_Array *)objects
{
    [objects retain];
    [kept_objects release];
    kept_objects = objects;
}

@end
