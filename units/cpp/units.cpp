#include <Korvane_ZEB_engine/units.hpp>

#include "units/engine/unit_conversion.hpp"
#include "units/engine/unit_table.hpp"

namespace zeb
{
namespace
{

std::span<const engine::Unit> units_of_dimension(Dimension dimension) noexcept
{
    return engine::units_of_group(engine::group_of_dimension(dimension));
}

} // namespace

std::size_t unit_count(Dimension dimension) noexcept { return units_of_dimension(dimension).size(); }

std::optional<Unit> unit_at(Dimension dimension, std::size_t position) noexcept
{
    const std::span<const engine::Unit> units = units_of_dimension(dimension);
    if (position >= units.size())
        return std::nullopt;
    return ZEB_unit_identity(dimension, units[position].code);
}

std::optional<Unit_Texts> unit_texts(Unit unit) noexcept
{
    const engine::Unit *const found = engine::find_unit(unit);
    if (found == nullptr)
        return std::nullopt;
    const engine::Unit_Place place = engine::place_of_unit(unit);
    return Unit_Texts{found->texts[engine::singular_name], found->texts[engine::plural_name],
                      found->texts[engine::abbreviation], found->texts[engine::plural_abbreviation],
                      engine::unit_symbol(place.group, place.position)};
}

bool convert(std::span<double> values, Unit from, Unit to) noexcept
{
    return engine::convert(values, from, to);
}

} // namespace zeb
