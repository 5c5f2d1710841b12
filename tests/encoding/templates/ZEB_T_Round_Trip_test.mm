/// The records and archives of TT_PHRASE, there and back, in both byte orders, cut short, and through a link.
#include "tests/arrays/ZEB_T_Samples.hpp"
#include "tests/support/archives.hpp"
#include "tests/support/class_test.hpp"
#include "tests/support/exchange.hpp"

namespace
{

/// The record of a machine of the other byte order: every value after the count reversed.
ZEB_String *swapped(ZEB_String *record)
{
    ZEB_String *const made = [record duplicate];
    char *const data = [made char_data];
    std::reverse(data, data + 4);
    for (uint32_t at = 4; at < [made count]; at += sizeof(Element))
        std::reverse(data + at, data + at + sizeof(Element));
    return made;
}

/// Whether an element came back from an archive; references come back as other objects.
template <class Any>
bool come_alike(Any back, Any sent)
{
    if constexpr (std::is_same_v<Any, id>)
        return back == sent || [back isEqual:sent];
    else
        return are_identical(back, sent);
}

} // namespace

TEST(ZEB_T_Round_Trip, comes_back_the_same_or_not_at_all)
{
    Numbers all(samples().size() + 21);
    for (uint32_t i = 0; i < all.size(); ++i)
        all[i] = i % static_cast<uint32_t>(samples().size());
    ZEB_T_Array *const source = array_of(all);
    ZEB_String *const record = [ZEB_String array_with_capacity:0];
    [source ZEB_encode_binary_contents:record];
    if (std::is_same_v<Element, id>) {
        EXPECT_EQ([record count], 0u); // references leave no trace
        return;
    }
    const auto decode = [&](ZEB_T_Array *array, ZEB_String *from, int swaps) {
        return [array ZEB_decode_binary_contents:from needs_swap:swaps];
    };
    const char selector[] = "ZEB_decode_binary_contents:needs_swap:";
    ZEB_T_Array *const back = array_of({9});
    EXPECT_EQ(decode(back, record, 0), [record count]);
    EXPECT_EQ(numbers_of(back), all);
    EXPECT_EQ([back capacity], 64u);
    if (!is_object<Element>) {
        ZEB_T_Array *const from_afar = array_of({9});
        EXPECT_EQ(decode(from_afar, swapped(record), 1), [record count]);
        EXPECT_EQ(numbers_of(from_afar), all);
    }
    ZEB_String *const file = text("");
    ZEB_write_binary_header(file);
    [file append_array:record];
    leave_for_others("ZEB_T_Array", text_of(file));
    if (const auto theirs = left_by_others("ZEB_T_Array")) {
        uint8_t needs_swap;
        ZEB_read_binary_header(text(*theirs), &needs_swap);
        ZEB_T_Array *const from_others = array_of({9});
        decode(from_others, text(theirs->substr(std::min<size_t>(64, theirs->size()))), needs_swap);
        EXPECT_EQ(numbers_of(from_others), all);
    }
    for (const uint32_t length : {0u, 3u, 4u, 5u, [record count] - 1}) {
        ZEB_String *const part = [ZEB_String link_to_chars:[record char_data] count:length];
        EXPECT_EQ(standard_error_of([&] { EXPECT_EQ(decode(back, part, 0), 0u); }),
                  fix_line(selector, "ZEB_T_Array", "Binary contents are truncated, no decode performed."));
        EXPECT_EQ(numbers_of(back), all);
        EXPECT_EQ([back capacity], 64u);
    }
    ZEB_T_Array *const link = [ZEB_T_Array link_to_TT_words:[back TT_word_data] count:[back count]];
    EXPECT_EQ(standard_error_of([&] { decode(link, record, 0); }),
              fix_line(selector, "ZEB_T_Array",
                       "Cannot decode binary contents through link, no decode performed."));
    ZEB_String *const nothing = [ZEB_String array_with_capacity:0];
    [array_of({}) ZEB_encode_binary_contents:nothing];
    EXPECT_EQ(decode(back, nothing, 0), 4u);
    EXPECT_EQ([back count], 0u);
}

TEST(ZEB_T_Round_Trip, comes_back_from_archives_as_an_owner)
{
    constexpr bool is_address = std::is_same_v<Element, void *>, is_reference = std::is_same_v<Element, id>;
    Numbers all(samples().size());
    for (uint32_t i = 0; i < all.size(); ++i)
        all[i] = i;
    ZEB_T_Vector *const array = array_of(all), *const none = array_of({});
    ZEB_T_Vector *const vector = [[[ZEB_T_Vector alloc] init_as_copy_of_TT_word_vector:array] autorelease];
    ZEB_T_Vector *const link =
        [[[ZEB_T_Array alloc] init_as_link_to_TT_word_vector:array range:ZEB_Index_Range{1, 4}] autorelease];
    EXPECT_TRUE([ZEB_T_Array supportsSecureCoding] || is_reference);
    for (const bool keyed : {false, true})
        for (ZEB_T_Vector *const each : {array, vector, link, none}) {
            ZEB_T_Array *back = nil;
            const std::string lines = standard_error_of([&] { back = archived(each, keyed); });
            const char *const named = object_getClassName(each);
            const std::string not_archived =
                fix_line("encodeWithCoder:", named, "Addresses mean nothing in an archive, none archived.");
            // An archiver without keys goes through its objects twice.
            const std::string refusals =
                (keyed ? "" : not_archived) + not_archived +
                fix_line("initWithCoder:", named, "Addresses mean nothing in an archive, no object made.");
            EXPECT_EQ(lines, is_address ? refusals : "");
            EXPECT_EQ([back class], is_address ? Nil : [each class]);
            if (back == nil)
                continue;
            EXPECT_EQ([back count], [each count]);
            EXPECT_EQ([back link_marker], 0u);
            for (uint32_t i = 0; i < [back count]; ++i)
                EXPECT_TRUE(come_alike([back TT_word_at_index:i], [each TT_word_at_index:i])) << i;
            if (each == vector)
                continue;
            [back append_TT_word:samples()[0]];
            EXPECT_EQ([back count], [each count] + 1);
        }
}
