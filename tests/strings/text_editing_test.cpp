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
    void put(const char *bytes, size_t length, bool append)
    {
        if (append)
            engine::append_c_string(storage(), bytes, static_cast<uint32_t>(length), report());
        else
            engine::copy_c_string(storage(), bytes, static_cast<uint32_t>(length), report());
    }
};

template <class Character>
class Text_Editing : public testing::Test
{
};
using Characters = testing::Types<char, uint32_t>;
TYPED_TEST_SUITE(Text_Editing, Characters);

} // namespace

/// Text that grows by steps, now and then with a part of itself.
TYPED_TEST(Text_Editing, keeps_text_and_capacity_of_the_literal_steps)
{
    using C = TypeParam;
    std::mt19937 random(4);
    for (unsigned walk = 0; walk < 300; ++walk) {
        Fields<C> ours;
        std::vector<C> literal;
        uint32_t capacity = 0;
        for (unsigned step = 0; step < 60; ++step) {
            const bool appends = random() % 5 != 0, terminates = sizeof(C) == 1 && random() % 8 == 0;
            std::string bytes = terminates ? "" : draw_text(random, random() % 41, step % 3 == 0 ? "" : "ab");
            const char *source = bytes.data(), *const own = reinterpret_cast<const char *>(ours.data);
            if (ours.count != 0 && random() % 4 == 0 && !terminates) {
                const size_t start = random() % ours.count;
                source = own + start;
                bytes.assign(source, random() % (ours.count - start));
            }
            literal.resize(appends || terminates ? literal.size() : 0);
            for (const C unit : widened<C>(bytes))
                literal.push_back(unit);
            if (capacity <= literal.size() || capacity == 0)
                for (capacity = std::max(capacity, 16u); capacity <= literal.size();)
                    capacity *= 2;
            if constexpr (sizeof(C) == 1) {
                if (terminates)
                    engine::append_null_terminator(ours.storage(), ours.report());
            }
            if (!terminates)
                ours.put(source, bytes.size(), appends);
            ASSERT_EQ(ours.text(), literal);
            ASSERT_EQ(ours.capacity, capacity);
            ASSERT_TRUE(!terminates || ours.data[ours.count] == 0);
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
            ours.put(bytes.data(), length, false);
            ASSERT_EQ(ours.text(), widened<C>(bytes.substr(0, length)));
        }
    });
}

TYPED_TEST(Text_Editing, reports_a_size_that_cannot_be_had)
{
    using C = TypeParam;
    Fields<C> ours;
    ours.put("abc", 3, false);
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
