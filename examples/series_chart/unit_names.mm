#import "unit_names.h"

#include <initializer_list>

namespace
{

constexpr ZEB_Dimension dimensions[] = {
    ZEB_DIMENSION_LENGTH,    ZEB_DIMENSION_WEIGHT,      ZEB_DIMENSION_TEMPERATURE,
    ZEB_DIMENSION_TIME,      ZEB_DIMENSION_ANGLE,       ZEB_DIMENSION_ELECTRICAL_POTENTIAL,
    ZEB_DIMENSION_UNO,       ZEB_DIMENSION_BYTE,        ZEB_DIMENSION_CURRENCY,
    ZEB_DIMENSION_HISTOGRAM, ZEB_DIMENSION_CATEGORICAL, ZEB_DIMENSION_PAGE_LAYOUT};
constexpr uint32_t end_of_codes = 1000;

/// The catalog of this program, which lives as long as it does.
ZEB_Unit_Catalog *catalog()
{
    static ZEB_Unit_Catalog *const units = [[ZEB_Unit_Catalog alloc] init];
    return units;
}

bool is_name_of(ZEB_Wide_Char_Vector *name, ZEB_Unit_Identity unit)
{
    for (ZEB_Wide_String *text :
         {[catalog() unit_singular_name:unit], [catalog() unit_plural_name:unit],
          [catalog() unit_abbreviation:unit], [catalog() unit_plural_abbreviation:unit]})
        if (text != nil && [text is_equal:name])
            return true;
    return false;
}

} // namespace

bool find_unit(ZEB_Wide_Char_Vector *name, ZEB_Unit_Identity *unit)
{
    for (const ZEB_Dimension dimension : dimensions)
        for (uint32_t code = 0; code < end_of_codes; ++code)
            if (is_name_of(name, ZEB_unit_identity(dimension, code))) {
                *unit = ZEB_unit_identity(dimension, code);
                return true;
            }
    return false;
}

void append_unit(ZEB_Wide_String *text, ZEB_Unit_Identity unit)
{
    const uint32_t group =
        [ZEB_Unit_Catalog group_of_dimension:static_cast<ZEB_Dimension>(unit & UINT32_MAX)];
    [catalog() append_unit_text:text identity:unit fallback:nil plural:1];
    [catalog() append_unit_symbol_in_parentheses:text
                                           group:group
                                        position:[ZEB_Unit_Catalog position_of_unit:unit]];
}
