/// Every algorithm of every family, on owners and links, by the own order and by a caller's comparison,
/// against its plainest form.
#include "tests/arrays/family_operations.hpp"
#include "tests/reference/vector_algorithms.hpp"
#include "tests/support/captured.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <numeric>
#include <random>

using namespace support;

namespace
{

/// What the plain ways make of an input.
class Expectation
{
public:
    Expectation(const Family_Operations &family, Place place, const Input &input)
        : family(family), place(place), in(input), all(input.elements),
          count(size_of(input.elements)), asked{input.manner, input.seed}
    {
        out.indexes = input.indexes;
    }

    Outcome of(Operation operation)
    {
        if (operation < Operation::set)
            out.answer = search(operation);
        else if (operation < Operation::permute)
            change(operation);
        else if (!needs_an_array(operation))
            rearrange(operation);
        else
            grow(operation);
        const auto end = all.begin() + count;
        out.elements.assign(all.begin(), end);
        if (is_link(place)) {
            out.beyond = before_link;
            if (family.leaves_what_it_drops())
                out.beyond.insert(out.beyond.end(), end, all.end());
            out.beyond.insert(out.beyond.end(), after_link.begin(), after_link.end());
        }
        out.asked = asked.asked;
        return out;
    }

private:
    static uint32_t size_of(const Numbers &numbers) { return static_cast<uint32_t>(numbers.size()); }

    auto equal() const
    {
        return [this](uint32_t left, uint32_t right) { return family.are_equal(left, right); };
    }
    auto less() const
    {
        return [this](uint32_t left, uint32_t right) { return family.precedes(left, right); };
    }
    auto own() const
    {
        return [this](const uint32_t *key, const uint32_t *element) -> ZEB_Comparison {
            if (family.precedes(*key, *element))
                return ZEB_COMPARED_LESS;
            return family.precedes(*element, *key) ? ZEB_COMPARED_GREATER : ZEB_COMPARED_EQUAL;
        };
    }
    int64_t position_of(const uint32_t *element) const
    {
        const std::less<> before;
        const bool is_own = !before(element, all.data()) && before(element, all.data() + all.size());
        return is_own ? element - all.data() : -1;
    }
    auto ask()
    {
        return [this](const uint32_t *key, const uint32_t *element) {
            return asked.answer({position_of(key), position_of(element)}, own()(key, element));
        };
    }

    uint32_t told(reference::Ordered found)
    {
        out.reports += found.warned;
        return found.index;
    }

    uint64_t search(Operation operation)
    {
        switch (operation) {
        case Operation::first_index:
            return reference::first_index_of(all, in.key, equal());
        case Operation::last_index:
            return reference::last_index_of(all, in.key, equal());
        case Operation::first_index_of_run:
            return reference::first_index_of_subsequence(all, in.run, equal());
        case Operation::minimum:
            return count == 0 ? family.nothing() : reference::minimum(all, less());
        case Operation::maximum:
            return count == 0 ? family.nothing() : reference::maximum(all, less());
        case Operation::both_extremes:
            return static_cast<uint32_t>(100 * search(Operation::minimum) + search(Operation::maximum));
        case Operation::equal_to_vector:
            return all == in.run;
        case Operation::equal_to_collection:
            return reference::same_values(all, in.run, equal());
        case Operation::ordered_find:
            return told(reference::ordered_find(all, in.key, own()));
        case Operation::ordered_find_asked:
            return told(reference::ordered_find(all, in.key, ask()));
        case Operation::nearest:
            return told(reference::ordered_find_nearest(all, in.key, own()));
        default:
            return told(reference::ordered_find_nearest(all, in.key, ask()));
        }
    }

    void change(Operation operation)
    {
        const bool in_range = in.from < count;
        const bool both_in_range = in_range && in.to < count;
        switch (operation) {
        case Operation::set:
            all[in.from] = in.key;
            break;
        case Operation::set_from_end:
            all[count - 1 - in.from] = in.key;
            break;
        case Operation::swap:
            if (both_in_range)
                reference::swap(all, in.from, in.to);
            break;
        case Operation::move:
            if (both_in_range)
                reference::move(all, in.from, in.to);
            break;
        case Operation::fill:
            all.assign(count, in.key);
            break;
        case Operation::fill_range:
            for (uint32_t i = in.from; i <= in.to && i < count; ++i)
                all[i] = in.key;
            break;
        case Operation::replace_every:
            out.answer = reference::replace_equal(all, in.key, in.other, equal());
            break;
        case Operation::remove_every:
            count = reference::remove_equal(all, in.key, equal());
            break;
        case Operation::remove_element:
            if (in_range)
                close_gap(in.from, in.from + 1);
            break;
        case Operation::remove_range:
        case Operation::replace_range:
            change_range(operation == Operation::replace_range);
            break;
        case Operation::reverse:
            reference::reverse(all);
            break;
        default:
            reference::transpose(all, in.from, in.to);
        }
    }

