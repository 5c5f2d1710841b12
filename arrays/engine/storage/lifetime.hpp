/// Allocating, linking, copying and releasing a vector's storage.
///
/// Every `report` takes a note. A failed allocation is reported; new storage is then left empty, and storage
/// already in use is unchanged.
#pragma once

#include "arrays/engine/allocator.hpp"
#include "arrays/engine/storage/array_notes.hpp"
#include "arrays/engine/storage/array_storage.hpp"

namespace zeb::engine
{

/// Releases an owner's elements and its block, and empties the storage. What a link views is unchanged.
template <class Kind>
void release_storage(Vector_Storage<Kind> storage) noexcept
{
    if (storage.owns() && storage.data != nullptr) {
        storage.kind.destroy(storage.data, 0, storage.count);
        release(storage.data);
    }
    storage.data = nullptr;
    storage.count = 0;
}

/// Returns a block for `capacity` elements; none for 0. If allocation fails the block has null data and
/// capacity 0.
template <class Kind, class Report>
Block make_block(std::uint64_t capacity, Report report) noexcept
{
    Block block{nullptr, 0};
    if (capacity != 0 && !resize_block(block, capacity, Vector_Storage<Kind>::layout()))
        report(notes::allocate_failed);
    return block;
}

/// Allocates new storage for `capacity` elements, of which `count` are live and undefined, and returns its
/// capacity; 0 if allocation fails.
template <class Kind, class Report>
std::uint32_t allocate_storage(Vector_Storage<Kind> storage, std::uint32_t count, std::uint64_t capacity,
                               Report report) noexcept
{
    const Block block = make_block<Kind>(capacity, report);
    storage.data = static_cast<typename Kind::Element *>(block.data);
    storage.count = 0;
    if (block.capacity < count)
        return 0;
    if (!storage.kind.open(storage.data, 0, count)) {
        report(notes::allocate_failed);
        release_storage(storage);
        return 0;
    }
    storage.count = count;
    return block.capacity;
}

/// Makes the storage view `count` elements that it does not own. The caller sets the marker.
template <class Kind>
void view(Vector_Storage<Kind> storage, typename Kind::Element const *data, std::uint32_t count) noexcept
{
    // Read-only memory may be viewed: a link writes only when the caller stores through it.
    storage.data = const_cast<typename Kind::Element *>(data);
    storage.count = count;
}

/// Views an inclusive range of the block at `data`. The range is not checked.
template <class Kind>
void view_range(Vector_Storage<Kind> storage, typename Kind::Element const *data,
                ZEB_Index_Range range) noexcept
{
    view(storage, data + range.start, range.end - range.start + 1);
}

/// Who holds the references that are copied. Only arrays of counted references distinguish them.
enum class Source { of_the_caller, of_another_array };

template <class Kind>
void assign_from(Source source, Kind kind, typename Kind::Element *slots,
                 typename Kind::Element const *elements, std::uint32_t n) noexcept
{
    if (source == Source::of_another_array)
        kind.assign_shared(slots, elements, n);
    else
        kind.assign(slots, elements, n);
}

/// Makes new storage a copy of `n` elements, in a block of `capacity`, and returns its capacity; 0 if
/// allocation fails.
template <class Kind, class Report>
std::uint32_t allocate_copy(Vector_Storage<Kind> storage, Source source,
                            typename Kind::Element const *elements, std::uint32_t n, std::uint64_t capacity,
                            Report report) noexcept
{
    const std::uint32_t room = allocate_storage(storage, n, capacity, report);
    if (!storage.kind.prepare(storage.data, elements, storage.count)) {
        report(notes::allocate_failed);
        release_storage(storage);
        return 0;
    }
    assign_from(source, storage.kind, storage.data, elements, storage.count);
    return room;
}

/// Replaces the storage with a copy of `n` elements, which may be its own, in a new block of `capacity` (at
/// least `n`), and sets `room` to that block's capacity. A link becomes an owner. Returns false, with the
/// storage unchanged, if allocation fails.
template <class Kind, class Report>
bool replace_with_copy(Vector_Storage<Kind> storage, Source source, typename Kind::Element const *elements,
                       std::uint32_t n, std::uint64_t capacity, std::uint32_t &room, Report report) noexcept
{
    typename Kind::Element *data = nullptr;
    std::uint32_t count = 0;
    std::uint32_t marker = 0;
    typename Kind::Fresh fresh{};
    const Vector_Storage<Kind> made{data, count, marker, storage.kind.fresh(fresh)};
    const std::uint64_t wanted = capacity < n ? n : capacity;
    const std::uint32_t got = allocate_copy(made, source, elements, n, wanted, report);
    if (got < wanted)
        return false;
    release_storage(storage);
    storage.data = data;
    storage.count = count;
    storage.link_marker = 0;
    storage.kind.take(fresh);
    room = got;
    return true;
}

} // namespace zeb::engine
