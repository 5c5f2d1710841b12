#include "arrays/engine/storage/occurrences.hpp"
#include "strings/engine/c_strings.hpp"

#include "core/engine/namespace.hpp"
#include "tests/arrays/random_elements.hpp"
#include "tests/reference/strings.hpp"
#include "tests/strings/random_text.hpp"

#include <gtest/gtest.h>

using namespace zeb_test;

namespace
{

/// A string's fields, without its class.
template <class Character>
struct Fields {
    Character *data = nullptr;
    uint32_t count = 0;
    uint32_t capacity = 0;
    uint32_t marker = 0;
    std::vector<std::string> notes = {};

    Fields() = default;
    Fields(const Fields &) = delete;
    Fields &operator=(const Fields &) = delete;
    ~Fields() { engine::release(marker == 0 ? data : nullptr); }

    engine::Text_Storage<Character> storage() { return {{data, count, marker, {}}, capacity, 16}; }
    auto report()
    {
        return [this](engine::Char_Span note) { notes.emplace_back(note.char_c_array, note.length); };
    }
    std::vector<Character> text() const { return {data, data + count}; }
    void put(const std::string &bytes, bool append)
    {
        const uint32_t length = static_cast<uint32_t>(bytes.size());
        if (append)
            engine::append_c_string(storage(), bytes.data(), length, report());
        else
            engine::copy_c_string(storage(), bytes.data(), length, report());
    }
    uint32_t replace(std::span<const Character> pattern, std::span<const Character> replacement)
    {
        return engine::replace_occurrences(storage(), pattern, replacement, report());
    }
};

template <class Character>
class Text_Editing : public testing::Test
{
};
using Characters = testing::Types<char, uint32_t>;
TYPED_TEST_SUITE(Text_Editing, Characters);

} // namespace

TYPED_TEST(Text_Editing, keeps_text_and_capacity_of_the_literal_steps)
{
    using C = TypeParam;
    std::mt19937 random(4);
    for (unsigned walk = 0; walk < 150; ++walk) {
        Fields<C> ours;
        reference::Grown_Text<C> literal;
        for (unsigned step = 0; step < 60; ++step) {
            const std::string bytes = draw_text(random, random() % 41, step % 3 == 0 ? "" : "ab");
            if (const unsigned choice = random() % 8; choice < 5) {
                ours.put(bytes, choice != 0);
                literal.put(bytes, choice != 0);
            } else if (choice < 7) {
                const auto pattern = widened<C>(draw_text(random, random() % 4, "ab"));
                const auto replacement = widened<C>(draw_text(random, random() % 5, "ab"));
                ASSERT_EQ(ours.replace(pattern, replacement), literal.replace(pattern, replacement));
            } else if constexpr (sizeof(C) == 1) {
                engine::append_null_terminator(ours.storage(), ours.report());
                literal.terminate();
                ASSERT_EQ(ours.data[ours.count], '\0');
            }
            ASSERT_EQ(ours.text(), literal.text);
            ASSERT_EQ(ours.capacity, literal.capacity);
        }
        EXPECT_TRUE(ours.notes.empty());
    }
}

TYPED_TEST(Text_Editing, widens_every_byte_at_every_length)
{
    using C = TypeParam;
    on_each_target([] {
        std::string bytes(300, ' ');
        for (size_t i = 0; i < bytes.size(); ++i)
            bytes[i] = static_cast<char>(i);
        for (size_t length = 0; length <= bytes.size(); ++length) {
            Fields<C> ours;
            ours.put(bytes.substr(0, length), false);
            ASSERT_EQ(ours.text(), widened<C>(bytes.substr(0, length)));
        }
    });
}

TYPED_TEST(Text_Editing, reads_its_own_text_as_if_it_were_a_copy)
{
    using C = TypeParam;
    std::mt19937 random(5);
    for (unsigned turn = 0; turn < 2000; ++turn) {
        const std::string text = draw_text(random, random() % 40, "ab");
        const auto cut = [&](const auto &from) {
            const size_t start = random() % (from.size() + 1);
            return from.subspan(start, random() % (from.size() - start + 1));
        };
        Fields<C> ours;
        ours.put(text, false);
        const std::span<const C> own(ours.data, ours.count);
        const auto pattern = cut(own.first(own.size() / 4)), replacement = cut(own);
        reference::Grown_Text<C> literal{ours.text(), ours.capacity};
        const uint32_t matches =
            literal.replace({pattern.begin(), pattern.end()}, {replacement.begin(), replacement.end()});
        ASSERT_EQ(ours.replace(pattern, replacement), matches);
        ASSERT_EQ(ours.text(), literal.text);
        ASSERT_EQ(ours.capacity, literal.capacity);

        const std::span<const char> bytes(reinterpret_cast<const char *>(ours.data), ours.count);
        const auto part = cut(bytes);
        const std::string copy(part.begin(), part.end());
        literal.put(copy, turn % 2 == 0);
        if (turn % 2 == 0)
            engine::append_c_string(ours.storage(), part.data(), static_cast<uint32_t>(part.size()),
                                    ours.report());
        else
            engine::copy_c_string(ours.storage(), part.data(), static_cast<uint32_t>(part.size()),
                                  ours.report());
        ASSERT_EQ(ours.text(), literal.text);
        ASSERT_EQ(ours.capacity, literal.capacity);
    }
}

TYPED_TEST(Text_Editing, refuses_on_a_link)
{
    using C = TypeParam;
    C viewed[] = {'a', 'b', 'a'};
    const C b[] = {'b'};
    Fields<C> link;
    link.data = viewed;
    link.count = 3;
    link.capacity = engine::capacity_of_links;
    link.marker = 10001;
    link.put("", false);
    link.put("", true);
    EXPECT_EQ(link.replace(b, b), 0u);
    EXPECT_EQ(link.replace({}, b), 0u);
    std::vector<std::string> notes = {"Cannot copy c string through link, no copy made.",
                                      "Cannot append c string through link, no append made.",
                                      "Can not replace occurences through a link",
                                      "Can not replace occurences through a link"};
    if constexpr (sizeof(C) == 1) {
        engine::append_null_terminator(link.storage(), link.report());
        notes.push_back("Cannot append null terminator through link, no append made.");
    }
    EXPECT_EQ(link.notes, notes);
    EXPECT_EQ(link.text(), (std::vector<C>{'a', 'b', 'a'}));
}

TYPED_TEST(Text_Editing, reports_a_size_that_cannot_be_had)
{
    using C = TypeParam;
    Fields<C> ours;
    ours.put("abc", false);
    ours.count = UINT32_MAX - 1;
    engine::append_c_string(ours.storage(), "xyz", 3, ours.report());
    EXPECT_EQ(ours.notes, std::vector<std::string>{"Runtime error in reallocate macro"});
    EXPECT_EQ(ours.count, UINT32_MAX - 1);
    EXPECT_EQ(ours.capacity, 16u);
    ours.count = 3;
    EXPECT_EQ(ours.text(), widened<C>("abc"));
    Fields<C> fresh;
    engine::copy_c_string(fresh.storage(), "x", UINT32_MAX, fresh.report());
    EXPECT_EQ(fresh.notes, std::vector<std::string>{"Runtime error in allocate macro"});
    EXPECT_EQ(fresh.data, nullptr);
}
