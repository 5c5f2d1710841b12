#import <Korvane_ZEB/ZEB_Unit_Catalog.h>

#import <Korvane_ZEB/ZEB_Double_Vector.h>
#import <Korvane_ZEB/ZEB_Unit_Start_Up.h>
#import <Korvane_ZEB/ZEB_Wide_String_Array.h>
#import <Korvane_ZEB/ZEB_Wide_String_Text.h>

#include "core/engine/namespace.hpp"
#include "core/engine/notice.hpp"
#include "units/engine/unit_conversion.hpp"
#include "units/engine/unit_table.hpp"

#include <algorithm>

namespace
{

static_assert(ZEB_UNIT_GROUP_COUNT == engine::unit_group_count &&
              ZEB_UNIT_LIST_COUNT == engine::unit_text_count &&
              ZEB_UNIT_FLAG_COUNT == engine::unit_group_count + 1);

uint32_t length_of(std::string_view text) { return static_cast<uint32_t>(text.size()); }

/// Appends a string, made in `scratch`. Returns whether the memory for it was there.
bool append_string(ZEB_Wide_String_Array *list, std::string_view text, ZEB_Wide_String *scratch)
{
    const uint32_t n = [list count];
    [scratch clear];
    [scratch append_chars:text.data() length:length_of(text)];
    if ([scratch count] != text.size())
        return false;
    [list append_wide_string:scratch];
    return [list count] == n + 1;
}

/// Returns a new list of a text of every row; an empty one if the flag is 0. It ends where memory does, so
/// that positions stay those of the table.
template <class Row, class Text>
ZEB_Wide_String_Array *new_list(uint8_t flag, std::span<const Row> rows, Text text_of)
{
    if (flag == 0)
        rows = {};
    ZEB_Wide_String_Array *const list =
        [[ZEB_Wide_String_Array alloc] init_with_capacity:static_cast<uint32_t>(rows.size())];
    ZEB_Wide_String *const scratch = [[ZEB_Wide_String alloc] init];
    for (const Row &row : rows)
        if (!append_string(list, text_of(row), scratch))
            break;
    [scratch release];
    return list;
}

void make_lists(ZEB_Unit_Catalog *catalog, const uint8_t *flags)
{
    catalog->dimension_names =
        new_list(flags[0], engine::dimension_names(), [](std::string_view name) { return name; });
    for (uint32_t group = 1; group <= ZEB_UNIT_GROUP_COUNT; ++group)
        for (uint32_t kind = 0; kind < ZEB_UNIT_LIST_COUNT; ++kind)
            catalog->unit_lists[group - 1][kind] =
                new_list(flags[group], engine::units_of_group(group),
                         [=](const engine::Unit &unit) { return unit.texts[kind]; });
}

void release_lists(ZEB_Unit_Catalog *catalog)
{
    [catalog->dimension_names release];
    for (auto &lists : catalog->unit_lists)
        for (ZEB_Wide_String_Array *list : lists)
            [list release];
}

/// Returns a unit's text as the catalog's list holds it, or nil.
ZEB_Wide_String *text_of_unit(ZEB_Unit_Catalog *catalog, ZEB_Unit_Identity identity, engine::Unit_Text kind)
{
    const engine::Unit_Place place = engine::place_of_unit(identity);
    if (place.position == ZEB_NOT_FOUND)
        return nil;
    ZEB_Wide_String_Array *const list = catalog->unit_lists[place.group - 1][kind];
    return place.position < [list count] ? [list wide_string_at_index:place.position] : nil;
}

/// Appends code points one by one, or none where one is refused. Returns whether they were appended.
bool append_all(ZEB_Wide_String *target, std::span<const uint32_t> code_points)
{
    const uint32_t n = [target count];
    for (uint32_t i = 0; i < code_points.size(); ++i) {
        [target append_wide_char:code_points[i]];
        if ([target count] != n + i + 1) {
            [target decrease_count:i];
            return false;
        }
    }
    return target != nil && !code_points.empty();
}

/// The same between a space with a parenthesis and another parenthesis.
bool append_in_parentheses(ZEB_Wide_String *target, std::span<const uint32_t> symbol)
{
    uint32_t text[7] = {' ', '('};
    if (symbol.empty())
        return false;
    uint32_t *const end = std::copy(symbol.begin(), symbol.end(), text + 2);
    *end = ')';
    return append_all(target, {text, end + 1});
}

/// Returns whether a string has `n` characters more than `before`.
bool has_grown(ZEB_Wide_String *target, uint32_t before, uint32_t n)
{
    return target != nil && [target count] - before == n;
}

bool append_background_page(ZEB_Wide_String *target)
{
    constexpr std::string_view text = engine::background_page;
    const uint32_t before = [target count];
    [target append_chars:text.data() length:length_of(text)];
    return has_grown(target, before, length_of(text));
}

} // namespace

