#import <Korvane_ZEB/ZEB_Suite_Defaults.h>

#import <Korvane_ZEB/ZEB_Defaults_Start_Up.h>

#import "core/ZEB_Report_Private.h"
#import "runtime/ZEB_Default_Values_Private.h"

#include "core/engine/namespace.hpp"
#include "core/engine/notice.hpp"
#include "core/engine/one_time.hpp"
#include "core/engine/platform_call.hpp"
#include "runtime/engine/runtime_notes.hpp"

namespace
{

uint8_t shared_is_made;
ZEB_Suite_Defaults *shared_defaults;

ZEB_Suite_Defaults *new_suite_defaults()
{
    ZC_start_up_defaults_domain();
    ZC_start_up_debug_logging();
    ZEB_Suite_Defaults *const made = [[ZEB_Suite_Defaults alloc] init];
    [made addSuiteNamed:ZC_defaults_domain()];
    // GNUstep reads the domains of a second defaults object only when it is told to.
    [made synchronize];
    return made;
}

/// The domain is not removed first: the platform replaces it as a whole all the same, and what is removed is
/// gone from the disk at once, for other processes and for good where the process ends in between.
template <class Change>
void replace_domain(ZEB_Suite_Defaults *suite, Change change)
{
    ZC_start_up_defaults_domain();
    [suite synchronize];
    NSString *const domain = ZC_defaults_domain();
    NSMutableDictionary *const values =
        [NSMutableDictionary dictionaryWithDictionary:[suite persistentDomainForName:domain]];
    change(values);
    [suite setPersistentDomain:values forName:domain];
    [suite synchronize];
}

/// Replaces the domain by one that `change` has changed at the key.
template <class Change>
void change_key(engine::Fix_Report report, ZEB_Suite_Defaults *suite, NSString *key, Change change)
{
    if (![key isKindOfClass:[NSString class]] || [key length] == 0)
        report(engine::notes::unusable_key);
    else if (!engine::runs_through([=] { replace_domain(suite, change); }))
        report(engine::notes::unusable_value);
}

void store(engine::Fix_Report report, ZEB_Suite_Defaults *suite, id object, NSString *key)
{
    const id value = engine::property_list_or_nil(object);
    if (value == nil)
        return report(engine::notes::unusable_value);
    change_key(report, suite, key, [=](NSMutableDictionary *values) { [values setObject:value forKey:key]; });
}

} // namespace

@implementation ZEB_Suite_Defaults

+ (const char *)get_KVX_proprietary_software_notice
{
    return engine::proprietary_software_notice;
}

+ (ZEB_Suite_Defaults *)shared
{
    engine::run_once(shared_is_made, [] { shared_defaults = new_suite_defaults(); });
    return shared_defaults;
}

- (void)setObject:(id)object forKey:(NSString *)key
{
    store(engine::Fix_Report{self, _cmd}, self, object, key);
}

- (void)removeObjectForKey:(NSString *)key
{
    change_key(engine::Fix_Report{self, _cmd}, self, key,
               [=](NSMutableDictionary *values) { [values removeObjectForKey:key]; });
}

- (void)setBool:(BOOL)value forKey:(NSString *)key
{
    [self setObject:engine::text_of_number([NSNumber numberWithBool:value]) forKey:key];
}

- (void)setFloat:(float)value forKey:(NSString *)key
{
    [self setObject:engine::text_of_number([NSNumber numberWithFloat:value]) forKey:key];
}

- (void)setInteger:(NSInteger)value forKey:(NSString *)key
{
    [self setObject:engine::text_of_number([NSNumber numberWithInt:static_cast<int>(value)]) forKey:key];
}

@end
