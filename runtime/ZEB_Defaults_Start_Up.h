/*
 * The user defaults' part of the framework's lazy start-up.
 */
#import <Foundation/Foundation.h>

#include <Korvane_ZEB/ZEB_Types.h>

ZEB_EXTERN_C_BEGIN

/** Make the texts below on first need; every later call does nothing. */
ZEB_EXPORT void ZC_start_up_defaults_domain(void);
ZEB_EXPORT void ZC_start_up_debug_logging(void);

/** "Korvane": the domain of the user defaults that is the framework's own. Nil before its start-up. */
ZEB_EXPORT NSString *ZC_defaults_domain(void);

ZEB_EXTERN_C_END

@interface NSUserDefaults (ZEB_Debug_Logging)

/** 1 when "does_debug_logging" is on in these defaults, else 0, as when the key is absent. */
- (uint8_t)debug_logging_enabled;

@end
