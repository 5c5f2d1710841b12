/// Random walks of every operation that grows or stores against a model, for each kind of element, with an
/// allocator that fails now and then: nothing is lost, nothing is leaked, every failure is told once.
#include "arrays/engine/storage/fill.hpp"
#include "arrays/engine/storage/occurrences.hpp"
#include "arrays/engine/storage/ordered_insertion.hpp"
#include "arrays/engine/storage/permutation.hpp"
#include "arrays/engine/storage/replacement.hpp"
#include "core/engine/namespace.hpp"
#include "tests/arrays/walked_families.hpp"
#include "tests/reference/array_growth.hpp"
#include "tests/reference/vector_algorithms.hpp"

#include <gtest/gtest.h>

using namespace walked;

namespace zeb::engine
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

} // namespace zeb::engine

namespace
{

template <class Family>
class Storage_Walk : public testing::Test
{
protected:
    using Kind = typename Family::Kind;
    using Element = typename Kind::Element;

    using Elements = engine::Elements_Of<Kind>;

    engine::Array_Storage<Kind> storage()
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

    /// What the operations tell.
    auto tell()
    {
        return [this](ZEB_Char_Span note) { notes.emplace_back(note.char_c_array, note.length); };
    }

    /// Fresh slots are undefined: gives them a value on both sides.
    void define_from(std::size_t first)
    {
        for (std::size_t i = first; i < count; ++i) {
            Element element = Family::make(Family::draw(random));
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
        takes_over = true;
        for (uint32_t i = 0; i < n; ++i) {
            values_given.push_back(Family::draw(random));
            given.push_back(Family::make(values_given.back()));
        }
    }

    Elements elements_given() const { return {given.data(), static_cast<uint32_t>(given.size())}; }

    void put_in_one(unsigned way, uint32_t at)
    {
        give(1);
        arm();
        if (way == 0) {
            engine::append_element(storage(), given[0], tell());
            model.insert_one(static_cast<uint32_t>(model.elements.size()), values_given[0]);
        } else if (way == 1) {
            engine::insert_element(storage(), given[0], at, tell());
            model.insert_one(at, values_given[0]);
        } else {
            engine::copy_element(storage(), given[0], tell());
            model.make_room_for(1);
            model.elements.assign(1, values_given[0]);
        }
    }

    void put_in_many(unsigned way, uint32_t at, uint32_t n)
    {
        const bool replaces = way == 2 && at < count;
        if (way != 2 || replaces)
            give(n);
        arm();
        if (way == 0) {
            engine::append_elements(storage(), elements_given(), tell());
            model.insert_many(static_cast<uint32_t>(model.elements.size()), values_given);
        } else if (way == 1) {
            engine::insert_elements(storage(), elements_given(), at, tell());
            model.insert_many(at, values_given);
        } else if (replaces) {
            engine::replace_element(storage(), at, elements_given(), tell());
            model.replace(at, values_given);
        } else if (way == 3) {
            engine::set_contents(storage(), elements_given(), tell());
            model.assign(values_given);
        }
    }

    /// Elements of its own, as if they had been copied first.
    void put_in_own(unsigned way, uint32_t at)
    {
        const uint32_t first = count == 0 ? 0 : random() % count;
        const uint32_t length = count == 0 ? 0 : random() % (count - first + 1);
        const std::vector<int> own(model.elements.begin() + first, model.elements.begin() + first + length);
        const Elements source{data + first, length};
        arm();
        if (way == 0) {
            engine::insert_elements(storage(), source, at, tell());
            model.insert_many(at, own);
        } else if (way == 1 && at < count) {
            engine::replace_element(storage(), at, source, tell());
            model.replace(at, own);
        } else if (way == 2) {
            engine::set_contents(storage(), source, tell());
            model.assign(own);
        }
    }

    /// Where the order says, asked by value; an equal element stays alone.
    void insert_ordered()
    {
        give(1);
        arm();
        const auto place = reference::ordered_insert(
            model.elements, values_given[0],
            [](const int *key, const int *element) { return reference::own_comparison(key, element); });
        const auto compare = [](const Element *key, const Element *element) {
            const int key_value = Family::value_of(*key), value = Family::value_of(*element);
            return reference::own_comparison(&key_value, &value);
        };
        takes_over = place.inserts;
        const uint32_t answer = engine::ordered_insert(storage(), given[0], compare, true, tell());
        ASSERT_EQ(answer, notes.empty() ? place.index : ZEB_NOT_FOUND);
        if (place.inserts)
            model.insert_one(place.index, values_given[0]);
    }

    /// Occurrences of a run of its own.
    void replace_occurrences(uint32_t at)
    {
        give(random() % 5);
        const uint32_t length = std::min<uint32_t>(random() % 3, count - at);
        const std::vector<int> pattern(model.elements.begin() + at, model.elements.begin() + at + length);
        arm();
        takes_over = false;
        engine::replace_occurrences(storage(), {data + at, length}, given, tell());
        const bool finds = reference::replace_occurrences(model.elements, pattern, values_given) != 0;
        if (!finds || values_given.size() <= length)
            return;
        if (Kind::is_plain)
            model.capacity = 0; // a new block, whatever the old one had room for
        model.make_room_for(static_cast<uint32_t>(model.elements.size()));
    }

    /// Contents change within the block, and may need memory where elements are objects.
    void store(unsigned way, uint32_t at, uint32_t n)
    {
        give(1);
        std::vector<uint32_t> permutation(n);
        for (uint32_t &entry : permutation)
            entry = count == 0 ? 0 : random() % count;
        const engine::Vector_Storage<Kind> vector = storage();
        arm();
        takes_over = at < count && way < 2;
        if (way == 0) {
            engine::fill_range_with(vector, {at, at + n}, given[0], tell());
            for (uint32_t i = at; i <= at + n && i < count; ++i)
                model.elements[i] = values_given[0];
        } else if (way == 1 && at < count) {
            const int replaced = model.elements[at];
            engine::replace_every(vector, data[at], given[0], tell());
            reference::replace_equal(model.elements, replaced, values_given[0]);
        } else if (way == 2 && count != 0) {
            engine::permute(vector, permutation, engine::Permutation_Way::inverse, tell());
            reference::apply_inverse_permutation(model.elements, permutation);
        }
    }

    void decode(uint32_t n)
    {
        std::vector<int> values(n);
        for (int &value : values)
            value = Family::draw(random);
        const std::string record = Family::record(values);
        arm();
        Family::decode(storage(), {record.data(), static_cast<uint32_t>(record.size()), false}, tell());
        if (!values.empty())
            model.make_room_for(static_cast<uint32_t>(values.size()));
        model.elements = values;
    }

    /// A block of exactly the capacity that is asked for, or of the elements where those are more.
    void copy_into_new_block(bool own, uint32_t n)
    {
        if (!own)
            give(n);
        const std::vector<int> values = own ? model.elements : values_given;
        const Element *const source = own ? data : given.data();
        const auto whose = own ? engine::Source::of_another_array : engine::Source::of_the_caller;
        const auto length = static_cast<uint32_t>(values.size());
        const uint32_t wanted = random() % 60;
        arm();
        engine::replace_with_copy(engine::Vector_Storage<Kind>(storage()), whose, source, length, wanted,
                                  capacity, tell());
        model.elements = values;
        model.capacity = std::max(wanted, length);
    }

    /// The array views elements that are not its own, refuses to grow, and takes a copy at last.
    void be_a_link(bool sets, uint32_t n)
    {
        give(n);
        takes_over = false;
        engine::finish(engine::Vector_Storage<Kind>(storage()));
        data = given.data();
        count = n;
        marker = engine::link_marker_of_links + random() % 2;
        capacity = engine::capacity_of_links;
        expect_refusals();
        arm();
        if (sets)
            engine::set_contents(storage(), {data, count, engine::Source::of_another_array}, tell());
        else
            engine::replace_with_copy(engine::Vector_Storage<Kind>(storage()),
                                      engine::Source::of_another_array, data, count, n + 1, capacity, tell());
        model.capacity = sets ? 0 : n + 1;
        model.assign(values_given);
        if (!notes.empty())
            start_anew();
    }

    /// After a copy that could not be had, the link is as it was.
    void start_anew()
    {
        expect_one_failure();
        notes.clear();
        ASSERT_EQ(data, given.data());
        ASSERT_EQ(count, given.size());
        ASSERT_GE(marker, engine::link_marker_of_links);
        ASSERT_EQ(capacity, engine::capacity_of_links);
        data = nullptr;
        count = marker = capacity = model.capacity = 0;
        model.elements.clear();
    }

    void expect_refusals()
    {
        namespace notes = engine::notes;
        const auto array = storage();
        const Elements one{given.data(), std::min<uint32_t>(count, 1)};
        const Element element = count == 0 ? Element{} : given[0];
        const std::span<const Element> run(given.data(), given.size());
        const auto less = [](const Element *, const Element *) { return ZEB_COMPARED_LESS; };
        refuses(notes::trim_through_link, [&] { engine::trim(array, tell()); });
        refuses(notes::length_through_link, [&] { engine::set_length(array, 1, tell()); });
        refuses(notes::room_through_link, [&] { engine::extend_length(array, 1, tell()); });
        refuses(notes::room_through_link, [&] { engine::ensure_room(array, 1, tell()); });
        refuses(notes::capacity_through_link, [&] { engine::ensure_capacity_above(array, 1, tell()); });
        refuses(notes::copy_element_through_link, [&] { engine::copy_element(array, element, tell()); });
        refuses(notes::append_element_through_link, [&] { engine::append_element(array, element, tell()); });
        refuses(count == 0 ? engine::Char_Span{} : notes::append_array_through_link,
                [&] { engine::append_elements(array, one, tell()); });
        refuses(notes::insert_element_through_link,
                [&] { engine::insert_element(array, element, 0, tell()); });
        refuses(notes::insert_array_through_link, [&] { engine::insert_elements(array, one, 0, tell()); });
        refuses(notes::replace_element_through_link, [&] { engine::replace_element(array, 0, one, tell()); });
        refuses(notes::insert_element_through_link,
                [&] { engine::ordered_insert(array, element, less, true, tell()); });
        refuses(notes::replace_occurrences_through_link,
                [&] { engine::replace_occurrences(array, run, run, tell()); });
        refuses(notes::decode_through_link, [&] { Family::decode(array, {"\0\0\0", 4, false}, tell()); });
    }

    /// The note, or none for an empty one; the link stays what it is.
    template <class Work>
    void refuses(ZEB_Char_Span note, Work work)
    {
        const uint32_t marker_before = marker;
        work();
        const std::vector<std::string> expected(note.length != 0, {note.char_c_array, note.length});
        EXPECT_EQ(std::exchange(notes, {}), expected);
        EXPECT_EQ(data, given.data());
        EXPECT_EQ(values(), values_given);
        EXPECT_EQ(marker, marker_before);
        EXPECT_EQ(capacity, engine::capacity_of_links);
    }

    void change_size(unsigned way, uint32_t n)
    {
        const auto before = static_cast<uint32_t>(model.elements.size());
        arm();
        if (way == 0) {
            engine::set_length(storage(), n, tell());
            model.resize(n);
        } else if (way == 1) {
            engine::extend_length(storage(), n, tell());
            model.resize(before + n);
        } else if (way == 2) {
            engine::ensure_room(storage(), n, tell());
            model.make_room_for(before + n);
        } else if (way == 3) {
            engine::ensure_capacity_above(storage(), n, tell());
            model.make_room_for(n);
        } else if (way == 4) {
            engine::trim(storage(), tell());
            model.trim();
        } else {
            engine::change_count(engine::Vector_Storage<Kind>(storage()), before / 8, tell());
            model.elements.resize(before / 8);
        }
    }

    /// Lets one of the next calls of the allocator fail, in one step of three.
    void arm() { calls_until_failure = random() % 3 == 0 ? static_cast<int>(random() % 3) : -1; }

    void take_a_step()
    {
        give(0);
        const uint32_t at = count == 0 ? 0 : random() % (count + 1);
        const uint32_t n = random() % 40;
        switch (count > 300 ? 9 : random() % 10) {
        case 0:
            return put_in_one(random() % 3, at);
        case 1:
            return put_in_many(random() % 4, at, n);
        case 2:
            return put_in_own(random() % 3, at);
        case 3:
            return insert_ordered();
        case 4:
            return replace_occurrences(at);
        case 5:
            return random() % 4 == 0 ? decode(n) : void();
        case 6:
            return random() % 2 == 0 ? copy_into_new_block(random() % 2 == 0, n) : void();
        case 7:
            return store(random() % 3, at, n);
        case 8:
            return random() % 8 == 0 ? be_a_link(random() % 2 == 0, n) : void();
        default:
            return change_size(count > 300 ? 5 : random() % 6, n);
        }
    }

    void expect_one_failure()
    {
        ASSERT_EQ(notes.size(), 1u);
        ASSERT_TRUE(notes[0] == "Runtime error in allocate macro" ||
                    notes[0] == "Runtime error in reallocate macro");
        ++failures;
    }

    Family family;
    Element *data = nullptr;
    uint32_t count = 0;
    uint32_t marker = 0;
    uint32_t capacity = 0;
    reference::Grown_Array model;
    std::vector<Element> given;
    std::vector<int> values_given;
    bool takes_over = true; ///< whether a step takes over what it is given, in mode 1
    std::vector<std::string> notes;
    int failures = 0;
    std::mt19937 random{20240229};
};

using Families =
    testing::Types<Plain_Array, Counted_Array<engine::retains>, Counted_Array<engine::adopts>, Held_Array>;
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
            this->expect_one_failure();
            this->model.elements = before.elements;
            // An object that could not be made leaves the block that had grown for it.
            this->model.capacity = TypeParam::makes_objects ? this->capacity : before.capacity;
        }
        for (const auto element : this->given)
            TypeParam::settle(element, !failed && this->takes_over);
        ASSERT_EQ(this->count, this->model.elements.size());
        if (!failed && this->given.empty() && this->count > before.elements.size() &&
            this->model.elements.back() == 0)
            this->define_from(before.elements.size());
        ASSERT_EQ(this->values(), this->model.elements);
        ASSERT_EQ(this->capacity, this->model.capacity);
        ASSERT_EQ(this->marker, 0u);
    }
    EXPECT_GT(this->failures, step_count / 100);
    engine::finish(engine::Vector_Storage<typename TypeParam::Kind>(this->storage()));
    EXPECT_EQ(live_blocks, 0);
    EXPECT_EQ(live_objects, 0);
}
