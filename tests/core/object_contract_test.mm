#import <Korvane_ZEB/Korvane_ZEB.h>

#include <gtest/gtest.h>
#include <string>

namespace
{

/// One object of every class of the framework that can be made by `init`.
const char *const class_names[] = {
    "ZEB_Object",
    "ZEB_Stream",
    "ZEB_Error_Stream",
    "ZEB_Description_Stream",
    "ZEB_Collection",
    "ZEB_File",
    "ZEB_Date",
    "ZEB_Number_Format",
    "ZEB_Time_Stamp",
    "ZEB_Byte_Collection",
    "ZEB_Byte_Vector",
    "ZEB_Byte_Array",
    "ZEB_Double_Collection",
    "ZEB_Double_Vector",
    "ZEB_Double_Array",
    "ZEB_Float_Collection",
    "ZEB_Float_Vector",
    "ZEB_Float_Array",
    "ZEB_Int_Collection",
    "ZEB_Int_Vector",
    "ZEB_Int_Array",
    "ZEB_UInt_Collection",
    "ZEB_UInt_Vector",
    "ZEB_UInt_Array",
    "ZEB_Pointer_Collection",
    "ZEB_Pointer_Vector",
    "ZEB_Pointer_Array",
    "ZEB_Object_Collection",
    "ZEB_Object_Vector",
    "ZEB_Object_Array",
    "ZEB_Char_Collection",
    "ZEB_Char_Vector",
    "ZEB_String",
    "ZEB_Wide_Char_Collection",
    "ZEB_Wide_Char_Vector",
    "ZEB_Wide_String",
    "ZEB_String_Collection",
    "ZEB_String_Vector",
    "ZEB_String_Array",
    "ZEB_Wide_String_Collection",
    "ZEB_Wide_String_Vector",
    "ZEB_Wide_String_Array",
    "ZEB_Byte_Array_Collection",
    "ZEB_Byte_Array_Vector",
    "ZEB_Byte_Array_Array",
};

} // namespace

TEST(Every_Class, answers_the_root_operations_and_its_own_notice)
{
    for (const char *const name : class_names) {
        SCOPED_TRACE(name);
        const Class named = NSClassFromString([NSString stringWithUTF8String:name]);
        ASSERT_NE(named, Nil);
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

        EXPECT_EQ([object ZEB_retain], object);
        EXPECT_EQ([object retainCount], 2u);
        [object ZEB_release];
        EXPECT_EQ([object retainCount], 1u);
        [object release];
    }
}

TEST(Every_Copyable_Class, copies_into_an_object_of_its_own)
{
    for (const char *const name : class_names) {
        SCOPED_TRACE(name);
        const id object = [[NSClassFromString([NSString stringWithUTF8String:name]) alloc] init];
        if ([object conformsToProtocol:@protocol(NSCopying)]) {
            const id copied = [object ZEB_copy];
            EXPECT_NE(copied, object);
            EXPECT_EQ([copied class], [object class]);
            [copied release];
        }
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

- (id)identity:(id)object
{
    return object;
}

@end

TEST(Root_Operations, work_on_platform_objects)
{
    Changeling *const object = [Changeling ZEB_alloc];
    EXPECT_EQ([object ZEB_init], object);
    EXPECT_EQ([object ZEB_perform_selector_with_object:@selector(identity:) object:@"x"], @"x");
    EXPECT_EQ([Changeling ZEB_responds_to_selector:@selector(alloc)], 1);
    EXPECT_EQ([Changeling ZEB_instances_respond_to_selector:@selector(identity:)], 1);
    EXPECT_EQ([object ZEB_is_kind_of_class:[NSObject class]], 1);
    [[object ZEB_retain] ZEB_release];
    [object ZEB_release];
    NSMutableString *const text = [[@"abc" mutableCopy] autorelease];
    const id copied = [text ZEB_copy];
    EXPECT_TRUE([copied isEqual:text]);
    [copied ZEB_release];
}

TEST(Version, number_and_text_agree)
{
    const std::string text = reinterpret_cast<const char *>(Korvane_ZEBVersionString);
    EXPECT_EQ(text.rfind("Korvane_ZEB ", 0), 0u);
    EXPECT_EQ(std::stod(text.substr(text.find(' '))), Korvane_ZEBVersionNumber);
}
