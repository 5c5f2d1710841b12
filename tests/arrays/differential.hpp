/// What holds every family's operations against their plainest forms: inputs of samples told by their
/// numbers, a caller's comparison that keeps what it was asked, and the plain side of each operation.
#pragma once

#include "tests/reference/vector_algorithms.hpp"

#include <cstring>
#include <functional>
#include <optional>
#include <random>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

namespace differential
{

using reference::Comparing;
using reference::Numbers;

/// What a text sends: its words with a colon, or the last word.
std::string selector_of(std::string_view text);

/// What an operation answers, as bits; nothing where it has no answer.
template <class Operation>
std::optional<uint64_t> answer_of(Operation operation)
{
    if constexpr (std::is_void_v<std::invoke_result_t<Operation>>) {
        return operation(), std::nullopt;
    } else {
        const auto answer = operation();
        uint64_t bits = 0;
        std::memcpy(&bits, &answer, sizeof answer);
        return bits;
    }
}

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
    /// Two positions among the elements, -1 for a key from elsewhere.
    std::vector<std::pair<int64_t, int64_t>> asked = {};

    ZEB_Comparison answer(int64_t key, int64_t element, ZEB_Comparison truth);
};

/// The same relation of the numbers below a count, looked up: it is asked for more than all else.
reference::Relation tabulated(uint32_t count, const reference::Relation &relation);

/// How the samples of a family compare.
struct Samples {
    uint32_t count;
    reference::Relation equal, precedes;
    uint32_t nothing; ///< the one that an empty vector answers; ZEB_NOT_FOUND when none is that
};

/// What an operation is given; `from` and `to` serve as a range, as two indexes, and as rows and columns.
struct Input {
    Numbers elements, left_behind; ///< those that were there before the count was made smaller
    uint32_t key, other;
    uint32_t from, to;
    Numbers run, replacement;
    uint32_t own_from, own_to; ///< a part of the block
    uint32_t key_at;           ///< the key is this element itself, if there is one
    uint32_t seed, room;
    Numbers indexes;
    bool inserts;
    Comparison comparison;
};

/// What an operation needs of its input.
enum Needs { anything, an_element, order, a_permutation, a_shape, a_likeness };

/// Draws inputs of few and many values, of ordinary samples and odd ones, in order, in turn and in disorder.
class Inputs
{
public:
    explicit Inputs(const Samples &all) : samples(all) {}

    /// At best of that length.
    Input draw(Needs needs, uint32_t length);

private:
    uint32_t below(size_t end) { return static_cast<uint32_t>(random() % end); }
    uint32_t sample() { return first + below(alphabet); }

    Numbers numbers(size_t length);

    /// Rows and columns; some whose product is the count only where it is cut to 32 bits.
    void draw_shape(Input &in, uint32_t length);

    /// Marks of the elements, or too few; or a permutation, now and then with an index outside. Entries past
    /// the count are not read.
    Numbers indexes(uint32_t length, bool permutes);

    /// A part of the elements, or all of them; now and then with another element or one more.
    Numbers run(const Numbers &elements, bool whole);

    const Samples &samples;
    std::mt19937 random{20150930};
    uint32_t alphabet = 0, first = 0;
};

/// The plain side: elements, of which those past the count are what is left behind of removed ones.
struct Plain {
    const Samples &samples;
    const Input &in;
    const Numbers own; ///< what the part of the block holds
    bool is_link;
    uint32_t capacity;
    bool has_plain_elements;
    Numbers all = in.elements;
    uint32_t count = static_cast<uint32_t>(all.size());
    Numbers indexes = in.indexes;
    Comparison comparison = in.comparison;
    std::vector<const char *> notes = {}; ///< what is reported
    bool stores = false;                  ///< what was given has gone in
    uint32_t known = count;               ///< elements past these are undefined

    ZEB_Comparison compare(uint32_t key, uint32_t element) const;

    /// The own order, and the caller's comparison.
    Comparing by_order();
    Comparing as_told();

    bool reports_if(bool happens, const char *note);
    uint32_t find(const Comparing &compare, bool nearest = false);
    uint32_t insert_in_order(const Comparing &compare);
    void sort(const Comparing &compare, Numbers *moved = nullptr);
    uint32_t replace_occurrences();
    uint64_t extremes() const;
    void fill(uint32_t first, uint32_t last);
    uint32_t from_end(uint32_t index) const { return index < count ? count - 1 - index : UINT32_MAX; }
    uint32_t checked(uint32_t index);
    void set_checked(uint32_t index);
    uint32_t replace_every();
    uint32_t key() { return stores = true, in.key; }
    void settle() { known = count = static_cast<uint32_t>(all.size()); }
    void make_room(uint64_t needed);

    /// Puts others in the place of elements, for which there has to be more room than needed.
    void exchange(uint32_t at, uint32_t gone, const Numbers &others, size_t needed);

    void insert_key(uint32_t at, const char *note);
    void insert(uint32_t at, const Numbers &others,
                const char *note = "Cannot insert array through link, no insertion made.");
    void append(const Numbers &others);
    void replace_element(const Numbers &others);
    void take_over(const Numbers &others, bool exactly);

    /// A changed count; elements that are gained are undefined.
    void resize(uint32_t length, const char *note);

    void reserve(uint64_t needed, const char *note);
    void trim();
    void change_range(bool replaces);
    void close_gap(uint32_t start, uint32_t end);
    void permute(bool inverse);
    bool both_inside() const { return in.from < count && in.to < count; }

    static constexpr auto insert_note = "Cannot insert element through link, no insertion made.",
                          room_note = "Cannot update capacity through link, no adjustment made.";
};

} // namespace differential
