#include <Korvane_ZEB/ZEB_Unit_Start_Up.h>

#include "core/engine/namespace.hpp"
#include "core/engine/one_time.hpp"

#include <string.h>

namespace
{

uint8_t flags_are_set;
uint8_t flags[ZEB_UNIT_FLAG_COUNT];

} // namespace

void ZC_start_up_unit_catalog(void)
{
    engine::run_once(flags_are_set, [] { memset(flags, 1, sizeof flags); });
}

uint8_t *ZC_unit_catalog_flags(void) { return flags; }
