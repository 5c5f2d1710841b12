/// The fixed table of dimensions and units, and where a unit stands in it.
#pragma once

#include <Korvane_ZEB/ZEB_Types.h>

#include <cstddef>
#include <span>
#include <string_view>

namespace zeb::engine
{

/// The groups are numbered from 1.
inline constexpr uint32_t unit_group_count = 12;

/// The size of a unit in its group's base: times / over * 10^tens * 2^twos. `times` is 0 for a unit that does
/// not convert.
struct Unit_Scale {
    uint64_t times = 0;
    uint64_t over = 1;
    int tens = 0;
    int twos = 0;
    int64_t zero = 0; // how many hundredths of the unit its own zero lies above the base's
};

/// The texts of a unit, in the order of the table.
enum Unit_Text : uint32_t { singular_name, plural_name, abbreviation, plural_abbreviation };
inline constexpr uint32_t unit_text_count = 4;

struct Unit {
    uint32_t group;
    uint32_t code;
    std::string_view texts[unit_text_count];
    uint32_t symbol[4]; // ended early by the first 0
    Unit_Scale scale = {};
};

/// Where a unit stands: position ZEB_NOT_FOUND for one that is not in the table.
struct Unit_Place {
    uint32_t group;
    uint32_t position;
};

/// The names of the dimensions; the page layout has none.
std::span<const std::string_view> dimension_names() noexcept;

/// Returns the group of a dimension, 1 to 12; 0 for "no dimension" and an unknown code.
uint32_t group_of_dimension(uint32_t code) noexcept;

/// Returns the units of a group, none for a number outside 1 to 12.
std::span<const Unit> units_of_group(uint32_t group) noexcept;

Unit_Place place_of_unit(ZEB_Unit_Identity identity) noexcept;

/// Returns the unit, or null.
const Unit *find_unit(ZEB_Unit_Identity identity) noexcept;

/// Returns the symbol's code points; none where the unit, the position or the group has none.
std::span<const uint32_t> unit_symbol(uint32_t group, uint32_t position) noexcept;

/// What the page layout's unit 5 is called where it is shown.
inline constexpr std::string_view background_page = "Background Page";

/// Whether the display text of a unit in the plural is its plural name.
bool has_plural_text(ZEB_Unit_Identity identity) noexcept;

} // namespace zeb::engine
