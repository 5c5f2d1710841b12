#import <Korvane_ZEB/ZEB_Standard_Defaults.h>

#import <Korvane_ZEB/ZEB_Defaults_Start_Up.h>

#include "core/engine/namespace.hpp"
#include "core/engine/notice.hpp"
#include "core/engine/one_time.hpp"

namespace
{

uint8_t shared_is_fetched;
NSUserDefaults *shared_defaults;

NSUserDefaults *fetch_standard_defaults()
{
    ZC_start_up_defaults_domain();
    ZC_start_up_debug_logging();
    return [[NSUserDefaults standardUserDefaults] retain];
}

} // namespace

@implementation ZEB_Standard_Defaults

+ (const char *)get_KVX_proprietary_software_notice
{
    return engine::proprietary_software_notice;
}

+ (NSUserDefaults *)shared
{
    engine::run_once(shared_is_fetched, [] { shared_defaults = fetch_standard_defaults(); });
    return shared_defaults;
}

@end
