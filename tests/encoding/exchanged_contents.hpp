/// Contents for files that machines exchange: the same on each, of any bits.
#pragma once

#include "tests/support/strings.hpp"

#include <cstdint>
#include <cstring>

namespace support
{

inline uint64_t mixed_bits(uint32_t i)
{
    const uint64_t bits = (uint64_t{i} + 1) * 0x9E3779B97F4A7C15u;
    return bits ^ bits >> 29;
}

template <unsigned size>
struct Bits;
template <>
struct Bits<1> {
    using Type = uint8_t;
};
template <>
struct Bits<4> {
    using Type = uint32_t;
};
template <>
struct Bits<8> {
    using Type = uint64_t;
};

/// A number or a pointer, of the lowest of the mixed bits on every machine. Among the floating ones are NaNs.
template <class Element>
struct Exchanged {
    static Element at(uint32_t i)
    {
        const auto bits = static_cast<typename Bits<sizeof(Element)>::Type>(mixed_bits(i));
        Element element;
        std::memcpy(&element, &bits, sizeof element);
        return element;
    }
};

/// References leave no trace in a record: there is one to nothing.
template <>
struct Exchanged<id> {
    static id at(uint32_t) { return nil; }
};

template <>
struct Exchanged<ZEB_String *> {
    static ZEB_String *at(uint32_t i)
    {
        std::string characters;
        for (uint32_t n = 0; n < i % 19; ++n)
            characters += Exchanged<char>::at(19 * i + n);
        return text(characters);
    }
};

template <>
struct Exchanged<ZEB_Byte_Array *> {
    static ZEB_Byte_Array *at(uint32_t i) { return bytes(text_of(Exchanged<ZEB_String *>::at(i + 7))); }
};

template <>
struct Exchanged<ZEB_Wide_String *> {
    static ZEB_Wide_String *at(uint32_t i)
    {
        std::u32string units;
        for (uint32_t n = 0; n < i % 19; ++n)
            units += Exchanged<char32_t>::at(19 * i + n);
        return wide_text(units);
    }
};

/// As many elements as the record of a family has here.
template <class Element>
constexpr uint32_t exchanged_count = std::is_same_v<Element, id> ? 0 : 1003;

} // namespace support
