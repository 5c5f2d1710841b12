/*
 * The user defaults of the framework's shared suite.
 */
#import <Korvane_ZEB/ZEB_Default_Values.h>

ZEB_ASSUME_NONNULL_BEGIN

/**
 * Defaults that all applications of the framework share: the domain "Korvane" of the user. Its operations are
 * those of ZEB_Default_Values and the platform's.
 *
 * Each write replaces the whole domain; what other processes wrote meanwhile is read before and saved after
 * it, so that several may write their keys. It takes some ten milliseconds with GNUstep. Booleans, floats and
 * integers are kept as text.
 */
ZEB_EXPORT
@interface ZEB_Suite_Defaults : NSUserDefaults

/** Returns the proprietary notice. */
+ (const char *)get_KVX_proprietary_software_notice;

/** Returns the one object, which has the suite in its search list; created and read on the first call, and
    never released. With Apple's Foundation a key of the application's own defaults hides the same one of the
    suite. */
+ (ZEB_Suite_Defaults *)shared;

/** Store a property list in the suite, or remove a key from it. Unusable keys and values are refused as in
    ZEB_Default_Values. */
- (void)setObject:(id ZEB_NULLABLE)object forKey:(NSString *ZEB_NULLABLE)key;
- (void)removeObjectForKey:(NSString *ZEB_NULLABLE)key;

/** Store the text of a value; of an integer its low 32 bits. */
- (void)setBool:(BOOL)value forKey:(NSString *ZEB_NULLABLE)key;
- (void)setFloat:(float)value forKey:(NSString *ZEB_NULLABLE)key;
- (void)setInteger:(NSInteger)value forKey:(NSString *ZEB_NULLABLE)key;

@end

ZEB_ASSUME_NONNULL_END
