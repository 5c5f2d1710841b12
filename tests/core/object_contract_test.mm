#include "tests/support/framework_classes.hpp"

#include <gtest/gtest.h>

TEST(Every_Class, answers_the_root_operations_and_its_own_notice)
{
    const std::vector<id> all = support::framework_classes();
    EXPECT_GE(all.size(), 45u);
    for (const id each : all) {
        const Class named = static_cast<Class>(each);
        SCOPED_TRACE(class_getName(named));
        EXPECT_STREQ([named get_KVX_proprietary_software_notice],
                     [ZEB_Object get_KVX_proprietary_software_notice]);
        const SEL notice = @selector(get_KVX_proprietary_software_notice);
        if (named != [ZEB_Object class]) {
            EXPECT_NE([named methodForSelector:notice], [[named superclass] methodForSelector:notice]);
        }

        const id object = [[named ZEB_alloc] init];
        EXPECT_EQ([object ZEB_class], named);
        EXPECT_EQ([named ZEB_class], named);
        EXPECT_EQ([object ZEB_is_kind_of_class:[ZEB_Object class]], 1);
        EXPECT_EQ([object ZEB_is_kind_of_class:[NSString class]], 0);
        EXPECT_EQ([object ZEB_responds_to_selector:@selector(ZEB_retain)], 1);
        EXPECT_EQ([object ZEB_responds_to_selector:NULL], 0);
        EXPECT_EQ([named ZEB_responds_to_selector:NULL] + [named ZEB_instances_respond_to_selector:NULL], 0);
        EXPECT_EQ([object ZEB_perform_selector:NULL], nil);
        EXPECT_EQ([object ZEB_perform_selector_with_object:NULL object:object], nil);
        EXPECT_EQ([object ZEB_responds_to_selector:@selector(characterAtIndex:)], 0);
        EXPECT_EQ([named ZEB_instances_respond_to_selector:@selector(ZEB_retain)], 1);
        EXPECT_EQ([named ZEB_responds_to_selector:notice], 1);
        EXPECT_EQ([object ZEB_perform_selector:@selector(self)], object);

        if ([object conformsToProtocol:NSProtocolFromString(@"NSCopying")]) {
            const id copied = [object ZEB_copy];
            EXPECT_NE(copied, object);
            EXPECT_EQ([copied class], named);
            [copied release];
        }
        EXPECT_EQ([object ZEB_retain], object);
        EXPECT_EQ([object retainCount], 2u);
        [object ZEB_release];
        EXPECT_EQ([object retainCount], 1u);
        [object release];
    }
}

/// Answers another object from `init`.
@interface Changeling : NSObject
@end

@implementation Changeling
- (id)init
{
    return static_cast<id>([NSNull null]);
}
@end

TEST(Root_Operations, work_on_platform_objects)
{
    Changeling *const object = [Changeling ZEB_alloc];
    EXPECT_EQ([object ZEB_init], object);
    [[object ZEB_retain] ZEB_release];
    [object ZEB_release];
    NSMutableString *const text = [[@"abc" mutableCopy] autorelease];
    [text ZEB_perform_selector_with_object:@selector(appendString:) object:@"d"];
    const id copied = [text ZEB_copy];
    EXPECT_TRUE([copied isEqual:@"abcd"]);
    [copied ZEB_release];
}

TEST(Version, number_and_text_agree)
{
    const std::string text = reinterpret_cast<const char *>(Korvane_ZEBVersionString);
    EXPECT_EQ(text.rfind("Korvane_ZEB ", 0), 0u);
    EXPECT_EQ(std::stod(text.substr(text.find(' '))), Korvane_ZEBVersionNumber);
}
