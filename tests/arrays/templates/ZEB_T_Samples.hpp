/// Arrays of TT_PHRASE, made of samples that are told by their numbers.
#pragma once

#import <Korvane_ZEB/Korvane_ZEB.h>
#import <Korvane_ZEB/ZEB_Array_Spans.hpp>

#include "tests/support/samples.hpp"

#include <algorithm>
#include <cstdint>
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

/// ZEB_NOT_FOUND for what is no sample: nothing, in an empty vector.
uint32_t number_of(Element element)
{
    const auto found = std::find_if(samples().begin(), samples().end(),
                                    [&](Element sample) { return support::are_identical(sample, element); });
    return found == samples().end() ? ZEB_NOT_FOUND : static_cast<uint32_t>(found - samples().begin());
}

Numbers numbers_of(ZEB_T_Vector *vector)
{
    Numbers numbers;
    for (const Element &element : zeb::elements(vector))
        numbers.push_back(number_of(element));
    return numbers;
}

ZEB_T_Array *array_of(const Numbers &numbers)
{
    ZEB_T_Array *const made = [ZEB_T_Array array_with_capacity:0];
    for (const uint32_t number : numbers)
        [made append_TT_word:samples()[number]];
    return made;
}

} // namespace
