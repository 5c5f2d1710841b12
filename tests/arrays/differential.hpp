/// What holds every family's algorithms against their plainest forms: inputs of samples told by their
/// numbers, a caller's comparison that keeps what it was asked, and the plain side of each operation.
#pragma once

#include "tests/reference/vector_algorithms.hpp"

#include <algorithm>
#include <functional>
#include <numeric>
#include <random>
#include <vector>

namespace differential
{

using Numbers = std::vector<uint32_t>;

/// What a comparison was asked: two positions among the elements, -1 for a key from elsewhere.
struct Question {
    int64_t key, element;
    bool operator==(const Question &) const = default;
};

template <class Element>
int64_t position_of(const Element *element, const Element *first, size_t count)
{
    const std::less<> before;
    return !before(element, first) && before(element, first + count) ? element - first : -1;
}

/// A caller's comparison: honest, or answering at random, or now and then with a code that means nothing.
/// Answers depend on the seed and on how often it was asked.
struct Comparison {
    enum Manner { honest, random, unknown_at_times } manner;
    uint32_t seed;
    std::vector<Question> asked = {};

    ZEB_Comparison answer(Question question, ZEB_Comparison truth)
    {
        asked.push_back(question);
        const uint32_t noise = (seed + static_cast<uint32_t>(asked.size())) * 2654435761u >> 11;
        if (manner == random)
            return noise % 5;
        return manner == unknown_at_times && noise % 5 == 0 ? noise % 10 : truth;
    }
};

/// How the samples of a family compare.
struct Samples {
    uint32_t count;
    std::function<bool(uint32_t, uint32_t)> equal, precedes;
    uint32_t nothing; ///< the one that an empty vector answers; ZEB_NOT_FOUND when none is that

    ZEB_Comparison compare(uint32_t key, uint32_t element) const
    {
        if (precedes(key, element))
            return ZEB_COMPARED_LESS;
        return precedes(element, key) ? ZEB_COMPARED_GREATER : ZEB_COMPARED_EQUAL;
    }
};

/// What an operation is given; `from` and `to` serve as a range, as two indexes, and as rows and columns.
struct Input {
    Numbers elements;
    uint32_t key, other;
    uint32_t from, to;
    Numbers run, replacement;
    uint32_t own_from, own_to; ///< a part of the elements
    bool key_is_own;           ///< the key is the element at `own_from` itself
    uint32_t seed, room, dropped;
    Numbers indexes;
    bool inserts;
    Comparison comparison;
};

/// What an operation needs of its input.
enum Needs { anything, an_element, order, a_permutation, a_shape, a_likeness };

/// Draws inputs of few and many values, of ordinary samples and odd ones.
class Inputs
{
public:
    explicit Inputs(const Samples &all) : samples(all) {}

    Input draw(Needs needs)
    {
        static constexpr uint32_t longest[] = {3, 8, 40, 40, 40, 250};
        const uint32_t length = (needs == an_element) + random() % longest[random() % std::size(longest)];
        const uint32_t alphabet = random() % 3 == 0 ? 3 : samples.count;
        const uint32_t first = random() % (samples.count - alphabet + 1);
        const auto sample = [&] { return first + random() % alphabet; };
        Input in{};
        in.elements = numbers(length, sample);
        if (needs == order && random() % 4 != 0)
            reference::sort(in.elements, nullptr, [&](const uint32_t *later, const uint32_t *earlier) {
                return samples.precedes(*later, *earlier);
            });
        in.own_from = length == 0 ? 0 : random() % length;
        in.own_to = in.own_from + (length == 0 ? 0 : random() % (length - in.own_from + 1));
        in.key_is_own = length != 0 && random() % 2 == 0;
        in.key = in.key_is_own ? in.elements[in.own_from] : sample();
        in.other = sample();
        in.from = random() % (length + (needs == an_element ? 0 : 2));
        in.to = random() % 8 == 0 ? UINT32_MAX : random() % (length + 2);
        if (needs == a_shape)
            draw_shape(in);
        draw_indexes(in, needs == a_permutation);
        draw_run(in, needs == a_likeness, sample);
        in.replacement = numbers(random() % 5, sample);
        in.inserts = random() % 4 != 0;
        in.seed = random() % 3 == 0 ? random() % 20 : 16;
        in.room = random() % 3 == 0 ? random() % 70 : 0;
        in.dropped = random() % 3 == 0 ? random() % 9 : 0;
        in.comparison = {static_cast<Comparison::Manner>(random() % 3), static_cast<uint32_t>(random())};
        return in;
    }

private:
    template <class Sample>
    static Numbers numbers(size_t length, Sample sample)
    {
        Numbers made(length);
        std::generate(made.begin(), made.end(), sample);
        return made;
    }

