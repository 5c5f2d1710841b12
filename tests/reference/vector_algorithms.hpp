/// Every vector algorithm in its plainest form, one step at a time, as slow as that is. Elements are numbers
/// of samples, which a relation compares.
///
/// The framework's own versions may take any faster way; these say what the result has to be.
#pragma once

#include <Korvane_ZEB/ZEB_Types.h>

#include <functional>
#include <vector>

namespace reference
{

using Numbers = std::vector<uint32_t>;
using Relation = std::function<bool(uint32_t, uint32_t)>;
using Comparing = std::function<ZEB_Comparison(const uint32_t *key, const uint32_t *element)>;
using Preceding = std::function<bool(const uint32_t *later, const uint32_t *earlier)>;

/// What the ordered operations answer: the element equal to a key, the one nearest to it, and the place where
/// it belongs, which is that of an element unless the key is to be inserted.
struct Ordered {
    uint32_t equal = ZEB_NOT_FOUND, nearest = ZEB_NOT_FOUND, place = 0;
    bool inserts = true;
    bool warns = false, warns_of_equal = false; ///< of a comparison that means nothing
};

/// How a key compares to an element.
ZEB_Comparison compare(uint32_t key, uint32_t element, const Relation &precedes);

uint32_t first_index_of(const Numbers &elements, uint32_t value, const Relation &equal);
uint32_t last_index_of(const Numbers &elements, uint32_t value, const Relation &equal);

/// The last start is none: an occurrence at the very end is not found.
uint32_t first_index_of_subsequence(const Numbers &elements, const Numbers &pattern, const Relation &equal);

/// Probes until an answer is neither less nor greater, or the bounds meet.
Ordered ordered(const Numbers &elements, uint32_t key, const Comparing &compare);

uint32_t replace_equal(Numbers &elements, uint32_t value, uint32_t replacement, const Relation &equal);

/// Answers the new count; the elements beyond it are left where they were.
uint32_t remove_equal(Numbers &elements, uint32_t value, const Relation &equal);

uint32_t replace_occurrences(Numbers &elements, const Numbers &pattern, const Numbers &replacement,
                             const Relation &equal);

/// Of an even count the middle two are swapped twice.
void reverse(Numbers &elements);

void move(Numbers &elements, uint32_t from, uint32_t to);
void permute(Numbers &elements, const Numbers &permutation, bool inverse);
void transpose(Numbers &elements, uint64_t rows, uint64_t columns);

/// Sorts, every swap applied to the permutation too when there is one. `precedes` is asked with pointers
/// to the later and the earlier element.
void sort(Numbers &elements, Numbers *permutation, const Preceding &precedes);

} // namespace reference
