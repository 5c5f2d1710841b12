/// Removing and replacing elements by value.
#include "benchmarks/arrays/array_rows.hpp"
#include "benchmarks/arrays/compiled_loops.hpp"
#include "benchmarks/arrays/data.hpp"
#include "benchmarks/common/rows.hpp"

#include "arrays/engine/algorithms/occurrences.hpp"
#include "arrays/engine/algorithms/removal.hpp"
#include "arrays/engine/algorithms/replacement.hpp"
#include "core/engine/namespace.hpp"

#include <algorithm>
#include <cstring>

namespace zeb_bench
{
namespace
{

constexpr std::size_t block_bytes = std::size_t{1} << 20;
/// Each time starts elsewhere in the data, by up to so many elements: repeated data would be learned by the
/// branch predictor, which flatters loops with a branch for each match.
constexpr std::size_t shift = 65536;

/// Elements of which about `percent` in a hundred are 7.
template <class Element>
const std::vector<Element> &with_matches(unsigned percent)
{
    static std::map<unsigned, std::vector<Element>> kept;
    std::vector<Element> &elements = kept[percent];
    if (elements.empty()) {
        std::mt19937 random(percent);
        elements = random_elements<Element>(block_bytes / sizeof(Element) + shift);
        std::replace(elements.begin(), elements.end(), Element(7), Element(8));
        for (Element &element : elements)
            if (random() % 100 < percent)
                element = Element(7);
    }
    return elements;
}

template <class Element>
Element *find_and_move(Element *first, Element *last, Element value)
{
    first = std::find(first, last, value);
    for (Element *run = first; run != last;) {
        Element *const start = std::find_if(run, last, [value](Element element) { return element != value; });
        Element *const end = std::find(start, last, value);
        std::memmove(first, start, static_cast<std::size_t>(end - start) * sizeof(Element));
        first += end - start;
        run = end;
    }
    return first;
}

template <class Element>
void add_rows(unsigned percent, double removal_goal, double replacement_goal)
{
    const std::vector<Element> &source = with_matches<Element>(percent);
    Element *const all = shared_elements<Element>(block_bytes / sizeof(Element), 4).data();
    const std::span<Element> span(all, block_bytes / sizeof(Element));
    const auto restore = [all, &source, random = std::mt19937(1)]() mutable {
        std::memcpy(all, source.data() + random() % shift, block_bytes);
    };
    const auto move = [all] { std::memmove(all, all + 64 / sizeof(Element), block_bytes - 64); };
    const auto name = [percent](const char *job) {
        return std::string(job) + ", " + std::to_string(percent) + " %, " + type_name<Element>();
    };
    const Element value(7), other(9);
    Row(name("remove all equal"), Measure::Bytes, block_bytes, restore)
        .goal(removal_goal)
        .framework([=] { return engine::remove_equal(span, value); })
        .peer("std::remove", [=] { return std::remove(span.begin(), span.end(), value) - span.begin(); })
        .peer("find and move", [=] { return find_and_move(all, all + span.size(), value) - all; })
        .limit("memmove", move);
    Row(name("replace all equal"), Measure::Bytes, block_bytes, restore)
        .goal(replacement_goal)
        .framework([=] { return engine::replace_equal(span, value, other); })
        .peer("std::replace", [=] { std::replace(span.begin(), span.end(), value, other); })
        .limit("compiled loop", [=] { return compiled::replace(all, span.size(), value, other); });
}

} // namespace

void add_change_rows()
{
    add_rows<std::uint8_t>(1, 2, 10);
    add_rows<std::int32_t>(1, 2, 4);
    add_rows<std::int64_t>(1, 2, 4);
    add_rows<double>(1, 2, 4);
    add_rows<std::uint8_t>(50, 12, 10);
    add_rows<std::int32_t>(50, 12, 4);
    add_rows<std::int64_t>(50, 12, 4);
    add_rows<double>(50, 12, 4);
}

} // namespace zeb_bench
