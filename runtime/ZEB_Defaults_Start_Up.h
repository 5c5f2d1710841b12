/*
 * Lazy start-up of the user defaults.
 */
#import <Foundation/Foundation.h>

#include <Korvane_ZEB/ZEB_Types.h>

ZEB_EXTERN_C_BEGIN

/** Create the domain name and the key text on the first call; later calls do nothing. */
ZEB_EXPORT void ZC_start_up_defaults_domain(void);
ZEB_EXPORT void ZC_start_up_debug_logging(void);

/** Returns "Korvane", the framework's own domain of the user defaults. Nil before its start-up. */
ZEB_EXPORT NSString *ZC_defaults_domain(void);

ZEB_EXTERN_C_END

@interface NSUserDefaults (ZEB_Debug_Logging)

/** Returns 1 if "does_debug_logging" is on in these defaults, else 0, also for a missing key. */
- (uint8_t)debug_logging_enabled;

@end
