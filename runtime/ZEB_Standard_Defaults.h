/*
 * The user defaults of the application.
 */
#import <Korvane_ZEB/ZEB_Default_Values.h>

ZEB_ASSUME_NONNULL_BEGIN

/** The application's own defaults, with the operations of ZEB_Default_Values. */
ZEB_EXPORT
@interface ZEB_Standard_Defaults : NSUserDefaults

/** Returns the proprietary notice. */
+ (const char *)get_KVX_proprietary_software_notice;

/** Returns NSUserDefaults' `standardUserDefaults`, which is of that class and offers the same operations;
    fetched on the first call and never released. */
+ (NSUserDefaults *)shared;

@end

ZEB_ASSUME_NONNULL_END
