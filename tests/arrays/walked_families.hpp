/// An allocator that fails when told to, and a family of each element kind whose objects are counted.
#pragma once

#include "arrays/engine/allocator.hpp"
#include "arrays/engine/storage/element_kinds.hpp"
#include "arrays/engine/storage/insertion.hpp"
#include "core/engine/namespace.hpp"
#include "encoding/engine/binary_record.hpp"

#include <cstdlib>
#include <random>
#include <string>
#include <vector>

namespace walked
{

inline int calls_until_failure = -1; ///< negative: the allocator never fails
inline int live_blocks = 0;
inline int live_objects = 0;

inline bool fails_now() { return calls_until_failure >= 0 && calls_until_failure-- == 0; }

inline void append_bytes(std::string &record, const void *bytes, std::size_t size)
{
    record.append(static_cast<const char *>(bytes), size);
}

/// The record of so many plain elements.
inline std::string record_of(const std::vector<int> &elements)
{
    const auto count = static_cast<std::uint32_t>(elements.size());
    std::string record;
    append_bytes(record, &count, sizeof count);
    append_bytes(record, elements.data(), count * sizeof(int));
    return record;
}

struct Counted_Object {
    int value;
    int references = 1;
};

struct Counting_Policy {
    using Element = Counted_Object *;
    static void retain(Element object) { ++object->references; }
    static void release(Element object)
    {
        if (--object->references == 0) {
            delete object;
            --live_objects;
        }
    }
};

/// An object with contents of its own, which take memory: three times its value, so many times.
struct Box {
    int *data = nullptr;
    std::uint32_t count = 0;
    std::uint32_t marker = 0;
    std::uint32_t capacity = 0;

    engine::Array_Storage<engine::Plain_Elements<int>> storage()
    {
        return {{data, count, marker, {}}, capacity, 4};
    }
    int value() const { return count == 0 ? 0 : data[0]; }
    static std::vector<int> contents(int value)
    {
        return std::vector<int>(static_cast<size_t>(3 * value), value);
    }
    void set(int value)
    {
        const std::vector<int> all = contents(value);
        engine::set_contents(storage(), {all.data(), static_cast<std::uint32_t>(all.size())},
                             [](ZEB_Char_Span) {});
    }
};

struct Box_Policy {
    using Element = Box *;
    static Element make()
    {
        if (fails_now())
            return nullptr;
        ++live_objects;
        return new Box;
    }
    static bool make_room(Element into, Element from)
    {
        return engine::grow(into->storage(), from->count, [](ZEB_Char_Span) {});
    }
    static void copy(Element into, Element from)
    {
        engine::set_contents(into->storage(), {from->data, from->count}, [](ZEB_Char_Span) { std::abort(); });
    }
    static bool equal(Element left, Element right) { return left->value() == right->value(); }
    static void release(Element box)
    {
        --live_objects;
        engine::finish(engine::Vector_Storage(box->storage()));
        delete box;
    }
};

/// How values get into a family's elements and out of them, how the caller's reference is settled, and
/// what record holds them.
struct Plain_Array {
    using Kind = engine::Plain_Elements<int>;
    static constexpr bool makes_objects = false;
    Kind kind() { return {}; }
    static int draw(std::mt19937 &random) { return static_cast<int>(random() % 8) + 1; }
    static int make(int value) { return value; }
    static void settle(int, bool) {}
    static int value_of(int element) { return element; }
    static std::string record(const std::vector<int> &values) { return record_of(values); }
    template <class Report>
    static void decode(engine::Array_Storage<Kind> array, engine::Record_Source source, Report report)
    {
        engine::decode_plain(array, source, report);
    }
};

template <engine::Ownership_Mode mode>
struct Counted_Array {
    using Kind = engine::Counted_References<Counting_Policy>;
    static constexpr bool makes_objects = false;
    Kind kind() { return {mode}; }
    /// References are told by identity, and so no two objects have one value.
    static int draw(std::mt19937 &)
    {
        static int last = 0;
        return ++last;
    }
    static Counted_Object *make(int value)
    {
        ++live_objects;
        return new Counted_Object{value};
    }
    /// In mode 1 the array has taken the caller's reference over.
    static void settle(Counted_Object *object, bool is_taken_over)
    {
        if (mode == engine::retains || !is_taken_over)
            Counting_Policy::release(object);
    }
    static int value_of(Counted_Object *object) { return object == nullptr ? 0 : object->value; }
    /// No record holds references.
    static std::string record(std::vector<int> &values)
    {
        values.clear();
        return record_of(values);
    }
    template <class Report>
    static void decode(engine::Array_Storage<Kind> array, engine::Record_Source source, Report report)
    {
        engine::decode_references(array, source, report, [] { std::abort(); });
    }
};

struct Held_Array {
    using Kind = engine::Held_Objects<Box_Policy>;
    static constexpr bool makes_objects = true;
    std::uint32_t held = 0;
    Kind kind() { return {held}; }
    static int draw(std::mt19937 &random) { return Plain_Array::draw(random); }
    static Box *make(int value)
    {
        ++live_objects;
        Box *const box = new Box;
        box->set(value);
        return box;
    }
    static void settle(Box *box, bool) { Box_Policy::release(box); }
    static int value_of(Box *box) { return box->value(); }
    static std::string record(const std::vector<int> &values)
    {
        const auto count = static_cast<std::uint32_t>(values.size());
        std::string record;
        append_bytes(record, &count, sizeof count);
        for (const int value : values)
            record += record_of(Box::contents(value));
        return record;
    }
    template <class Report>
    static void decode(engine::Array_Storage<Kind> array, engine::Record_Source source, Report report)
    {
        engine::decode_held(
            array, source, [](Box *box) { return box->storage(); }, report);
    }
};

} // namespace walked
