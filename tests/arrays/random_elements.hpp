/// Seeded element runs for the differential tests of the vector algorithms.
#pragma once

#include <gtest/gtest.h>

#if ZEB_HAS_HIGHWAY
#include <hwy/highway.h>
#endif

#include <cmath>
#include <cstdint>
#include <cstring>
#include <limits>
#include <random>
#include <span>
#include <type_traits>
#include <vector>

namespace zeb_test
{

using Element_Types = testing::Types<uint8_t, char, int32_t, uint32_t, int64_t, float, double, void *>;

/// Ways to draw elements: few values with many equals, or the whole width of the type.
enum class Draw { Few_Values, Any_Bits };

template <class Element>
Element odd_value(std::mt19937 &random)
{
    if constexpr (std::is_floating_point_v<Element>) {
        using Limits = std::numeric_limits<Element>;
        const Element odd[] = {Limits::quiet_NaN(), -Limits::quiet_NaN(), Element(0),          -Element(0),
                               Limits::infinity(),  -Limits::infinity(),  Limits::denorm_min()};
        return odd[random() % std::size(odd)];
    } else if constexpr (std::is_pointer_v<Element>) {
        return reinterpret_cast<Element>(uintptr_t{random() % 2 == 0 ? 0 : UINTPTR_MAX});
    } else {
        return random() % 2 == 0 ? std::numeric_limits<Element>::min() : std::numeric_limits<Element>::max();
    }
}

template <class Element>
Element draw_element(std::mt19937 &random, Draw draw, bool odd)
{
    if (odd && random() % 8 == 0)
        return odd_value<Element>(random);
    const uint64_t bits = uint64_t{random()} << 32 | random();
    if constexpr (std::is_pointer_v<Element>) {
        return reinterpret_cast<Element>(
            static_cast<uintptr_t>(draw == Draw::Any_Bits ? bits : bits % 5 * 8));
    } else if constexpr (std::is_floating_point_v<Element>) {
        if (draw == Draw::Any_Bits)
            return static_cast<Element>(static_cast<int64_t>(bits)) * Element(1e-3);
        return static_cast<Element>(static_cast<int>(bits % 5) - 2);
    } else {
        return static_cast<Element>(draw == Draw::Any_Bits ? bits : bits % 5 + 126);
    }
}

template <class Element>
std::vector<Element> draw_elements(std::mt19937 &random, size_t count, Draw draw, bool odd = true)
{
    std::vector<Element> elements(count);
    for (Element &element : elements)
        element = draw_element<Element>(random, draw, odd);
    return elements;
}

/// Every length up to a few vectors, then some longer ones.
inline std::vector<size_t> lengths()
{
    std::vector<size_t> all;
    for (size_t length = 0; length <= 70; ++length)
        all.push_back(length);
    for (size_t length : {95, 127, 128, 129, 200, 257, 515, 1031, 4099})
        all.push_back(length);
    return all;
}

/// A copy of elements that starts at any offset from an aligned address, walled in by bytes that nothing
/// may touch.
template <class Element>
class Walled
{
public:
    Walled(const std::vector<Element> &elements, size_t offset)
        : room(elements.size() + offset + wall), start(offset + wall / 2), count(elements.size())
    {
        if (!room.empty())
            std::memset(static_cast<void *>(room.data()), 0xA5, room.size() * sizeof(Element));
        std::copy(elements.begin(), elements.end(), room.begin() + static_cast<std::ptrdiff_t>(start));
    }

    std::span<Element> span() { return {room.data() + start, count}; }
    std::vector<Element> elements() { return {span().begin(), span().end()}; }
    bool wall_stands() const
    {
        const auto *bytes = reinterpret_cast<const unsigned char *>(room.data());
        for (size_t i = 0; i < room.size() * sizeof(Element); ++i)
            if ((i < start * sizeof(Element) || i >= (start + count) * sizeof(Element)) && bytes[i] != 0xA5)
                return false;
        return true;
    }

private:
    static constexpr size_t wall = 128;
    std::vector<Element> room;
    size_t start;
    size_t count;
};

/// True when both are the same, bit for bit.
template <class Element>
bool same_bits(const std::vector<Element> &left, const std::vector<Element> &right)
{
    return left.size() == right.size() &&
           (left.empty() || std::memcmp(left.data(), right.data(), left.size() * sizeof(Element)) == 0);
}

template <class Element>
bool same_bits(Element left, Element right)
{
    return std::memcmp(&left, &right, sizeof left) == 0;
}

/// Runs the test once for each vector instruction set of this machine.
template <class Test>
void on_each_target(Test test)
{
#if ZEB_HAS_HIGHWAY
    for (const int64_t target : hwy::SupportedAndGeneratedTargets()) {
        SCOPED_TRACE(hwy::TargetName(target));
        hwy::SetSupportedTargetsForTest(target);
        hwy::GetChosenTarget().Update(hwy::SupportedTargets());
        test();
    }
    hwy::SetSupportedTargetsForTest(0);
    hwy::GetChosenTarget().Update(hwy::SupportedTargets());
#else
    test();
#endif
}

} // namespace zeb_test
