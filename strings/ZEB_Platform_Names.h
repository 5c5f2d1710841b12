/*
 * Names of classes and selectors, as strings of the framework and back.
 */
#import <Korvane_ZEB/ZEB_String.h>

ZEB_EXTERN_C_BEGIN

/** Sets `target` to the name; without a name the target becomes empty. A link becomes an owner. */
ZEB_EXPORT void ZC_assign_class_name(ZEB_String *target, Class named);
ZEB_EXPORT void ZC_assign_selector_name(ZEB_String *target, SEL selector);

/** A new autoreleased string with the name; nil without a name. */
ZEB_EXPORT ZEB_String *ZC_string_from_class_name(Class named);
ZEB_EXPORT ZEB_String *ZC_string_from_selector_name(SEL selector);

/** The class, or the selector, of an ASCII name; nil or null where there is none. */
ZEB_EXPORT Class ZC_class_from_string(ZEB_Char_Vector *name);
ZEB_EXPORT SEL ZC_selector_from_string(ZEB_Char_Vector *name);

ZEB_EXTERN_C_END
