/// The external binary format: a header of 64 bytes, then records. A record is a count of 32 bits and the
/// elements, without padding; the record of a list of texts is their count and a record for each. Files
/// travel between machines of either byte order: what was written on the other kind is read with
/// `needs_swap`.
#pragma once

#include <Korvane_ZEB_engine/array.hpp>

#include <optional>
#include <string_view>

namespace zeb
{

/// The bytes of a file.
using Bytes = std::span<const std::uint8_t>;

/// Appends a header.
[[nodiscard]] bool append_header(Array<std::uint8_t> &buffer) noexcept;

/// What follows a header, and whether it was written on a machine of the other byte order.
struct Records {
    Bytes bytes;
    bool needs_swap;
};

/// Returns what follows the header at the start of the bytes; none if there is no header.
std::optional<Records> read_header(Bytes file) noexcept;

namespace detail
{
template <Element Type>
bool append_record(Array<std::uint8_t> &buffer, std::span<const Type> values) noexcept;
} // namespace detail

/// Append a record, of elements or of texts, and return false, with the buffer unchanged, if allocation
/// fails. What is appended may lie in the buffer.
template <Elements Range>
[[nodiscard]] bool append_record(Array<std::uint8_t> &buffer, const Range &values) noexcept
{
    return detail::append_record(buffer, detail::constants_of(values));
}
[[nodiscard]] bool append_text_records(Array<std::uint8_t> &buffer,
                                       std::span<const std::string_view> texts) noexcept;

/// Reads the record at the start of the records into an array, and moves `records` behind it. Returns false,
/// with both unchanged, if the bytes end before the record does or allocation fails. The array may not hold
/// the bytes.
template <Element Type>
[[nodiscard]] bool take_record(Records &records, Array<Type> &values) noexcept;

/// Returns the text of a record of characters, a view of the bytes, and moves `records` behind it: after
/// `take_count`, once for each text of a list. None, with nothing moved, if the bytes end before.
std::optional<std::string_view> take_text(Records &records) noexcept;

/// Returns a count alone, and moves `records` behind it.
std::optional<std::uint32_t> take_count(Records &records) noexcept;

} // namespace zeb
