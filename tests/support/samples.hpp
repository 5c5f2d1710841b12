/// Elements of every family, and what is to be told of them. Sample `i` differs from every other `i` below
/// 100.
#pragma once

#import <Korvane_ZEB/Korvane_ZEB.h>

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <limits>
#include <string>
#include <type_traits>
#include <vector>

namespace support
{

template <class Number>
struct Sample {
    static Number at(uint32_t i) { return static_cast<Number>(i + 1); }
};

template <>
struct Sample<void *> {
    static void *at(uint32_t i) { return reinterpret_cast<void *>(std::uintptr_t{i} * 16 + 16); }
};

template <>
struct Sample<id> {
    static id at(uint32_t i) { return [NSString stringWithFormat:@"an object with the number %u", i]; }
};

template <>
struct Sample<ZEB_String *> {
    static ZEB_String *at(uint32_t i)
    {
        const std::string text = "text " + std::to_string(i);
        return [[[ZEB_String alloc] init_as_copy_of_chars:text.data()
                                                    count:static_cast<uint32_t>(text.size())] autorelease];
    }
};

template <>
struct Sample<ZEB_Wide_String *> {
    static ZEB_Wide_String *at(uint32_t i)
    {
        const uint32_t units[] = {0x1F600 + i, 'w', i};
        return [[[ZEB_Wide_String alloc] init_as_copy_of_wide_chars:units count:3] autorelease];
    }
};

template <>
struct Sample<ZEB_Byte_Array *> {
    static ZEB_Byte_Array *at(uint32_t i)
    {
        const uint8_t bytes[] = {7, static_cast<uint8_t>(i)};
        return [[[ZEB_Byte_Array alloc] init_as_copy_of_bytes:bytes count:2] autorelease];
    }
};

template <class Element>
bool are_same(Element left, Element right)
{
    return left == right;
}

inline bool are_same(id left, id right) { return left == right || [left isEqual:right]; }
inline bool are_same(ZEB_String *left, ZEB_String *right) { return [left isEqual:right]; }
inline bool are_same(ZEB_Wide_String *left, ZEB_Wide_String *right) { return [left isEqual:right]; }
inline bool are_same(ZEB_Byte_Array *left, ZEB_Byte_Array *right) { return [left isEqual:right]; }

/// Whether one element orders before the other in its family's own order.
template <class Element>
bool precedes(Element left, Element right)
{
    return left < right;
}

template <>
inline bool precedes(char left, char right)
{
    return static_cast<signed char>(left) < static_cast<signed char>(right);
}

template <>
inline bool precedes(ZEB_String *left, ZEB_String *right)
{
    return std::string([left char_data], [left count]) < std::string([right char_data], [right count]);
}

template <>
inline bool precedes(ZEB_Wide_String *left, ZEB_Wide_String *right)
{
    return std::lexicographical_compare([left wide_char_data], [left wide_char_data] + [left count],
                                        [right wide_char_data], [right wide_char_data] + [right count]);
}

template <>
inline bool precedes(ZEB_Byte_Array *left, ZEB_Byte_Array *right)
{
    return std::lexicographical_compare([left byte_data], [left byte_data] + [left count], [right byte_data],
                                        [right byte_data] + [right count]);
}

inline ZEB_UInt_Array *indexes_of(const std::vector<uint32_t> &numbers)
{
    return [[[ZEB_UInt_Array alloc] init_as_copy_of_uints:numbers.data()
                                                    count:static_cast<uint32_t>(numbers.size())] autorelease];
}

/// Elements that are objects, and those whose contents an array copies into objects of its own.
template <class Element>
constexpr bool is_object = std::is_convertible_v<Element, id> && !std::is_same_v<Element, void *>;
template <class Element>
constexpr bool is_held = is_object<Element> && !std::is_same_v<Element, id>;

/// Whether two elements are the same bits, the same object, or have the same contents.
template <class Element>
bool are_identical(Element left, Element right)
{
    if constexpr (is_held<Element>)
        return are_same(left, right);
    else
        return std::memcmp(&left, &right, sizeof left) == 0;
}

/// The element as it is now: objects that an array holds may be overwritten later.
template <class Element>
Element as_it_is(Element element)
{
    if constexpr (is_held<Element>)
        return [element duplicate];
    else
        return element;
}

/// References: those to an element, one more, one less; only the family of references has any.
template <class Element>
uint32_t references_to(Element)
{
    return 0;
}
inline uint32_t references_to(id object) { return static_cast<uint32_t>([object retainCount]); }
template <class Element>
void take(Element)
{
}
inline void take(id object) { [object retain]; }
template <class Element>
void let_go(Element)
{
}
inline void let_go(id object) { [object release]; }

/// The mode of ownership, of a family that has one.
template <class Array>
void set_mode(Array *, uint32_t)
{
}
inline void set_mode(ZEB_Object_Array *array, uint32_t mode) { [array set_ownership_mode:mode]; }

/// Keeps elements that are objects alive for good.
template <class Element>
void keep(const std::vector<Element> &elements)
{
    if constexpr (is_object<Element>)
        for (const Element element : elements)
            [element retain];
}

/// Elements that are odd among those of their type.
template <class Element>
std::vector<Element> odd_samples()
{
    using Limits = std::numeric_limits<Element>;
    if constexpr (std::is_floating_point_v<Element>)
        return {Limits::quiet_NaN(), -Limits::quiet_NaN(), Element(0),
                -Element(0),         Limits::infinity(),   -Limits::infinity()};
    else if constexpr (std::is_arithmetic_v<Element>)
        return {Limits::min(), Limits::max()};
    else if constexpr (is_held<Element>)
        return {[[[[Sample<Element>::at(0) class] alloc] init] autorelease], Sample<Element>::at(10)};
    else
        return {Element()};
}

/// The first ten samples and the odd ones, kept alive.
template <class Element>
std::vector<Element> all_samples()
{
    std::vector<Element> all;
    for (uint32_t i = 0; i < 10; ++i)
        all.push_back(Sample<Element>::at(i));
    const std::vector<Element> odd = odd_samples<Element>();
    all.insert(all.end(), odd.begin(), odd.end());
    keep(all);
    return all;
}

} // namespace support
