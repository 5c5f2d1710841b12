/// Records of the external binary format: a count, then the elements, without padding.
#pragma once

#include "arrays/engine/scratch.hpp"
#include "arrays/engine/storage/insertion.hpp"
#include "arrays/engine/storage/own_source.hpp"
#include "encoding/engine/byte_order.hpp"
#include "encoding/engine/encoding_notes.hpp"

namespace zeb::engine
{

/// The 8-bit string to which records are appended.
using Record_Buffer = Array_Storage<Plain_Elements<char>>;

/// The bytes from which a record is read.
struct Record_Source {
    const char *bytes;
    std::uint32_t length;
    bool needs_swap;
};

inline constexpr std::uint32_t record_count_size = sizeof(std::uint32_t);

/// Writes a record and returns the position after it.
inline char *put_record(char *out, std::uint32_t count, const void *elements, std::size_t size) noexcept
{
    std::memcpy(out, &count, record_count_size);
    if (size != 0)
        std::memcpy(out + record_count_size, elements, size);
    return out + record_count_size + size;
}

/// Appends a count and `size` bytes of elements, which may be the buffer's own. Reports and returns false if
/// the buffer is a link or allocation fails.
template <class Report>
bool append_record(Record_Buffer buffer, std::uint32_t count, const void *elements, std::uint64_t size,
                   Report report) noexcept
{
    if (buffer.is_link()) {
        report(notes::room_through_link);
        return false;
    }
    const std::uint64_t length = std::uint64_t{buffer.count} + record_count_size + size;
    const Unaliased_Values<char> source({}, {static_cast<const char *>(elements), size}, buffer.data,
                                        buffer.capacity);
    if (!source.is_valid()) {
        report(notes::reallocate_failed);
        return false;
    }
    if (!grow(buffer, length, report))
        return false;
    put_record(buffer.data + buffer.count, count, source.elements().data(), size);
    buffer.count = static_cast<std::uint32_t>(length);
    return true;
}

/// Appends the record of plain elements, in this machine's byte order.
template <class Element, class Report>
void encode_plain(Vector_Storage<Plain_Elements<Element>> vector, Record_Buffer buffer,
                  Report report) noexcept
{
    append_record(buffer, vector.count, vector.data, std::uint64_t{vector.count} * sizeof(Element), report);
}

/// The size of the record of an array of objects, and whether an object views a block.
struct Record_Extent {
    std::uint64_t size;
    bool overlaps_block;
};

/// Measures the record of an array of objects. `storage_of` returns an object's storage.
template <class Policy, class Storage_Of>
Record_Extent extent_of_record(Vector_Storage<Held_Objects<Policy>> vector, std::span<const char> block,
                               Storage_Of storage_of) noexcept
{
    Record_Extent extent{record_count_size, false};
    for (const typename Policy::Element element : vector.elements()) {
        const auto elements = storage_of(element).elements();
        const std::span<const char> bytes(reinterpret_cast<const char *>(elements.data()),
                                          elements.size_bytes());
        extent.size += record_count_size + bytes.size();
        extent.overlaps_block = extent.overlaps_block || overlaps(bytes, block.data(), block.size());
    }
    return extent;
}

/// Writes the count of an array of objects and the record of each object.
template <class Policy, class Storage_Of>
void put_records(char *out, Vector_Storage<Held_Objects<Policy>> vector, Storage_Of storage_of) noexcept
{
    out = put_record(out, vector.count, nullptr, 0);
    for (const typename Policy::Element element : vector.elements()) {
        const auto elements = storage_of(element).elements();
        out = put_record(out, static_cast<std::uint32_t>(elements.size()), elements.data(),
                         elements.size_bytes());
    }
}

/// Appends the count of an array of objects and the record of each object, which may view the buffer.
template <class Policy, class Storage_Of, class Report>
void encode_held(Vector_Storage<Held_Objects<Policy>> vector, Record_Buffer buffer, Storage_Of storage_of,
                 Report report) noexcept
{
    if (buffer.is_link())
        return report(notes::room_through_link);
    const Record_Extent extent = extent_of_record(vector, {buffer.data, buffer.capacity}, storage_of);
    const Scratch<char> aside(extent.overlaps_block ? extent.size : 0);
    if (aside.get() != nullptr)
        put_records(aside.get(), vector, storage_of);
    else if (extent.overlaps_block)
        return report(notes::reallocate_failed);
    if (!grow(buffer, buffer.count + extent.size, report))
        return;
    if (extent.overlaps_block)
        std::memcpy(buffer.data + buffer.count, aside.get(), extent.size);
    else
        put_records(buffer.data + buffer.count, vector, storage_of);
    buffer.count += static_cast<std::uint32_t>(extent.size);
}

/// Appends an empty record for an array without references. Others cannot be encoded and append nothing.
template <class Policy, class Report>
void encode_references(Vector_Storage<Counted_References<Policy>> vector, Record_Buffer buffer,
                       Report report) noexcept
{
    if (vector.count == 0)
        append_record(buffer, 0, nullptr, 0, report);
}

/// Returns the size in bytes of a record of plain elements; 0 if the source ends before the record does.
inline std::uint32_t record_size(Record_Source source, std::size_t element_size) noexcept
{
    if (source.length < record_count_size)
        return 0;
    const std::uint64_t count = read_count(source.bytes, source.needs_swap);
    const std::uint64_t size = record_count_size + count * element_size;
    return size <= source.length ? static_cast<std::uint32_t>(size) : 0;
}

/// Returns what follows the first `size` bytes.
inline Record_Source rest_of(Record_Source source, std::uint32_t size) noexcept
{
    return {source.bytes + size, source.length - size, source.needs_swap};
}

/// The same for a record of objects whose elements have `element_size` bytes.
inline std::uint32_t nested_record_size(Record_Source source, std::size_t element_size) noexcept
{
    if (source.length < record_count_size)
        return 0;
    std::uint32_t size = record_count_size;
    for (std::uint32_t left = read_count(source.bytes, source.needs_swap); left != 0; --left) {
        const std::uint32_t nested = record_size(rest_of(source, size), element_size);
        if (nested == 0)
            return 0;
        size += nested;
    }
    return size;
}

/// Copies the elements of a record, which need no alignment, into this machine's byte order.
template <class Element>
void copy_elements(Element *elements, const char *bytes, std::uint32_t count, bool needs_swap) noexcept
{
    if constexpr (sizeof(Element) > 1) {
        if (needs_swap)
            return copy_swapped(elements, bytes, count);
    }
    if (count != 0)
        std::memmove(elements, bytes, count * sizeof(Element));
}

/// Whether a record of `size` bytes (0 if incomplete) may be decoded into the array. Reports if not.
template <class Kind, class Report>
bool may_decode(Array_Storage<Kind> array, std::uint32_t size, Report report) noexcept
{
    if (array.is_link())
        report(notes::decode_through_link);
    else if (size == 0)
        report(notes::contents_truncated);
    return !array.is_link() && size != 0;
}

/// Returns the note for an array that cannot grow.
template <class Kind>
Char_Span growth_failure_note(Array_Storage<Kind> array) noexcept
{
    return array.data == nullptr ? notes::allocate_failed : notes::reallocate_failed;
}

/// Grows an array for the elements of a record. Reports and returns false if allocation fails.
template <class Kind, class Report>
bool grow_for_record(Array_Storage<Kind> array, std::uint32_t count, Report report) noexcept
{
    const Char_Span failure = growth_failure_note(array);
    return (count == 0 || grow(array, count, report, failure)) &&
           (count <= array.count || open_up_to(array, count, report, failure));
}

/// Replaces an array's contents with the elements of a record, and returns the size of the record in bytes.
/// For a link, for an incomplete record, or if allocation fails, reports, changes nothing and returns 0.
template <class Element, class Report>
std::uint32_t decode_plain(Array_Storage<Plain_Elements<Element>> array, Record_Source source,
                           Report report) noexcept
{
    const std::uint32_t size = record_size(source, sizeof(Element));
    if (!may_decode(array, size, report))
        return 0;
    const std::uint32_t count = read_count(source.bytes, source.needs_swap);
    if (!grow_for_record(array, count, report))
        return 0;
    array.count = count;
    copy_elements(array.data, source.bytes + record_count_size, array.count, source.needs_swap);
    return size;
}

/// The elements of a record.
struct Record_Elements {
    const char *bytes;
    std::uint32_t count;
};

/// Takes the record at the start of a source that is known to hold all of it.
inline Record_Elements take_record(Record_Source &source, std::size_t element_size) noexcept
{
    const std::uint32_t count = read_count(source.bytes, source.needs_swap);
    const Record_Elements elements{source.bytes + record_count_size, count};
    source = rest_of(source, static_cast<std::uint32_t>(record_count_size + count * element_size));
    return elements;
}

/// Grows each object for its own record. Reports and returns false if one is a link or allocation fails.
template <class Policy, class Storage_Of, class Report>
bool grow_for_nested_records(Array_Storage<Held_Objects<Policy>> array, std::uint32_t count,
                             Record_Source source, Storage_Of storage_of, Report report) noexcept
{
    for (std::uint32_t i = 0; i < count; ++i) {
        const auto object = storage_of(array.data[i]);
        if (object.is_link()) {
            report(notes::decode_through_link);
            return false;
        }
        if (!grow_for_record(object, take_record(source, sizeof(*object.data)).count, report))
            return false;
    }
    return true;
}

/// The same for an array of objects, each of which has its own record. The source may lie in one of them.
template <class Policy, class Storage_Of, class Report>
std::uint32_t decode_held(Array_Storage<Held_Objects<Policy>> array, Record_Source source,
                          Storage_Of storage_of, Report report) noexcept
{
    using Nested = typename decltype(storage_of(typename Policy::Element()))::Element;
    const std::uint32_t size = nested_record_size(source, sizeof(Nested));
    if (!may_decode(array, size, report))
        return 0;
    for (std::uint32_t i = 0; i < array.kind.made(); ++i) {
        const auto object = storage_of(array.data[i]);
        const Unaliased_Values<char> aside({}, {source.bytes, size}, object.data, object.block_size());
        if (!aside.is_valid()) {
            report(notes::allocate_failed);
            return 0;
        }
        if (aside.is_copied())
            return decode_held(array, {aside.elements().data(), size, source.needs_swap}, storage_of, report);
    }
    const std::uint32_t count = read_count(source.bytes, source.needs_swap);
    Record_Source nested = rest_of(source, record_count_size);
    if (!grow_for_record(array, count, report) ||
        !grow_for_nested_records(array, count, nested, storage_of, report))
        return 0;
    array.count = count;
    for (const typename Policy::Element element : array.elements()) {
        const auto object = storage_of(element);
        const Record_Elements record = take_record(nested, sizeof(Nested));
        object.count = record.count;
        copy_elements(object.data, record.bytes, record.count, source.needs_swap);
    }
    return size;
}

/// A record can only empty an array of references: for any other record `report_references` is called and the
/// array is unchanged. Returns the size of the count.
template <class Policy, class Report, class Report_References>
std::uint32_t decode_references(Array_Storage<Counted_References<Policy>> array, Record_Source source,
                                Report report, Report_References report_references) noexcept
{
    if (!may_decode(array, record_size(source, 0), report))
        return 0;
    if (read_count(source.bytes, source.needs_swap) == 0)
        resize_within_room(array, 0, report, growth_failure_note(array));
    else
        report_references();
    return record_count_size;
}

} // namespace zeb::engine
