#include "units/engine/unit_table.hpp"

#include <algorithm>
#include <iterator>

namespace zeb::engine
{

namespace
{

constexpr Unit units[] = {
#include "units/engine/unit_table.inc"
};

/// In the order of the groups, behind "no dimension".
constexpr uint32_t dimensions[] = {
    ZEB_DIMENSION_NONE,        ZEB_DIMENSION_LENGTH,      ZEB_DIMENSION_WEIGHT,
    ZEB_DIMENSION_TEMPERATURE, ZEB_DIMENSION_TIME,        ZEB_DIMENSION_CURRENCY,
    ZEB_DIMENSION_ANGLE,       ZEB_DIMENSION_UNO,         ZEB_DIMENSION_BYTE,
    ZEB_DIMENSION_HISTOGRAM,   ZEB_DIMENSION_CATEGORICAL, ZEB_DIMENSION_ELECTRICAL_POTENTIAL,
    ZEB_DIMENSION_PAGE_LAYOUT,
};

constexpr std::string_view names[] = {
    "No Dimension", "Length", "Weight", "Temperature", "Time",        "Currency",
    "Angle",        "Uno",    "Byte",   "Histogram",   "Categorical", "Electrical Potential",
};

/// Rows of the page layout that are singular: column, row, sample and maximum sample.
constexpr uint32_t singular_layout_codes = 1U << 1 | 1U << 3 | 1U << 9 | 1U << 11;

/// The index of each group's first unit; that of group 13 is the end.
struct Group_Starts {
    std::size_t index[unit_group_count + 2] = {};
};

constexpr Group_Starts group_starts = [] {
    Group_Starts starts;
    for (const Unit &unit : units)
        ++starts.index[unit.group + 1];
    for (uint32_t group = 1; group <= unit_group_count; ++group)
        starts.index[group + 1] += starts.index[group];
    return starts;
}();

static_assert(std::size(dimensions) == unit_group_count + 1 && std::size(names) == unit_group_count);
static_assert(std::is_sorted(std::begin(units), std::end(units),
                             [](const Unit &left, const Unit &right) { return left.group < right.group; }));

constexpr uint32_t dimension_of(ZEB_Unit_Identity identity) { return static_cast<uint32_t>(identity); }
constexpr uint32_t code_of(ZEB_Unit_Identity identity) { return static_cast<uint32_t>(identity >> 32); }

} // namespace

std::span<const std::string_view> dimension_names() noexcept { return names; }

uint32_t group_of_dimension(uint32_t code) noexcept
{
    const auto found = std::find(std::begin(dimensions), std::end(dimensions), code);
    return found != std::end(dimensions) ? static_cast<uint32_t>(found - dimensions) : 0;
}

std::span<const Unit> units_of_group(uint32_t group) noexcept
{
    if (group < 1 || group > unit_group_count)
        return {};
    return {units + group_starts.index[group], units + group_starts.index[group + 1]};
}

Unit_Place place_of_unit(ZEB_Unit_Identity identity) noexcept
{
    const uint32_t group = group_of_dimension(dimension_of(identity)), code = code_of(identity);
    const std::span<const Unit> rows = units_of_group(group);
    const auto found =
        std::find_if(rows.begin(), rows.end(), [=](const Unit &row) { return row.code == code; });
    return {group, found != rows.end() ? static_cast<uint32_t>(found - rows.begin()) : ZEB_NOT_FOUND};
}

const Unit *find_unit(ZEB_Unit_Identity identity) noexcept
{
    const Unit_Place place = place_of_unit(identity);
    return place.position != ZEB_NOT_FOUND ? &units_of_group(place.group)[place.position] : nullptr;
}

std::span<const uint32_t> unit_symbol(uint32_t group, uint32_t position) noexcept
{
    const std::span<const Unit> rows = units_of_group(group);
    if (position >= rows.size())
        return {};
    const uint32_t *const symbol = rows[position].symbol;
    return {symbol, std::find(symbol, std::end(rows[position].symbol), 0U)};
}

bool has_plural_text(ZEB_Unit_Identity identity) noexcept
{
    const uint32_t code = code_of(identity);
    return dimension_of(identity) != ZEB_DIMENSION_PAGE_LAYOUT || code >= 32 ||
           (singular_layout_codes >> code & 1) == 0;
}

} // namespace zeb::engine