    void change_range(bool replaces)
    {
        if (in.to < in.from) {
            ++out.reports;
        } else if (in.from < count) {
            if (replaces)
                all[in.from] = in.key;
            close_gap(in.from + replaces, std::min(in.to, count - 1) + 1);
        }
    }

    /// What lies past the new count stays as it was.
    void close_gap(uint32_t start, uint32_t end)
    {
        for (uint32_t i = end; i < count; ++i)
            all[start + i - end] = all[i];
        count -= end - start;
    }

    void rearrange(Operation operation)
    {
        const auto own_less = [&](const uint32_t *later, const uint32_t *earlier) {
            return less()(*later, *earlier);
        };
        const auto asked_less = [&](const uint32_t *later, const uint32_t *earlier) {
            return ask()(later, earlier) == ZEB_COMPARED_LESS;
        };
        const uint32_t used = std::min(count, size_of(in.indexes));
        switch (operation) {
        case Operation::sort:
            return reference::sort(all, nullptr, own_less);
        case Operation::sort_asked:
            return reference::sort(all, nullptr, asked_less);
        case Operation::sort_with_permutation:
            return reference::sort(all, &out.indexes, own_less);
        case Operation::sort_asked_with_permutation:
            return reference::sort(all, &out.indexes, asked_less);
        default:
            if (std::any_of(in.indexes.begin(), in.indexes.begin() + used,
                            [&](uint32_t index) { return index >= count; }))
                ++out.reports;
            else if (operation == Operation::permute)
                reference::apply_permutation(all, in.indexes);
            else
                reference::apply_inverse_permutation(all, in.indexes);
        }
    }

    void grow(Operation operation)
    {
        if (operation == Operation::replace_occurrences)
            return replace_occurrences();
        const reference::Ordered place = operation == Operation::ordered_insert
                                             ? reference::ordered_insert(all, in.key, own())
                                             : reference::ordered_insert(all, in.key, ask());
        out.answer = place.inserts && !in.inserts ? ZEB_NOT_FOUND : told(place);
        if (place.inserts && in.inserts) {
            if (is_link(this->place))
                return refuse(ZEB_NOT_FOUND);
            all.insert(all.begin() + place.index, in.key);
            ++count;
        }
    }

    void replace_occurrences()
    {
        if (is_link(place))
            return refuse(0);
        out.answer = reference::replace_occurrences(all, in.run, in.replacement, equal());
        count = size_of(all);
    }

    void refuse(uint32_t answer)
    {
        ++out.reports;
        out.answer = answer;
    }

    const Family_Operations &family;
    Place place;
    const Input &in;
    Numbers all;
    uint32_t count;
    Comparison asked;
    Outcome out;
};

/// Draws inputs: few and many values, odd ones and ordinary ones, sorted ones for what asks for order.
class Inputs
{
public:
    explicit Inputs(const Family_Operations &family) : family(family) {}

    Input draw(Operation operation)
    {
        Input in{};
        const bool needs_one = operation == Operation::set || operation == Operation::set_from_end;
        const uint32_t longest = lengths[random() % std::size(lengths)];
        const uint32_t length = needs_one + random() % longest;
        const uint32_t alphabet = random() % 3 == 0 ? 3 : family.sample_count();
        const uint32_t first = random() % (family.sample_count() - alphabet + 1);
        const auto sample = [&] { return first + random() % alphabet; };
        in.elements = numbers(length, sample);
        if (is_ordered(operation) && random() % 4 != 0)
            reference::sort(in.elements, nullptr, [&](const uint32_t *later, const uint32_t *earlier) {
                return family.precedes(*later, *earlier);
            });
        in.key = length != 0 && random() % 2 == 0 ? in.elements[random() % length] : sample();
        in.other = sample();
        draw_places(in, operation, length);
        draw_runs(in, operation, sample);
        in.inserts = random() % 4 != 0;
        in.manner = static_cast<Comparison::Manner>(random() % 3);
        in.seed = static_cast<uint32_t>(random());
        return in;
    }

private:
    static constexpr uint32_t lengths[] = {3, 8, 40, 40, 40, 250};

