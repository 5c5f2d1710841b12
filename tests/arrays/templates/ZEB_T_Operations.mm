#include "tests/arrays/ZEB_T_Samples.hpp"
#include "tests/arrays/family_operations.hpp"

#include <functional>
#include <span>

using namespace support;

namespace
{

std::vector<Element> elements_of(const Numbers &numbers)
{
    std::vector<Element> elements;
    for (const uint32_t number : numbers)
        elements.push_back(samples()[number]);
    return elements;
}

// A comparison function has no context of its own.
Comparison *comparison = nullptr;
ZEB_T_Vector *compared = nil;

int64_t position_of(Element const *element)
{
    const Element *const first = [compared TT_word_data];
    const std::less<> before;
    const bool is_own = !before(element, first) && before(element, first + [compared count]);
    return is_own ? element - first : -1;
}

ZEB_Comparison compare(Element const *key, Element const *element)
{
    ZEB_Comparison truth = ZEB_COMPARED_EQUAL;
    if (precedes<Element>(*key, *element))
        truth = ZEB_COMPARED_LESS;
    else if (precedes<Element>(*element, *key))
        truth = ZEB_COMPARED_GREATER;
    return comparison->answer({position_of(key), position_of(element)}, truth);
}

/// What an operation is done to, with the owner of what a link views.
class Subject
{
public:
    Subject(const Numbers &numbers, Place place)
    {
        Numbers all = numbers;
        if (is_link(place)) {
            all.insert(all.begin(), before_link.begin(), before_link.end());
            all.insert(all.end(), after_link.begin(), after_link.end());
        }
        owner = array_of(all);
        const auto first = static_cast<uint32_t>(before_link.size());
        const ZEB_Index_Range viewed{first, first + static_cast<uint32_t>(numbers.size()) - 1};
        if (place == Place::array)
            vector = array = owner;
        else if (place == Place::vector)
            vector = [[[ZEB_T_Vector alloc] init_as_copy_of_TT_word_vector:owner] autorelease];
        else if (place == Place::link_to_array)
            vector = array = [[[ZEB_T_Array alloc] init_as_link_to_TT_word_vector:owner
                                                                            range:viewed] autorelease];
        else
            vector = [[[ZEB_T_Vector alloc] init_as_link_to_TT_word_vector:owner range:viewed] autorelease];
    }

    Numbers beyond() const
    {
        Numbers numbers;
        const size_t end = before_link.size() + [vector count];
        const size_t after = [owner count] - after_link.size();
        for (uint32_t i = 0; i < [owner count]; ++i)
            if (i < before_link.size() || i >= (is_object<Element> ? after : end))
                numbers.push_back(number_of([owner TT_word_at_index:i]));
        return numbers;
    }

