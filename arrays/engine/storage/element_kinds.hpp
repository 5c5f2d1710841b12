/// Element kinds: how an array stores its elements, as plain values, counted references or objects of its
/// own.
///
/// An element kind provides these operations. `data` is the array's block; the live elements are those below
/// the count.
///
///     open           makes slots live: undefined values, nil, or empty objects; false if creation fails
///     adopt          makes the slots below the count the array's own, even if its storage was set from
///                    outside
///     disown         leaves the slots to whoever set the storage: none is filled or released
///     close          ends live slots and drops their references; objects that the array made stay for
///                    reuse
///     prepare        makes room in live slots for a source's contents; false if allocation fails
///     assign         stores a source's elements in live slots; the source may lie in the same block,
///                    further up; cannot fail after `prepare`; references in the source are the caller's
///     assign_shared  the same, for references that another array keeps
///     open_gap       moves live elements up; the slots of the gap are as after `open`
///     close_gap      drops live elements and moves those after them down
///     destroy        drops what the slots from an index on still hold, before the block is freed or cut
///     fresh          returns the same kind for a second block, whose state is a `Fresh`
///     take           makes the state of that second block the array's
///
/// `Equality` and `Less` compare elements: objects that the array made by their contents, references by
/// identity and address.
#pragma once

#include "arrays/engine/allocator.hpp"
#include "arrays/engine/element_order.hpp"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>

namespace zeb::engine
{

/// Numbers, characters and pointers: copied bytewise, with nothing to release.
template <class Type>
struct Plain_Elements {
    using Element = Type;
    using Equality = Own_Equality;
    using Less = Own_Less;
    static constexpr bool is_plain = true;
    static constexpr bool holds_objects = false;
    static constexpr bool zero_filled = false;

    struct Fresh {
    };
    Plain_Elements fresh(Fresh &) const noexcept { return {}; }
    void take(Fresh) const noexcept {}

    bool open(Element *, std::uint32_t, std::uint32_t) const noexcept { return true; }
    void adopt(std::uint32_t) const noexcept {}
    void disown() const noexcept {}
    bool prepare(Element *, Element const *, std::uint32_t) const noexcept { return true; }
    void close(Element *, std::uint32_t, std::uint32_t) const noexcept {}
    void destroy(Element *, std::uint32_t, std::uint32_t) const noexcept {}

    void assign(Element *slots, Element const *source, std::uint32_t n) const noexcept
    {
        if (n != 0)
            std::memmove(slots, source, n * sizeof(Element));
    }

    void assign_shared(Element *slots, Element const *source, std::uint32_t n) const noexcept
    {
        assign(slots, source, n);
    }

    void open_gap(Element *data, std::uint32_t count, std::uint32_t at, std::uint32_t n) const noexcept
    {
        std::memmove(data + at + n, data + at, (count - at) * sizeof(Element));
    }

    void close_gap(Element *data, std::uint32_t count, std::uint32_t at, std::uint32_t n) const noexcept
    {
        std::memmove(data + at, data + at + n, (count - at - n) * sizeof(Element));
    }
};

/// What an object array does with the references that it holds.
enum Ownership_Mode : std::uint32_t {
    borrows = 0, ///< neither retains nor releases
    adopts = 1,  ///< takes over the caller's reference, and releases what it drops
    retains = 2  ///< retains what it stores, and releases what it drops
};

/// References to objects, kept under an ownership mode. `Policy` retains and releases one object.
template <class Policy>
struct Counted_References {
    using Element = typename Policy::Element;
    using Equality = Own_Equality;
    using Less = Own_Less;
    static constexpr bool is_plain = false;
    static constexpr bool holds_objects = false;
    static constexpr bool zero_filled = true;

    std::uint32_t mode;

    struct Fresh {
    };
    Counted_References fresh(Fresh &) const noexcept { return *this; }
    void take(Fresh) const noexcept {}

    /// In the array's own block the slots above the count are nil: it starts zero-filled and keeps no dropped
    /// reference. Storage set from outside is not written.
    bool open(Element *, std::uint32_t, std::uint32_t) const noexcept { return true; }
    void adopt(std::uint32_t) const noexcept {}
    void disown() const noexcept {}

    void close(Element *data, std::uint32_t from, std::uint32_t to) const noexcept
    {
        for (std::uint32_t i = from; i < to; ++i) {
            drop(data[i]);
            data[i] = Element{};
        }
    }

    void destroy(Element *data, std::uint32_t from, std::uint32_t count) const noexcept
    {
        for (std::uint32_t i = from; i < count; ++i)
            drop(data[i]);
    }

    bool prepare(Element *, Element const *, std::uint32_t) const noexcept { return true; }

