/// Columns of numbers handed out through the Arrow C data interface, in place.
#pragma once

#include <Korvane_ZEB/ZEB_Arrow_Structs.h>

#include <cstddef>
#include <cstdint>
#include <span>

namespace zeb::engine
{

/// The interface's text for the type of an element.
template <class Element>
constexpr const char *arrow_format = nullptr;
template <>
inline constexpr const char *arrow_format<std::uint8_t> = "C";
template <>
inline constexpr const char *arrow_format<std::int32_t> = "i";
template <>
inline constexpr const char *arrow_format<std::uint32_t> = "I";
template <>
inline constexpr const char *arrow_format<std::int64_t> = "l";
template <>
inline constexpr const char *arrow_format<float> = "f";
template <>
inline constexpr const char *arrow_format<double> = "g";

/// A column: its elements, who keeps them, and how a reference to the keeper is given back.
struct Arrow_Column {
    const char *format;
    const void *elements;
    std::uint32_t count;
    void *keeper;
    void (*release)(void *keeper);
};

/// Sets both structs to a column. The array's release gives back a reference to the keeper, which is the
/// caller's to take. Returns false, with nothing set, if allocation fails.
bool export_column(const Arrow_Column &column, ArrowArray &array, ArrowSchema &schema) noexcept;

/// A column's name, a text of a table.
struct Arrow_Name {
    const char *chars;
    std::size_t length;
};

/// The same for a table of `count` rows, of as many names as columns: a reference for each column.
bool export_table(std::span<const Arrow_Column> columns, std::span<const Arrow_Name> names,
                  std::uint32_t count, ArrowArray &array, ArrowSchema &schema) noexcept;

} // namespace zeb::engine
