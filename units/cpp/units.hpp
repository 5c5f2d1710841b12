/// Units of measure: their names and symbols, and values of one unit in another.
#pragma once

#include <Korvane_ZEB/ZEB_Types.h>

#include <cstddef>
#include <optional>
#include <span>
#include <string_view>

namespace zeb
{

/// A unit: `ZEB_unit_identity` makes it of a dimension's code and a unit's own,
/// `unit_at` finds it in a dimension.
using Unit = ZEB_Unit_Identity;

/// A code of ZEB_Types.h: ZEB_DIMENSION_LENGTH and so on.
using Dimension = ZEB_Dimension;

/// The texts of a unit, in UTF-8, and its symbol in code points (empty where it has none).
struct Unit_Texts {
    std::string_view singular;
    std::string_view plural;
    std::string_view abbreviation;
    std::string_view plural_abbreviation;
    std::span<const std::uint32_t> symbol;
};

/// Returns how many units a dimension has; 0 for an unknown one.
std::size_t unit_count(Dimension dimension) noexcept;

/// Returns a dimension's unit by its position; none where there is none.
std::optional<Unit> unit_at(Dimension dimension, std::size_t position) noexcept;

/// Returns the texts of a unit, which live as long as the program; none for an unknown one.
std::optional<Unit_Texts> unit_texts(Unit unit) noexcept;

/// Converts values in place. Returns false, with nothing changed, unless both units are of one dimension and
/// have a fixed size (month, quarter and year have none, nor have currencies and what is counted or laid
/// out). A temperature is a point on its scale. The error is below 1.5 units in the last place; 2.5 where the
/// ratio itself takes more than 53 bits. NaN and infinities stay.
bool convert(std::span<double> values, Unit from, Unit to) noexcept;

/// The same for one value; none where there is no conversion.
inline std::optional<double> converted(double value, Unit from, Unit to) noexcept
{
    return convert({&value, 1}, from, to) ? std::optional<double>(value) : std::nullopt;
}

} // namespace zeb
