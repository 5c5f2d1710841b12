/// Random walks of every growing operation against a model, for each kind of element, with an allocator
/// that fails now and then: nothing is lost, nothing is leaked, every failure is told once.
#include "arrays/engine/allocator.hpp"
#include "arrays/engine/counting.hpp"
#include "arrays/engine/editing.hpp"
#include "arrays/engine/element_kinds.hpp"
#include "tests/reference/array_growth.hpp"

#include <gtest/gtest.h>

#include <cstdlib>
#include <random>
#include <string>

namespace
{

int calls_until_failure = -1; ///< negative: the allocator never fails
int live_blocks = 0;
int live_objects = 0;

bool fails_now() { return calls_until_failure >= 0 && calls_until_failure-- == 0; }

} // namespace

namespace zeb
{

void *reallocate(void *block, std::size_t size) noexcept
{
    if (fails_now())
        return nullptr;
    live_blocks += block == nullptr;
    return std::realloc(block, size);
}

void release(void *block) noexcept
{
    live_blocks -= block != nullptr;
    std::free(block);
}

} // namespace zeb

namespace
{

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

struct Box {
    int value = 0;
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
    static void copy(Element into, Element from) { into->value = from->value; }
    static bool equal(Element left, Element right) { return left->value == right->value; }
    static void release(Element box)
    {
        --live_objects;
        delete box;
    }
};

/// A family: how values get into elements and out of them, and how the caller's reference is settled.
struct Plain_Array {
    using Kind = zeb::Plain_Elements<int>;
    static constexpr bool makes_objects = false;
    Kind kind() { return {}; }
    static int make(int value) { return value; }
    static void settle(int, bool) {}
    static int value_of(int element) { return element; }
};

template <zeb::Ownership_Mode mode>
struct Counted_Array {
    using Kind = zeb::Counted_References<Counting_Policy>;
    static constexpr bool makes_objects = false;
    Kind kind() { return {mode}; }
    static Counted_Object *make(int value)
    {
        ++live_objects;
        return new Counted_Object{value};
    }
    /// In mode 1 the array has taken the caller's reference over.
    static void settle(Counted_Object *object, bool is_stored)
    {
        if (mode == zeb::retains || !is_stored)
            Counting_Policy::release(object);
    }
    static int value_of(Counted_Object *object) { return object == nullptr ? 0 : object->value; }
};

struct Held_Array {
    using Kind = zeb::Held_Objects<Box_Policy>;
    static constexpr bool makes_objects = true;
    uint32_t held = 0;
    Kind kind() { return {held}; }
    static Box *make(int value) { return new Box{value}; }
    static void settle(Box *box, bool) { delete box; }
    static int value_of(Box *box) { return box->value; }
};

template <class Family>
class Storage_Walk : public testing::Test
{
protected:
    using Kind = typename Family::Kind;
    using Element = typename Kind::Element;

    using Elements = zeb::Elements_Of<Kind>;

    zeb::Array_Storage<Kind> storage()
    {
        return {{data, count, marker, family.kind()}, capacity, model.seed};
    }

    std::vector<int> values()
    {
        std::vector<int> found;
        for (const Element element : storage().elements())
            found.push_back(Family::value_of(element));
        return found;
    }

    void report(ZEB_Char_Span note) { notes.emplace_back(note.char_c_array, note.length); }

    /// Fresh slots are undefined: gives them a value on both sides.
    void define_from(std::size_t first)
    {
        for (std::size_t i = first; i < count; ++i) {
            Element element = Family::make(static_cast<int>(random() % 100) + 1);
            model.elements[i] = Family::value_of(element);
            storage().kind.assign(data + i, &element, 1);
            Family::settle(element, true);
        }
    }

    /// Makes the elements that a step is given.
    void give(uint32_t n)
    {
        given.clear();
        values_given.clear();
        for (uint32_t i = 0; i < n; ++i) {
            values_given.push_back(static_cast<int>(random() % 100) + 1);
            given.push_back(Family::make(values_given.back()));
        }
    }

    Elements elements_given() const { return {given.data(), static_cast<uint32_t>(given.size())}; }

    void put_in_one(unsigned way, uint32_t at)
    {
        give(1);
        arm();
        const auto tell = [this](ZEB_Char_Span note) { report(note); };
        if (way == 0) {
            zeb::append_element(storage(), given[0], tell);
            model.insert_one(static_cast<uint32_t>(model.elements.size()), values_given[0]);
        } else if (way == 1) {
            zeb::insert_element(storage(), given[0], at, tell);
            model.insert_one(at, values_given[0]);
        } else {
            zeb::copy_element(storage(), given[0], tell);
            model.make_room_for(1);
            model.elements.assign(1, values_given[0]);
        }
    }

