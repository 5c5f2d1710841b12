/// Elements of every family, and what is to be told of them. Sample `i` differs from every other `i` below
/// 100.
#pragma once

#include "tests/support/strings.hpp"

#import <objc/runtime.h>

#include <algorithm>
#include <bit>
#include <cstdint>
#include <cstring>
#include <functional>
#include <limits>
#include <random>
#include <span>
#include <string>
#include <type_traits>
#include <vector>

namespace support
{

template <class Element>
struct Sample {
    static Element at(uint32_t i)
    {
        if constexpr (std::is_same_v<Element, void *>) {
            return reinterpret_cast<void *>(std::uintptr_t{i} * 16 + 16);
        } else if constexpr (std::is_same_v<Element, id>) {
            return [NSString stringWithFormat:@"an object with the number %u", i];
        } else if constexpr (std::is_same_v<Element, ZEB_String *>) {
            return text("text " + std::to_string(i));
        } else if constexpr (std::is_same_v<Element, ZEB_Wide_String *>) {
            const uint32_t units[] = {0x1F600 + i, 'w', i};
            return [[[ZEB_Wide_String alloc] init_as_copy_of_wide_chars:units count:3] autorelease];
        } else if constexpr (std::is_same_v<Element, ZEB_Byte_Array *>) {
            return bytes({7, static_cast<char>(i)});
        } else {
            return static_cast<Element>(i + 1);
        }
    }
};

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

/// The contents that tell such an element.
inline std::span<const uint8_t> contents_of(ZEB_String *string)
{
    return {reinterpret_cast<const uint8_t *>([string char_data]), [string count]};
}
inline std::span<const uint32_t> contents_of(ZEB_Wide_String *string)
{
    return {[string wide_char_data], [string count]};
}
inline std::span<const uint8_t> contents_of(ZEB_Byte_Array *bytes)
{
    return {[bytes byte_data], [bytes count]};
}

/// Returns what tells plain elements by their bits: which sample each is; ZEB_NOT_FOUND for what is none. Asked
/// for more than all else, and so optimised where tests are not.
std::function<std::vector<uint32_t>(const void *elements, size_t count)>
numbering(const void *samples, size_t sample_count, size_t element_size);

/// Whether two elements are the same bits, the same object, or have the same contents.
template <class Element>
bool are_identical(Element left, Element right)
{
    if constexpr (is_held<Element>) {
        const auto first = contents_of(left), second = contents_of(right);
        return first.size() == second.size() &&
               std::equal(first.data(), first.data() + first.size(), second.data());
    } else {
        return std::memcmp(&left, &right, sizeof left) == 0;
    }
}

/// Whether they are equal in their family.
template <class Element>
bool are_same(Element left, Element right)
{
    if constexpr (is_held<Element>)
        return are_identical(left, right);
    else
        return left == right;
}

/// Whether one element orders before the other in its family's own order.
template <class Element>
bool precedes(Element left, Element right)
{
    if constexpr (is_held<Element>)
        return std::ranges::lexicographical_compare(contents_of(left), contents_of(right));
    else if constexpr (std::is_same_v<Element, char>)
        return static_cast<signed char>(left) < static_cast<signed char>(right);
    else
        return left < right;
}

/// How many references there are to an element; only the family of references has any.
template <class Element>
uint32_t references_to(Element element)
{
    if constexpr (std::is_same_v<Element, id>)
        return static_cast<uint32_t>([element retainCount]);
    return 0;
}

/// Takes a reference more, or drops one.
template <class Element>
void change_references(Element element, int by)
{
    if constexpr (std::is_same_v<Element, id>)
        by > 0 ? void([element retain]) : [element release];
}

/// The mode of ownership, of a family that has one.
template <class Array>
void set_mode(Array *array, uint32_t mode)
{
    if constexpr (std::is_same_v<Array, ZEB_Object_Array>)
        [array set_ownership_mode:mode];
}

/// Lets the class of an element that is an object be made by another function.
template <class Element>
void replace_alloc(Element element, id (*alloc)(Class, SEL))
{
    // Added once; where a compiler binds `alloc` itself it is not met.
    if constexpr (is_held<Element>)
        class_addMethod(object_getClass([element class]), @selector(alloc), reinterpret_cast<IMP>(alloc),
                        "@@:");
}

/// Elements that are odd among those of their type; numbers that differ in their last bits only stand beside
/// one that is far away.
template <class Element>
std::vector<Element> odd_samples()
{
    // Characters are signed on every processor.
    using Limits =
        std::numeric_limits<std::conditional_t<std::is_same_v<Element, char>, signed char, Element>>;
    if constexpr (std::is_floating_point_v<Element>)
        return {1 + Limits::epsilon(),
                1 + 2 * Limits::epsilon(),
                Limits::max(),
                Limits::infinity(),
                Element(0),
                Limits::denorm_min(),
                -Element(0),
                -Element(2),
                -Limits::infinity(),
                Limits::quiet_NaN(),
                -Limits::quiet_NaN()};
    else if constexpr (std::is_arithmetic_v<Element>)
        return {static_cast<Element>(Limits::min()), static_cast<Element>(Limits::max())};
    else if constexpr (is_held<Element>)
        return {[[[[Sample<Element>::at(0) class] alloc] init] autorelease], Sample<Element>::at(10)};
    else
        return {Element()};
}

/// The first ten samples, the odd ones, and plain ones of any bits; each once, and alive for good.
template <class Element>
std::vector<Element> all_samples()
{
    std::vector<Element> all = odd_samples<Element>();
    for (uint32_t i = 10; i-- > 0;)
        all.insert(all.begin(), Sample<Element>::at(i));
    std::mt19937_64 random(1);
    while (!is_object<Element> && all.size() < 40) {
        Element any;
        // The same values on machines of either byte order.
        constexpr unsigned unused = std::endian::native == std::endian::big ? 64 - 8 * sizeof any : 0;
        const uint64_t bits = random() << unused;
        std::memcpy(&any, &bits, sizeof any);
        if (std::ranges::none_of(all, [=](Element other) { return are_identical(any, other); }))
            all.push_back(any);
    }
    if constexpr (is_object<Element>)
        for (const Element element : all)
            [element retain];
    return all;
}

} // namespace support
