/// Replacing every element equal to a given one, for every element kind.
#pragma once

#include "arrays/engine/algorithms/replacement.hpp"
#include "arrays/engine/storage/array_notes.hpp"
#include "arrays/engine/storage/repeated_element.hpp"

#include <utility>

namespace zeb::engine
{

/// Stores `replacement` over every element equal to `element` and returns their number. If an object cannot
/// make room for the contents, that is reported, nothing changes, and 0 is returned.
template <class Kind, class Report>
std::uint32_t replace_every(Vector_Storage<Kind> vector, typename Kind::Element element,
                            typename Kind::Element replacement, Report report) noexcept
{
    if constexpr (Kind::is_plain) {
        return replace_equal(vector.elements(), element, replacement);
    } else {
        const typename Kind::Equality equal;
        Repeated_Element<Kind> repeated(vector, replacement);
        for (std::uint32_t i = 0; i < vector.count; ++i) {
            if (equal(vector.data[i], element) && !repeated.prepare(i)) {
                report(notes::allocate_failed);
                return 0;
            }
        }
        std::uint32_t replaced = 0;
        std::uint32_t last = vector.count;
        for (std::uint32_t i = 0; i < vector.count; ++i) {
            if (!equal(vector.data[i], element))
                continue;
            ++replaced;
            // The slot that holds `element` itself comes last, because overwriting it would change what the
            // others are compared with.
            const std::uint32_t now = vector.data[i] == element ? std::exchange(last, i) : i;
            if (now != vector.count)
                repeated.store(now);
        }
        if (last != vector.count)
            repeated.store(last);
        return replaced;
    }
}

} // namespace zeb::engine