    void put_in_many(unsigned way, uint32_t at, uint32_t n)
    {
        const bool replaces = way == 2 && at < count;
        give(way == 2 && !replaces ? 0 : n);
        arm();
        const auto tell = [this](ZEB_Char_Span note) { report(note); };
        if (way == 0) {
            zeb::append_elements(storage(), elements_given(), tell);
            model.insert_many(static_cast<uint32_t>(model.elements.size()), values_given);
        } else if (way == 1) {
            zeb::insert_elements(storage(), elements_given(), at, tell);
            model.insert_many(at, values_given);
        } else if (replaces) {
            zeb::replace_element(storage(), at, elements_given(), tell);
            model.replace(at, values_given);
        } else if (way == 3) {
            zeb::set_contents(storage(), elements_given(), tell);
            model.assign(values_given);
        }
    }

    /// Elements of its own, as if they had been copied first.
    void put_in_own(unsigned way, uint32_t at)
    {
        give(0);
        const uint32_t first = count == 0 ? 0 : random() % count;
        const uint32_t length = count == 0 ? 0 : random() % (count - first + 1);
        const std::vector<int> own(model.elements.begin() + first, model.elements.begin() + first + length);
        const Elements source{data + first, length};
        arm();
        const auto tell = [this](ZEB_Char_Span note) { report(note); };
        if (way == 0) {
            zeb::insert_elements(storage(), source, at, tell);
            model.insert_many(at, own);
        } else if (way == 1 && at < count) {
            zeb::replace_element(storage(), at, source, tell);
            model.replace(at, own);
        } else if (way == 2) {
            zeb::set_contents(storage(), source, tell);
            model.assign(own);
        }
    }

    void change_size(unsigned way, uint32_t n)
    {
        give(0);
        const auto before = static_cast<uint32_t>(model.elements.size());
        arm();
        const auto tell = [this](ZEB_Char_Span note) { report(note); };
        if (way == 0) {
            zeb::set_length(storage(), n, tell);
            model.resize(n);
        } else if (way == 1) {
            zeb::extend_length(storage(), n, tell);
            model.resize(before + n);
        } else if (way == 2) {
            zeb::ensure_room(storage(), n, tell);
            model.make_room_for(before + n);
        } else if (way == 3) {
            zeb::ensure_capacity_above(storage(), n, tell);
            model.make_room_for(n);
        } else if (way == 4) {
            zeb::trim(storage(), tell);
            model.trim();
        } else {
            zeb::change_count(zeb::Vector_Storage<Kind>(storage()), before / 8, tell);
            model.elements.resize(before / 8);
        }
    }

    /// Lets one of the next calls of the allocator fail, in one step of three.
    void arm() { calls_until_failure = random() % 3 == 0 ? static_cast<int>(random() % 3) : -1; }

    void take_a_step()
    {
        const uint32_t at = count == 0 ? 0 : random() % (count + 1);
        const uint32_t n = random() % 40;
        switch (count > 300 ? 3 : random() % 4) {
        case 0:
            return put_in_one(random() % 3, at);
        case 1:
            return put_in_many(random() % 4, at, n);
        case 2:
            return put_in_own(random() % 3, at);
        default:
            return change_size(count > 300 ? 5 : random() % 6, n);
        }
    }

    Family family;
    Element *data = nullptr;
    uint32_t count = 0;
    uint32_t marker = 0;
    uint32_t capacity = 0;
    reference::Grown_Array model;
    std::vector<Element> given;
    std::vector<int> values_given;
    std::vector<std::string> notes;
    std::mt19937 random{20240229};
};

using Families =
    testing::Types<Plain_Array, Counted_Array<zeb::retains>, Counted_Array<zeb::adopts>, Held_Array>;
TYPED_TEST_SUITE(Storage_Walk, Families);

constexpr int step_count = 20000;

} // namespace

TYPED_TEST(Storage_Walk, follows_the_model_and_survives_every_failed_allocation)
{
    for (int step = 0; step < step_count; ++step) {
        SCOPED_TRACE(step);
        if (this->random() % 400 == 0)
            this->model.seed = 1 + this->random() % 20;
        const reference::Grown_Array before = this->model;
        this->notes.clear();
        this->take_a_step();
        calls_until_failure = -1;
        const bool failed = !this->notes.empty();
        if (failed) {
            ASSERT_EQ(this->notes.size(), 1u);
            ASSERT_TRUE(this->notes[0] == "Runtime error in allocate macro" ||
                        this->notes[0] == "Runtime error in reallocate macro");
            this->model.elements = before.elements;
            // An object that could not be made leaves the block that had grown for it.
            this->model.capacity = TypeParam::makes_objects ? this->capacity : before.capacity;
        }
        for (const auto element : this->given)
            TypeParam::settle(element, !failed);
        ASSERT_EQ(this->count, this->model.elements.size());
        if (!failed && this->given.empty() && this->count > before.elements.size() &&
            this->model.elements.back() == 0)
            this->define_from(before.elements.size());
        ASSERT_EQ(this->values(), this->model.elements);
        ASSERT_EQ(this->capacity, this->model.capacity);
    }
    zeb::finish(zeb::Vector_Storage<typename TypeParam::Kind>(this->storage()));
    EXPECT_EQ(live_blocks, 0);
    EXPECT_EQ(live_objects, 0);
}