    /// Rows and columns; some whose product is the count only where it is cut to 32 bits.
    void draw_shape(Input &in)
    {
        const auto length = static_cast<uint32_t>(in.elements.size());
        const bool overflows = length % 2 == 0 && random() % 4 == 0;
        in.from = overflows ? 2 : 1 + random() % 9;
        in.to = (overflows ? 1u << 31 : 0) + length / in.from;
    }

    void draw_indexes(Input &in, bool permutes)
    {
        const auto length = static_cast<uint32_t>(in.elements.size());
        if (!permutes) {
            in.indexes.resize(length + random() % 3);
            return std::iota(in.indexes.begin(), in.indexes.end(), 0);
        }
        in.indexes = numbers(random() % (length + 5), [&] { return random() % std::max(length, 1u); });
        // Entries past the count are not read.
        for (size_t i = length; i < in.indexes.size(); ++i)
            in.indexes[i] = UINT32_MAX;
        if (!in.indexes.empty() && random() % 6 == 0)
            in.indexes[random() % in.indexes.size()] = length + random() % 2 * 1000;
    }

    /// A part of the elements, or all of them; now and then with another element or one more.
    template <class Sample>
    void draw_run(Input &in, bool whole, Sample sample)
    {
        const size_t length = in.elements.size();
        const size_t start = whole || length == 0 ? 0 : random() % length;
        const size_t end = whole ? length : std::min<size_t>(start + random() % 5, length);
        in.run.assign(in.elements.begin() + static_cast<std::ptrdiff_t>(start),
                      in.elements.begin() + static_cast<std::ptrdiff_t>(end));
        if (!in.run.empty() && random() % 4 == 0)
            in.run[random() % in.run.size()] = sample();
        if (random() % 8 == 0)
            in.run.push_back(sample());
    }

    const Samples &samples;
    std::mt19937 random{20150930};
};

/// The plain side: elements, of which those past the count are what is left behind of removed ones.
struct Plain {
    const Samples &samples;
    const Input &in;
    bool is_link;
    uint32_t capacity;
    bool has_plain_elements;
    Numbers all = in.elements;
    uint32_t count = static_cast<uint32_t>(all.size());
    Numbers indexes = in.indexes;
    Comparison comparison = in.comparison;
    uint32_t reports = 0;
    bool stores = false;    ///< what was given has gone in
    uint32_t known = count; ///< elements past these are undefined

    auto own()
    {
        return
            [this](const uint32_t *key, const uint32_t *element) { return samples.compare(*key, *element); };
    }
    auto asked()
    {
        return [this](const uint32_t *key, const uint32_t *element) {
            return comparison.answer(
                {position_of(key, all.data(), count), position_of(element, all.data(), count)},
                samples.compare(*key, *element));
        };
    }
    template <class Compare>
    static auto precedes(Compare compare)
    {
        return [compare](const uint32_t *later, const uint32_t *earlier) {
            return compare(later, earlier) == ZEB_COMPARED_LESS;
        };
    }

    uint32_t told(reference::Ordered found)
    {
        reports += found.warned;
        return found.index;
    }

    template <class Compare>
    uint32_t insert(Compare compare)
    {
        const reference::Ordered place = reference::ordered_insert(all, in.key, compare);
        if (!place.inserts)
            return told(place);
        if (!in.inserts)
            return ZEB_NOT_FOUND;
        if (is_link)
            return refused(ZEB_NOT_FOUND);
        insert_one(place.index);
        return place.index;
    }

    uint32_t refused(uint32_t answer)
    {
        ++reports;
        return answer;
    }

