#include "tests/arrays/differential.hpp"

#include <algorithm>
#include <array>
#include <cctype>
#include <numeric>

namespace differential
{

std::string selector_of(std::string_view text)
{
    std::string selector, word, last;
    for (const char c : text) {
        if (std::isalnum(static_cast<unsigned char>(c)) != 0 || c == '_') {
            word += c;
            continue;
        }
        if (c == ':')
            selector += word + c;
        last = std::exchange(word, {});
    }
    return selector.empty() ? last : selector;
}

reference::Relation tabulated(uint32_t count, const reference::Relation &relation)
{
    std::vector<bool> table;
    for (uint32_t left = 0; left < count; ++left)
        for (uint32_t right = 0; right < count; ++right)
            table.push_back(relation(left, right));
    return [=](uint32_t left, uint32_t right) { return bool{table[left * count + right]}; };
}

ZEB_Comparison Comparison::answer(int64_t key, int64_t element, ZEB_Comparison truth)
{
    asked.emplace_back(key, element);
    const uint32_t noise = (seed + static_cast<uint32_t>(asked.size())) * 2654435761u >> 11;
    if (manner == random)
        return noise % 5;
    return manner == unknown_at_times && noise % 5 == 0 ? noise % 10 : truth;
}

Input Inputs::draw(Needs needs, uint32_t length)
{
    length = std::max(length, uint32_t{needs == an_element});
    alphabet = std::min(std::array{1u, 3u, 12u, samples.count}[below(4)], samples.count);
    first = below(samples.count - alphabet + 1);
    Input in{};
    in.elements = numbers(length);
    if (below(4) != 0 ? needs == order : needs != order)
        reference::sort(in.elements, nullptr, [this](const uint32_t *later, const uint32_t *earlier) {
            return samples.precedes(*later, *earlier);
        });
    if (below(6) == 0)
        std::reverse(in.elements.begin(), in.elements.end());
    in.left_behind = numbers(below(3) == 0 ? below(9) : 0);
    in.own_from = below(length + 1 + in.left_behind.size());
    in.own_to = in.own_from + below(length + 1);
    in.key_at = below(2 * length + 1);
    in.key = in.key_at < length ? in.elements[in.key_at] : sample();
    in.other = sample();
    in.from = below(length + (needs == an_element ? 0 : 2));
    in.to = below(8) == 0 ? UINT32_MAX : below(length + 2);
    if (needs == a_shape)
        draw_shape(in, length);
    in.indexes = indexes(length, needs == a_permutation);
    in.run = run(in.elements, needs == a_likeness);
    in.replacement = numbers(below(5));
    in.inserts = below(4) != 0;
    in.seed = below(3) == 0 ? below(20) : 16;
    in.room = below(3) == 0 ? below(70) : 0;
    in.comparison = {static_cast<Comparison::Manner>(below(3)), below(UINT32_MAX)};
    return in;
}

Numbers Inputs::numbers(size_t length)
{
    Numbers made(length);
    uint32_t i = 0;
    const bool in_turn = below(4) == 0;
    std::generate(made.begin(), made.end(), [&] { return in_turn ? first + i++ % alphabet : sample(); });
    return made;
}

void Inputs::draw_shape(Input &in, uint32_t length)
{
    const bool overflows = length % 2 == 0 && below(4) == 0;
    in.from = overflows ? 2 : 1 + below(9);
    in.to = (overflows ? 1u << 31 : 0) + length / in.from;
}

Numbers Inputs::indexes(uint32_t length, bool permutes)
{
    Numbers made(permutes || below(8) == 0 ? below(length + 5) : length + below(3));
    std::iota(made.begin(), made.end(), 0);
    for (uint32_t &index : made)
        if (permutes)
            index = index < length ? below(length) : UINT32_MAX;
    if (permutes && !made.empty() && below(6) == 0)
        made[below(made.size())] = length + below(2) * 1000;
    return made;
}

Numbers Inputs::run(const Numbers &elements, bool whole)
{
    const size_t start = whole ? 0 : below(elements.size() + 1);
    const size_t end = whole ? elements.size() : std::min<size_t>(start + below(5), elements.size());
    Numbers made(elements.data() + start, elements.data() + end);
    if (!made.empty() && below(4) == 0)
        made[below(made.size())] = sample();
    if (below(8) == 0)
        made.push_back(sample());
    return made;
}

ZEB_Comparison Plain::compare(uint32_t key, uint32_t element) const
{
    return reference::compare(key, element, samples.precedes);
}

Comparing Plain::by_order()
{
    return [this](const uint32_t *key, const uint32_t *element) { return compare(*key, *element); };
}

Comparing Plain::as_told()
{
    return [this](const uint32_t *key, const uint32_t *element) {
        return comparison.answer(position_of(key, all.data(), count), position_of(element, all.data(), count),
                                 compare(*key, *element));
    };
}

bool Plain::reports_if(bool happens, const char *note)
{
    if (happens)
        notes.push_back(note);
    return happens;
}

uint32_t Plain::find(const Comparing &compare, bool nearest)
{
    const reference::Ordered found = reference::ordered(all, in.key, compare);
    reports_if(nearest ? found.warns : found.warns_of_equal,
               "Warning: Ordered find stopped on unknown comparison.");
    return nearest ? found.nearest : found.equal;
}

uint32_t Plain::insert_in_order(const Comparing &compare)
{
    const reference::Ordered found = reference::ordered(all, in.key, compare);
    reports_if(found.warns, "Warning: Ordered insert stopped on unknown comparison.");
    if (!found.inserts)
        return found.place;
    if (!in.inserts || is_link)
        return reports_if(in.inserts, insert_note), ZEB_NOT_FOUND;
    insert_key(found.place, insert_note);
    return found.place;
}

void Plain::sort(const Comparing &compare, Numbers *moved)
{
    if (moved == nullptr || moved->size() >= count)
        reference::sort(all, moved, [&](const uint32_t *later, const uint32_t *earlier) {
            return compare(later, earlier) == ZEB_COMPARED_LESS;
        });
}

uint32_t Plain::replace_occurrences()
{
    if (reports_if(is_link, "Can not replace occurences through a link"))
        return 0;
    const uint32_t replaced = reference::replace_occurrences(all, in.run, in.replacement, samples.equal);
    if (replaced != 0 && in.replacement.size() > in.run.size()) {
        capacity = has_plain_elements ? 0 : capacity; // plain elements get a new block
        make_room(all.size());
    }
    settle();
    return replaced;
}

uint64_t Plain::extremes() const
{
    if (all.empty())
        return uint64_t{samples.nothing} << 32 | samples.nothing;
    const uint64_t low = *std::min_element(all.begin(), all.end(), samples.precedes);
    return low << 32 | *std::max_element(all.begin(), all.end(), samples.precedes);
}

void Plain::fill(uint32_t first, uint32_t last)
{
    for (uint32_t i = first; i <= last && i < count; ++i)
        all[i] = key();
}

uint32_t Plain::checked(uint32_t index)
{
    const bool is_none = index >= count;
    reports_if(is_none, "Index is not below the count, no element returned.");
    return is_none ? samples.nothing : all[index];
}

void Plain::set_checked(uint32_t index)
{
    if (!reports_if(index >= count, "Index is not below the count, no element set."))
        all[index] = key();
}

uint32_t Plain::replace_every()
{
    const uint32_t replaced = reference::replace_equal(all, in.key, in.other, samples.equal);
    stores = replaced != 0;
    return replaced;
}

void Plain::make_room(uint64_t needed)
{
    if (capacity > needed)
        return;
    capacity = std::max({capacity, in.seed, 1u});
    while (capacity <= needed)
        capacity *= 2;
}

void Plain::exchange(uint32_t at, uint32_t gone, const Numbers &others, size_t needed)
{
    if (!others.empty())
        make_room(needed);
    const auto place = all.begin() + std::min(at, count);
    all.insert(all.erase(place, place + gone), others.begin(), others.end());
    stores = true;
    settle();
}

void Plain::insert_key(uint32_t at, const char *note)
{
    if (!reports_if(is_link, note))
        exchange(at, 0, {in.key}, count);
}

void Plain::insert(uint32_t at, const Numbers &others, const char *note)
{
    if (!reports_if(is_link, note))
        exchange(at, 0, others, count + others.size());
}

void Plain::append(const Numbers &others)
{
    if (!others.empty())
        insert(count, others, "Cannot append array through link, no append made.");
}

void Plain::replace_element(const Numbers &others)
{
    if (!reports_if(is_link, "Cannot replace element with array through link, no replacement made.") &&
        in.from < count)
        exchange(in.from, 1, others, count + others.size() - 1);
}

void Plain::take_over(const Numbers &others, bool exactly)
{
    capacity = is_link ? 0 : capacity;
    is_link = false;
    stores = true;
    all = others;
    settle();
    exactly ? void(capacity = std::max(count, in.room)) : make_room(count);
}

void Plain::resize(uint32_t length, const char *note)
{
    reserve(length, note);
    if (!is_link)
        known = std::min(known, count = length);
}

void Plain::reserve(uint64_t needed, const char *note)
{
    if (!reports_if(is_link, note))
        make_room(needed);
}

void Plain::trim()
{
    if (reports_if(is_link, "Cannot trim allocation through link, no adjustment made."))
        return;
    uint32_t proper = std::max(in.seed, 1u);
    while (proper < count)
        proper *= 2;
    capacity = std::min(capacity, proper);
}

void Plain::change_range(bool replaces)
{
    if (reports_if(in.to < in.from, "End index is less than start index in removal.") || in.from >= count)
        return;
    if (replaces)
        all[in.from] = key();
    close_gap(in.from + replaces, std::min(in.to, count - 1) + 1);
}

void Plain::close_gap(uint32_t start, uint32_t end)
{
    std::copy(all.begin() + end, all.begin() + count, all.begin() + start);
    known = count -= end - start;
}

void Plain::permute(bool inverse)
{
    const size_t used = std::min<size_t>(count, indexes.size());
    const bool outside = std::any_of(indexes.begin(), indexes.begin() + used,
                                     [this](uint32_t index) { return index >= count; });
    if (!reports_if(outside, "Permutation names an element outside the array, no change made."))
        reference::permute(all, indexes, inverse);
}

} // namespace differential
