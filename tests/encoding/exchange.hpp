/// What machines exchange in files: each writes the same contents, and reads what the others wrote.
#pragma once

#include "tests/support/scratch_folder.hpp"
#include "tests/support/strings.hpp"

#include <cstdint>
#include <cstring>
#include <type_traits>
#include <vector>

namespace support
{

struct Exchange {
    std::string name;
    bool (*write)(const std::string &path);
    /// Whether the file holds, bit for bit, what this machine would have written.
    bool (*reads_the_same)(const std::string &path);
};

inline std::vector<Exchange> &exchanges()
{
    static std::vector<Exchange> all;
    return all;
}

/// Element `i` of what is exchanged: numbers and pointers of the lowest of some mixed bits, NaNs among them,
/// and text of such characters. References leave no trace in a record.
template <class Element>
Element exchanged(uint32_t i)
{
    if constexpr (std::is_same_v<Element, ZEB_String *>) {
        std::string characters;
        for (uint32_t n = 0; n < i % 19; ++n)
            characters += exchanged<char>(19 * i + n);
        return text(characters);
    } else if constexpr (std::is_same_v<Element, ZEB_Byte_Array *>) {
        return bytes(text_of(exchanged<ZEB_String *>(i + 7)));
    } else if constexpr (std::is_same_v<Element, ZEB_Wide_String *>) {
        ZEB_Wide_String *const units = [[[ZEB_Wide_String alloc] init] autorelease];
        for (uint32_t n = 0; n < i % 19; ++n)
            [units append_wide_char:exchanged<uint32_t>(19 * i + n)];
        return units;
    } else {
        using Four_Or_Eight = std::conditional_t<sizeof(Element) == 4, uint32_t, uint64_t>;
        using Bits = std::conditional_t<sizeof(Element) == 1, uint8_t, Four_Or_Eight>;
        const uint64_t mixed = (uint64_t{i} + 1) * 0x9E3779B97F4A7C15u;
        const auto bits = static_cast<Bits>(mixed ^ mixed >> 29);
        Element element;
        std::memcpy(&element, &bits, sizeof element);
        return element;
    }
}

} // namespace support
