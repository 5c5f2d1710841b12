/// Arrays of TT_PHRASE, made of samples that are told by their numbers.
#pragma once

#import <Korvane_ZEB/Korvane_ZEB.h>

#include "tests/support/samples.hpp"

#include <algorithm>
#include <cstdint>
#include <span>
#include <vector>

using Element = ZEB_T_Element;
using Numbers = std::vector<uint32_t>;

namespace
{

/// Samples that stay the same objects, so that references can be told apart.
const std::vector<Element> &samples()
{
    // Never ended: what it holds is to be reachable when leaks are looked for.
    static const auto *const made = new std::vector<Element>(support::all_samples<Element>());
    return *made;
}

/// The numbers of samples; ZEB_NOT_FOUND for what is none: nothing, in an empty vector.
Numbers numbers_of(Element const *elements, size_t count)
{
    if constexpr (support::is_held<Element>) {
        Numbers numbers;
        for (const Element &element : std::span(elements, count)) {
            const auto found = std::ranges::find_if(
                samples(), [&](Element sample) { return support::are_identical(sample, element); });
            numbers.push_back(found == samples().end() ? ZEB_NOT_FOUND
                                                       : static_cast<uint32_t>(found - samples().begin()));
        }
        return numbers;
    }
    static const auto numbers = support::numbering(samples().data(), samples().size(), sizeof(Element));
    return numbers(elements, count);
}

Numbers numbers_of(ZEB_T_Vector *vector) { return numbers_of([vector TT_word_data], [vector count]); }

[[maybe_unused]] uint32_t number_of(Element element) { return numbers_of(&element, 1)[0]; }

ZEB_T_Array *array_of(const Numbers &numbers)
{
    ZEB_T_Array *const made = [ZEB_T_Array array_with_capacity:0];
    for (const uint32_t number : numbers)
        [made append_TT_word:samples()[number]];
    return made;
}

} // namespace
