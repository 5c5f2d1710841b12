/// Seeded data for the rows, made once for each type and size.
#pragma once

#include <cstdint>
#include <map>
#include <random>
#include <string>
#include <type_traits>
#include <vector>

namespace zeb_bench
{

template <class Element>
const char *type_name()
{
    if constexpr (std::is_same_v<Element, double>)
        return "double";
    else if constexpr (std::is_same_v<Element, float>)
        return "float";
    else if constexpr (std::is_same_v<Element, std::uint32_t>)
        return "unsigned";
    else if constexpr (std::is_same_v<Element, std::int64_t>)
        return "int64";
    else
        return sizeof(Element) == 1 ? "byte" : "int";
}

inline std::string size_name(std::size_t bytes) { return std::to_string(bytes >> 20) + " MiB"; }

/// Random elements over the whole range of the type; none of them is zero.
template <class Element>
std::vector<Element> random_elements(std::size_t count, unsigned seed = 1)
{
    std::mt19937_64 random(seed);
    std::vector<Element> elements(count);
    for (Element &element : elements) {
        if constexpr (std::is_floating_point_v<Element>)
            element = static_cast<Element>(static_cast<double>(random()) / 1.8446744073709552e19 + 0.25);
        else
            element = static_cast<Element>(random());
        if (element == Element(0))
            element = Element(1);
    }
    return elements;
}

/// The same, kept for all rows that ask for it.
template <class Element>
std::vector<Element> &shared_elements(std::size_t count, unsigned seed = 1)
{
    static std::map<std::pair<std::size_t, unsigned>, std::vector<Element>> kept;
    std::vector<Element> &elements = kept[{count, seed}];
    if (elements.empty())
        elements = random_elements<Element>(count, seed);
    return elements;
}

} // namespace zeb_bench