    uint32_t replace_occurrences()
    {
        if (is_link)
            return refused(0);
        const uint32_t replaced = reference::replace_occurrences(all, in.run, in.replacement, samples.equal);
        if (replaced != 0 && in.replacement.size() > in.run.size()) {
            capacity = has_plain_elements ? 0 : capacity; // plain elements get a new block
            make_room(all.size());
        }
        settle();
        return replaced;
    }

    uint32_t least() const
    {
        return count == 0 ? samples.nothing : reference::minimum(all, samples.precedes);
    }
    uint32_t greatest() const
    {
        return count == 0 ? samples.nothing : reference::maximum(all, samples.precedes);
    }

    void fill(uint32_t first, uint32_t last)
    {
        for (uint32_t i = first; i <= last && i < count; ++i)
            all[i] = key();
    }

    uint32_t replace_every()
    {
        const uint32_t replaced = reference::replace_equal(all, in.key, in.other, samples.equal);
        stores = replaced != 0;
        return replaced;
    }

    uint32_t key()
    {
        stores = true;
        return in.key;
    }
    Numbers own_run() const { return {all.begin() + in.own_from, all.begin() + in.own_to}; }

    void settle() { known = count = static_cast<uint32_t>(all.size()); }

    void make_room(uint64_t needed)
    {
        if (capacity > needed)
            return;
        capacity = std::max({capacity, in.seed, 1u});
        while (capacity <= needed)
            capacity *= 2;
    }

    /// A single element grows by one step only.
    void insert_one(uint32_t at)
    {
        if (capacity <= count)
            capacity = capacity < std::max(in.seed, 1u) ? std::max(in.seed, 1u) : 2 * capacity;
        all.insert(all.begin() + std::min(at, count), key());
        settle();
    }

    void insert(uint32_t at, const Numbers &others)
    {
        if (is_link) {
            ++reports;
        } else if (!others.empty()) {
            make_room(all.size() + others.size());
            all.insert(all.begin() + std::min(at, count), others.begin(), others.end());
            stores = true;
            settle();
        }
    }

    void append(const Numbers &others)
    {
        if (!others.empty())
            insert(count, others);
    }

    void replace_element(const Numbers &others)
    {
        if (is_link) {
            ++reports;
        } else if (in.from < count) {
            if (!others.empty())
                make_room(count + others.size() - 1);
            all.erase(all.begin() + in.from);
            all.insert(all.begin() + in.from, others.begin(), others.end());
            stores = true;
            settle();
        }
    }

    void become(const Numbers &others)
    {
        if (is_link)
            capacity = 0;
        is_link = false;
        stores = true;
        all = others;
        settle();
    }

    void assign(const Numbers &others)
    {
        become(others);
        make_room(count);
    }

    void copy(const Numbers &others)
    {
        become(others);
        capacity = std::max(count, in.room);
    }

    /// A changed count; elements that are gained are undefined.
    void resize(uint64_t length)
    {
        if (is_link)
            return void(++reports);
        make_room(length);
        count = static_cast<uint32_t>(length);
        known = std::min(known, count);
    }

    void make_room_unless_link(uint64_t needed) { is_link ? void(++reports) : make_room(needed); }

    void trim()
    {
        if (is_link)
            return void(++reports);
        uint32_t proper = std::max(in.seed, 1u);
        while (proper < count)
            proper *= 2;
        capacity = std::min(capacity, proper);
    }

    void change_range(bool replaces)
    {
        if (in.to < in.from) {
            ++reports;
        } else if (in.from < count) {
            if (replaces)
                all[in.from] = key();
            close_gap(in.from + replaces, std::min(in.to, count - 1) + 1);
        }
    }

    void close_gap(uint32_t start, uint32_t end)
    {
        for (uint32_t i = end; i < count; ++i)
            all[start + i - end] = all[i];
        known = count -= end - start;
    }

    /// Whether the indexes can be applied; one outside is reported.
    bool may_permute()
    {
        const bool outside =
            std::any_of(indexes.begin(), indexes.begin() + std::min<size_t>(count, indexes.size()),
                        [&](uint32_t index) { return index >= count; });
        reports += outside;
        return !outside;
    }

    bool both_inside() const { return in.from < count && in.to < count; }
};

} // namespace differential
