/*
 * Names of classes and selectors as framework strings.
 */
#import <Korvane_ZEB/ZEB_String.h>

ZEB_ASSUME_NONNULL_BEGIN

ZEB_EXTERN_C_BEGIN

/** Set `target` to the name of a class or selector, or to an empty text for a null one. A link becomes an
    owner. */
ZEB_EXPORT void ZC_assign_class_name(ZEB_String *ZEB_NULLABLE target, Class ZEB_NULLABLE named);
ZEB_EXPORT void ZC_assign_selector_name(ZEB_String *ZEB_NULLABLE target, SEL ZEB_NULLABLE selector);

/** Return a new autoreleased string with the name; nil for a null class or selector. */
ZEB_EXPORT ZEB_String *ZEB_NULLABLE ZC_string_from_class_name(Class ZEB_NULLABLE named);
ZEB_EXPORT ZEB_String *ZEB_NULLABLE ZC_string_from_selector_name(SEL ZEB_NULLABLE selector);

/** Return the class or selector with an ASCII name; nil or null if there is none. */
ZEB_EXPORT Class ZEB_NULLABLE ZC_class_from_string(ZEB_Char_Vector *ZEB_NULLABLE name);
ZEB_EXPORT SEL ZEB_NULLABLE ZC_selector_from_string(ZEB_Char_Vector *ZEB_NULLABLE name);

ZEB_EXTERN_C_END

ZEB_ASSUME_NONNULL_END
