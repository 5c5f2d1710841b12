/// The operations of every family's vectors and arrays behind one face, on samples told by their numbers.
#pragma once

#include <Korvane_ZEB/ZEB_Types.h>

#include <cstdint>
#include <vector>

namespace support
{

using Numbers = std::vector<uint32_t>;

enum class Operation {
    first_index,
    last_index,
    first_index_of_run,
    minimum,
    maximum,
    both_extremes,
    equal_to_vector,
    equal_to_collection,
    ordered_find,
    ordered_find_asked,
    nearest,
    nearest_asked,
    set,
    set_from_end,
    swap,
    move,
    fill,
    fill_range,
    replace_every,
    remove_every,
    remove_element,
    remove_range,
    replace_range,
    reverse,
    transpose,
    permute,
    permute_back,
    sort,
    sort_asked,
    sort_with_permutation,
    sort_asked_with_permutation,
    ordered_insert,
    ordered_insert_asked,
    replace_occurrences,
    count
};

/// The operations that only growable arrays have.
constexpr bool needs_an_array(Operation operation) { return operation >= Operation::ordered_insert; }

/// What an operation is done to.
enum class Place { array, link_to_array, vector, link_of_vector };
constexpr bool is_link(Place place)
{
    return place == Place::link_to_array || place == Place::link_of_vector;
}

/// What a caller's comparison was asked: two positions in the array, -1 for a key from elsewhere.
struct Question {
    int64_t key, element;
    bool operator==(const Question &) const = default;
};

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

/// What an operation is given; `from` and `to` serve as a range, as two indexes, and as rows and columns.
struct Input {
    Numbers elements;
    uint32_t key, other;
    uint32_t from, to;
    Numbers run, replacement;
    Numbers indexes;
    bool inserts;
    Comparison::Manner manner;
    uint32_t seed;
};

/// What an operation leaves and answers. `beyond` is what a link's owner holds outside of the link.
struct Outcome {
    Numbers elements, beyond;
    Numbers indexes;
    uint64_t answer = 0;
    uint32_t reports = 0;
    std::vector<Question> asked;
    bool operator==(const Outcome &) const = default;
};

/// Samples that stand around what a link views.
inline const Numbers before_link = {0, 1}, after_link = {2, 3};

/// One family. Samples are told apart by their bits, references by identity, held objects by contents.
class Family_Operations
{
public:
    Family_Operations() { all().push_back(this); }
    virtual ~Family_Operations() = default;

    virtual const char *name() const = 0;
    virtual uint32_t sample_count() const = 0;
    /// The sample that an empty vector answers; ZEB_NOT_FOUND when no sample is that.
    virtual uint32_t nothing() const = 0;
    virtual bool are_equal(uint32_t left, uint32_t right) const = 0;
    virtual bool precedes(uint32_t left, uint32_t right) const = 0;

    /// Whether removed elements stay behind the count, bit for bit.
    virtual bool leaves_what_it_drops() const = 0;

    virtual Outcome perform(Operation operation, Place place, const Input &input) const = 0;

    static std::vector<const Family_Operations *> &all()
    {
        static std::vector<const Family_Operations *> families;
        return families;
    }
};

} // namespace support
