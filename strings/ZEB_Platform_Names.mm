#import <Korvane_ZEB/ZEB_Platform_Names.h>

#include <string.h>

namespace
{

NSString *name_of_class(Class named) { return named != Nil ? NSStringFromClass(named) : nil; }

NSString *name_of_selector(SEL selector) { return selector != NULL ? NSStringFromSelector(selector) : nil; }

void assign(ZEB_String *target, NSString *name)
{
    const char *const text = [name UTF8String];
    [target set_chars:text count:text != NULL ? static_cast<uint32_t>(strlen(text)) : 0];
}

ZEB_String *string_of(NSString *name)
{
    if (name == nil)
        return nil;
    ZEB_String *const string = [[[ZEB_String alloc] init] autorelease];
    assign(string, name);
    return string;
}

/// Returns an NSString over the vector's own characters, which must outlive it; nil for an empty name.
NSString *name_without_copy(ZEB_Char_Vector *name)
{
    if ([name count] == 0)
        return nil;
    return [[NSString alloc] initWithBytesNoCopy:[name char_data]
                                          length:[name count]
                                        encoding:NSASCIIStringEncoding
                                    freeWhenDone:NO];
}

} // namespace

void ZC_assign_class_name(ZEB_String *target, Class named) { assign(target, name_of_class(named)); }

void ZC_assign_selector_name(ZEB_String *target, SEL selector) { assign(target, name_of_selector(selector)); }

ZEB_String *ZC_string_from_class_name(Class named) { return string_of(name_of_class(named)); }

ZEB_String *ZC_string_from_selector_name(SEL selector) { return string_of(name_of_selector(selector)); }

Class ZC_class_from_string(ZEB_Char_Vector *name)
{
    NSString *const text = name_without_copy(name);
    const Class found = text != nil ? NSClassFromString(text) : Nil;
    [text release];
    return found;
}

SEL ZC_selector_from_string(ZEB_Char_Vector *name)
{
    NSString *const text = name_without_copy(name);
    const SEL found = text != nil ? NSSelectorFromString(text) : NULL;
    [text release];
    return found;
}
