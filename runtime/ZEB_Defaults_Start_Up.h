/*
 * Lazy start-up of the user defaults.
 */
#import <Foundation/Foundation.h>

#include <Korvane_ZEB/ZEB_Types.h>

ZEB_ASSUME_NONNULL_BEGIN

ZEB_EXTERN_C_BEGIN

/** Create the domain name and the key text on the first call; later calls do nothing. */
ZEB_EXPORT void ZC_start_up_defaults_domain(void);
ZEB_EXPORT void ZC_start_up_debug_logging(void);

/** Return "Korvane", the framework's own domain of the user defaults, and "does_debug_logging", the key that
    switches debug logging on. Nil before their start-up. */
ZEB_EXPORT NSString *ZEB_NULLABLE ZC_defaults_domain(void);
ZEB_EXPORT NSString *ZEB_NULLABLE ZC_debug_logging_key(void);

ZEB_EXTERN_C_END

ZEB_ASSUME_NONNULL_END
