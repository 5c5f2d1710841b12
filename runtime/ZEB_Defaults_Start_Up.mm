#import <Korvane_ZEB/ZEB_Defaults_Start_Up.h>

#include "core/engine/namespace.hpp"
#include "core/engine/one_time.hpp"

namespace
{

uint8_t domain_is_made;
NSString *domain;

uint8_t debug_logging_is_made;
NSString *debug_logging_key;

} // namespace

void ZC_start_up_defaults_domain(void)
{
    engine::run_once(domain_is_made, [] {
        domain = [[NSString alloc] initWithBytes:"Korvane" length:7 encoding:NSASCIIStringEncoding];
    });
}

void ZC_start_up_debug_logging(void)
{
    engine::run_once(debug_logging_is_made,
                     [] { debug_logging_key = [[NSString alloc] initWithUTF8String:"does_debug_logging"]; });
}

NSString *ZC_defaults_domain(void) { return domain; }

NSString *ZC_debug_logging_key(void) { return debug_logging_key; }