    /// The source's references are the caller's: mode 1 takes them over.
    void assign(Element *slots, Element const *source, std::uint32_t n) const noexcept
    {
        replace_each(slots, source, n, mode == retains);
    }

    /// The source's references stay with another array: modes 1 and 2 both retain.
    void assign_shared(Element *slots, Element const *source, std::uint32_t n) const noexcept
    {
        replace_each(slots, source, n, mode != borrows);
    }

    void open_gap(Element *data, std::uint32_t count, std::uint32_t at, std::uint32_t n) const noexcept
    {
        std::copy_backward(data + at, data + count, data + count + n);
        std::fill(data + at, data + at + n, Element{});
    }

    void close_gap(Element *data, std::uint32_t count, std::uint32_t at, std::uint32_t n) const noexcept
    {
        destroy(data, at, at + n);
        std::copy(data + at + n, data + count, data + at);
        std::fill(data + count - n, data + count, Element{});
    }

private:
    void drop(Element object) const noexcept
    {
        if (mode != borrows && object != Element{})
            Policy::release(object);
    }

    void replace_each(Element *slots, Element const *source, std::uint32_t n, bool retain) const noexcept
    {
        for (std::uint32_t i = 0; i < n; ++i) {
            const Element stored = source[i];
            const Element dropped = slots[i];
            // Retain before release: both may be the same object.
            if (retain && stored != Element{})
                Policy::retain(stored);
            slots[i] = stored;
            drop(dropped);
        }
    }
};

/// Objects that the array creates itself, one per slot, and keeps above the count for reuse. Storing an
/// element copies its contents into the slot's object. `Policy` creates, compares and releases objects, and
/// copies contents after making room for them.
template <class Policy>
struct Held_Objects {
    using Element = typename Policy::Element;
    struct Equality {
        bool operator()(Element left, Element right) const noexcept { return Policy::equal(left, right); }
    };
    struct Less {
        bool operator()(Element left, Element right) const noexcept { return Policy::precedes(left, right); }
    };
    static constexpr bool is_plain = false;
    static constexpr bool holds_objects = true;
    static constexpr bool zero_filled = true;

    /// The value of `held` while the slots belong to the caller.
    static constexpr std::uint32_t disowned = UINT32_MAX;

    std::uint32_t &held; ///< slots below this number hold an object that the array made

    struct Fresh {
        std::uint32_t held = 0;
    };
    Held_Objects fresh(Fresh &block) const noexcept { return {block.held}; }
    void take(Fresh block) const noexcept { held = block.held; }

    static std::uint64_t hash(Element object) noexcept { return Policy::hash(object); }

    /// Returns the number of slots that hold an object made by the array.
    std::uint32_t made() const noexcept { return held == disowned ? 0 : held; }

    void adopt(std::uint32_t count) const noexcept
    {
        if (held == disowned)
            held = count;
    }

    void disown() const noexcept { held = disowned; }

    bool open(Element *data, std::uint32_t, std::uint32_t to) const noexcept
    {
        // This many objects need far less than the reserve.
        constexpr std::uint32_t objects_per_reserve_check = 64;
        for (const std::uint32_t first = held; held < to; ++held) {
            if ((held - first) % objects_per_reserve_check == 0 && !has_reserve())
                return false;
            const Element made = Policy::make();
            if (made == Element{})
                return false;
            data[held] = made;
        }
        return true;
    }

    void close(Element *, std::uint32_t, std::uint32_t) const noexcept {}

    void destroy(Element *data, std::uint32_t from, std::uint32_t) const noexcept
    {
        for (std::uint32_t i = from; i < made(); ++i) {
            Policy::release(data[i]);
            data[i] = Element{};
        }
        if (held != disowned)
            held = std::min(held, from);
    }

    bool prepare(Element *slots, Element const *source, std::uint32_t n) const noexcept
    {
        for (std::uint32_t i = 0; i < n; ++i)
            if (slots[i] != source[i] && !Policy::make_room(slots[i], source[i]))
                return false;
        return true;
    }

    void assign(Element *slots, Element const *source, std::uint32_t n) const noexcept
    {
        for (std::uint32_t i = 0; i < n; ++i)
            if (slots[i] != source[i])
                Policy::copy(slots[i], source[i]);
    }

    void assign_shared(Element *slots, Element const *source, std::uint32_t n) const noexcept
    {
        assign(slots, source, n);
    }

    void open_gap(Element *data, std::uint32_t count, std::uint32_t at, std::uint32_t n) const noexcept
    {
        std::rotate(data + at, data + count, data + count + n);
    }

    void close_gap(Element *data, std::uint32_t count, std::uint32_t at, std::uint32_t n) const noexcept
    {
        std::rotate(data + at, data + at + n, data + count);
    }
};

} // namespace zeb::engine
