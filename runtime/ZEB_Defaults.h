/*
 * User defaults behind one class, whichever they are.
 */
#import <Korvane_ZEB/ZEB_Default_Values.h>

ZEB_ASSUME_NONNULL_BEGIN

/** Passes every operation on to the defaults that it holds; without any it answers 0 or nil, and changes
 * nothing. */
ZEB_EXPORT
@interface ZEB_Defaults : ZEB_Object <ZEB_Default_Values> {
    ZEB_PROTECTED
    ZEB_UNRETAINED NSUserDefaults *ZEB_NULLABLE defaults;
}

/** Returns the proprietary notice. */
+ (const char *)get_KVX_proprietary_software_notice;

/** Return the one object over the framework's suite, and the one over the application's defaults. Each is
    created and synchronised on the first call, and never released. */
+ (ZEB_Defaults *)shared_suite;
+ (ZEB_Defaults *)shared_standard;

/** Initialises an object over defaults that it retains; `init` over none. */
- (instancetype)init_with_defaults:(NSUserDefaults *ZEB_NULLABLE)held;

/** The defaults that it holds. */
- (NSUserDefaults *ZEB_NULLABLE)platform_defaults;

/** Saves what was set, and reads what other processes have saved. Returns NO if that fails. */
- (BOOL)synchronize;

@end

ZEB_ASSUME_NONNULL_END