@implementation ZEB_Unit_Catalog

+ (const char *)get_KVX_proprietary_software_notice
{
    return engine::proprietary_software_notice;
}

- (id)init
{
    self = [super init];
    if (self == nil)
        return nil;
    ZC_start_up_unit_catalog();
    selection = -1;
    make_lists(self, ZC_unit_catalog_flags());
    return self;
}

- (void)dealloc
{
    release_lists(self);
    [super dealloc];
}

- (int32_t)selection
{
    return selection;
}

- (void)set_selection:(int32_t)value
{
    selection = value;
}

- (ZEB_Wide_String_Array *)dimension_names
{
    return dimension_names;
}

- (ZEB_Wide_String_Array *)unit_names_of_dimension:(ZEB_Dimension)code
{
    const uint32_t group = engine::group_of_dimension(code);
    return group != 0 ? unit_lists[group - 1][engine::singular_name] : nil;
}

- (ZEB_Wide_String *)unit_singular_name:(ZEB_Unit_Identity)identity
{
    return text_of_unit(self, identity, engine::singular_name);
}

- (ZEB_Wide_String *)unit_plural_name:(ZEB_Unit_Identity)identity
{
    return text_of_unit(self, identity, engine::plural_name);
}

- (ZEB_Wide_String *)unit_abbreviation:(ZEB_Unit_Identity)identity
{
    return text_of_unit(self, identity, engine::abbreviation);
}

- (ZEB_Wide_String *)unit_plural_abbreviation:(ZEB_Unit_Identity)identity
{
    return text_of_unit(self, identity, engine::plural_abbreviation);
}

- (uint8_t)append_unit_symbol:(ZEB_Wide_String *)target group:(uint32_t)group position:(uint32_t)position
{
    return append_all(target, engine::unit_symbol(group, position));
}

- (uint8_t)append_unit_symbol_in_parentheses:(ZEB_Wide_String *)target
                                       group:(uint32_t)group
                                    position:(uint32_t)position
{
    return append_in_parentheses(target, engine::unit_symbol(group, position));
}

- (uint8_t)append_unit_text:(ZEB_Wide_String *)target
                   identity:(ZEB_Unit_Identity)identity
                   fallback:(ZEB_Wide_Char_Vector *)fallback
                     plural:(uint8_t)plural
{
    const bool in_plural = plural != 0 && engine::has_plural_text(identity);
    ZEB_Wide_String *const name =
        text_of_unit(self, identity, in_plural ? engine::plural_name : engine::singular_name);
    if (name == nil) {
        [target append_array:fallback];
        return 0;
    }
    if (!in_plural && identity == ZEB_unit_identity(ZEB_DIMENSION_PAGE_LAYOUT, 5))
        return append_background_page(target);
    const uint32_t before = [target count], n = [name count];
    [target append_array:name];
    return has_grown(target, before, n);
}

+ (uint32_t)group_of_dimension:(ZEB_Dimension)code
{
    return engine::group_of_dimension(code);
}

+ (uint32_t)position_of_unit:(ZEB_Unit_Identity)identity
{
    return engine::place_of_unit(identity).position;
}

+ (uint8_t)convert_value:(double *)value from:(ZEB_Unit_Identity)from to:(ZEB_Unit_Identity)to
{
    return value != NULL && engine::convert({value, 1}, from, to);
}

+ (uint8_t)convert_values:(ZEB_Double_Vector *)values from:(ZEB_Unit_Identity)from to:(ZEB_Unit_Identity)to
{
    return values != nil && engine::convert({[values double_data], [values count]}, from, to);
}

@end