    static bool is_ordered(Operation operation)
    {
        return (operation >= Operation::ordered_find && operation <= Operation::nearest_asked) ||
               operation == Operation::ordered_insert || operation == Operation::ordered_insert_asked;
    }

    template <class Sample>
    Numbers numbers(uint32_t length, Sample sample)
    {
        Numbers made(length);
        for (uint32_t &number : made)
            number = sample();
        return made;
    }

    void draw_places(Input &in, Operation operation, uint32_t length)
    {
        in.from = random() % (length + 2);
        in.to = random() % 8 == 0 ? UINT32_MAX : random() % (length + 2);
        if (operation == Operation::set || operation == Operation::set_from_end)
            in.from = random() % length;
        if (operation == Operation::transpose)
            draw_shape(in, length);
        if (operation == Operation::permute || operation == Operation::permute_back) {
            in.indexes = numbers(random() % (length + 5), [&] { return random() % std::max(length, 1u); });
            // Entries past the count are not read.
            for (size_t i = length; i < in.indexes.size(); ++i)
                in.indexes[i] = UINT32_MAX;
            if (!in.indexes.empty() && random() % 6 == 0)
                in.indexes[random() % in.indexes.size()] = length + random() % 2 * 1000;
        } else {
            in.indexes.resize(length + random() % 3);
            std::iota(in.indexes.begin(), in.indexes.end(), 0);
        }
    }

    /// Rows and columns; some whose product is the count only where it is cut to 32 bits.
    void draw_shape(Input &in, uint32_t length)
    {
        const bool overflows = length % 2 == 0 && random() % 4 == 0;
        in.from = overflows ? 2 : 1 + random() % 9;
        in.to = (overflows ? 1u << 31 : 0) + length / in.from;
    }

    template <class Sample>
    void draw_runs(Input &in, Operation operation, Sample sample)
    {
        const auto length = static_cast<uint32_t>(in.elements.size());
        const bool whole =
            operation == Operation::equal_to_vector || operation == Operation::equal_to_collection;
        const uint32_t start = whole || length == 0 ? 0 : random() % length;
        const uint32_t end = whole ? length : std::min<uint32_t>(start + random() % 5, length);
        in.run.assign(in.elements.begin() + start, in.elements.begin() + end);
        if (!in.run.empty() && random() % 4 == 0)
            in.run[random() % in.run.size()] = sample();
        if (random() % 8 == 0)
            in.run.push_back(sample());
        in.replacement = numbers(random() % 5, sample);
    }

    const Family_Operations &family;
    std::mt19937 random{20150930};
};

class Differential : public testing::TestWithParam<const Family_Operations *>
{
};

} // namespace

TEST_P(Differential, every_operation_ends_as_its_plainest_form_does)
{
    const Family_Operations &family = *GetParam();
    Inputs inputs(family);
    size_t reports = 0;
    const std::string told = standard_error_of([&] {
        for (int number = 0; number < static_cast<int>(Operation::count); ++number) {
            const auto operation = static_cast<Operation>(number);
            for (const Place place :
                 {Place::array, Place::link_to_array, Place::vector, Place::link_of_vector}) {
                if (needs_an_array(operation) && place >= Place::vector)
                    continue;
                for (int turn = 0; turn < 60; ++turn) {
                    const Input input = inputs.draw(operation);
                    const Outcome expected = Expectation(family, place, input).of(operation);
                    const Outcome found = family.perform(operation, place, input);
                    ASSERT_EQ(found.elements, expected.elements) << number << ' ' << static_cast<int>(place);
                    ASSERT_EQ(found.beyond, expected.beyond) << number;
                    ASSERT_EQ(found.indexes, expected.indexes) << number;
                    ASSERT_EQ(found.answer, expected.answer) << number << ' ' << static_cast<int>(place);
                    ASSERT_EQ(found.reports, expected.reports) << number;
                    ASSERT_TRUE(found.asked == expected.asked) << number;
                    reports += found.reports;
                }
            }
        }
    });
    EXPECT_EQ(static_cast<size_t>(std::count(told.begin(), told.end(), '\n')), reports);
    EXPECT_GT(reports, 0u);
}

INSTANTIATE_TEST_SUITE_P(Families, Differential, testing::ValuesIn(Family_Operations::all()),
                         [](const auto &family) { return std::string(family.param->name()); });