    ZEB_T_Vector *vector = nil;
    ZEB_T_Array *array = nil;

private:
    ZEB_T_Array *owner = nil;
};

uint32_t search(ZEB_T_Vector *vector, Operation operation, const Input &in)
{
    const Element key = samples()[in.key];
    const std::vector<Element> run = elements_of(in.run);
    Element least = Element(), greatest = Element();
    switch (operation) {
    case Operation::first_index:
        return [vector index_of_TT_word:key];
    case Operation::last_index:
        return [vector last_index_of_TT_word:key];
    case Operation::first_index_of_run:
        return [vector index_of_TT_words:run.data() count:static_cast<uint32_t>(run.size())];
    case Operation::minimum:
        return number_of([vector minimum_TT_word]);
    case Operation::maximum:
        return number_of([vector maximum_TT_word]);
    case Operation::both_extremes:
        [vector get_minimum_TT_word:&least maximum:&greatest];
        return number_of(least) * 100 + number_of(greatest);
    case Operation::equal_to_vector:
        return [vector is_equal_to_vector:array_of(in.run)];
    case Operation::equal_to_collection:
        return [vector is_equal_to_collection:array_of(in.run)];
    case Operation::ordered_find:
        return [vector ordered_index_of_TT_word:key];
    case Operation::ordered_find_asked:
        return [vector ordered_index_of_TT_word:key comparison:compare];
    case Operation::nearest:
        return [vector nearest_ordered_index_of_TT_word:key];
    default:
        return [vector nearest_ordered_index_of_TT_word:key comparison:compare];
    }
}

/// What is done with elements, indexes and ranges.
uint32_t change(ZEB_T_Vector *vector, Operation operation, const Input &in)
{
    const Element key = samples()[in.key];
    const ZEB_Index_Range range{in.from, in.to};
    switch (operation) {
    case Operation::set:
        [vector set_TT_word:key at_index:in.from];
        break;
    case Operation::set_from_end:
        [vector set_TT_word:key at_index_from_end:in.from];
        break;
    case Operation::swap:
        [vector swap_element_at_index:in.from with_index:in.to];
        break;
    case Operation::move:
        [vector move_element_from_index:in.from to_index:in.to];
        break;
    case Operation::fill:
        [vector fill_with_TT_word:key];
        break;
    case Operation::fill_range:
        [vector fill_range:range with_TT_word:key];
        break;
    case Operation::replace_every:
        return [vector replace_every_TT_word:key with:samples()[in.other]];
    case Operation::remove_every:
        [vector remove_every_TT_word:key];
        break;
    case Operation::remove_element:
        [vector remove_element_at_index:in.from];
        break;
    case Operation::remove_range:
        [vector remove_range:range];
        break;
    case Operation::replace_range:
        [vector replace_range:range with_TT_word:key];
        break;
    case Operation::reverse:
        [vector reverse];
        break;
    default:
        [vector transpose_rows:in.from columns:in.to];
    }
    return 0;
}

void rearrange(ZEB_T_Vector *vector, Operation operation, ZEB_UInt_Array *indexes)
{
    switch (operation) {
    case Operation::permute:
        return [vector apply_permutation:indexes];
    case Operation::permute_back:
        return [vector apply_inverse_permutation:indexes];
    case Operation::sort:
        return [vector sort];
    case Operation::sort_asked:
        return [vector sort_TT_words_with_comparison:compare];
    case Operation::sort_with_permutation:
        return [vector sort_with_permutation:indexes];
    default:
        return [vector sort_TT_words_with_comparison:compare permutation:indexes];
    }
}

uint32_t grow(ZEB_T_Array *array, Operation operation, const Input &in)
{
    const Element key = samples()[in.key];
    if (operation == Operation::ordered_insert)
        return [array ordered_insert_TT_word:key inserts:in.inserts];
    if (operation == Operation::ordered_insert_asked)
        return [array ordered_insert_TT_word:key comparison:compare inserts:in.inserts];
    return [array replace_occurrences:array_of(in.run) replacement:array_of(in.replacement)];
}

class ZEB_T_Operations : public Family_Operations
{
public:
    const char *name() const override { return "TT_word"; }
    uint32_t sample_count() const override { return static_cast<uint32_t>(samples().size()); }
    uint32_t nothing() const override { return number_of(Element()); }
    bool are_equal(uint32_t left, uint32_t right) const override
    {
        return are_same(samples()[left], samples()[right]);
    }
    bool precedes(uint32_t left, uint32_t right) const override
    {
        return support::precedes<Element>(samples()[left], samples()[right]);
    }
    bool leaves_what_it_drops() const override { return !is_object<Element>; }

    Outcome perform(Operation operation, Place place, const Input &in) const override
    {
        NSAutoreleasePool *const pool = [[NSAutoreleasePool alloc] init];
        const Subject subject(in.elements, place);
        ZEB_UInt_Array *const indexes = indexes_of(in.indexes);
        const uint32_t reports = [[ZEB_Error_Stream shared_error_stream] warning_count];
        Comparison asked{in.manner, in.seed};
        comparison = &asked;
        compared = subject.vector;
        Outcome out;
        if (operation < Operation::set)
            out.answer = search(subject.vector, operation, in);
        else if (operation < Operation::permute)
            out.answer = change(subject.vector, operation, in);
        else if (!needs_an_array(operation))
            rearrange(subject.vector, operation, indexes);
        else
            out.answer = grow(subject.array, operation, in);
        out.reports = [[ZEB_Error_Stream shared_error_stream] warning_count] - reports;
        out.elements = numbers_of(subject.vector);
        if (is_link(place))
            out.beyond = subject.beyond();
        const std::span<const uint32_t> went = zeb::elements(indexes);
        out.indexes.assign(went.begin(), went.end());
        out.asked = asked.asked;
        [pool drain];
        return out;
    }
};

const ZEB_T_Operations operations;

} // namespace
