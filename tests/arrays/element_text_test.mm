#import <Korvane_ZEB/Korvane_ZEB.h>

#include "tests/support/captured.hpp"
#include "tests/support/samples.hpp"

#include <gtest/gtest.h>

using support::standard_error_of;
using support::standard_output_of;

namespace
{

template <class Array>
std::string listed(Array *array)
{
    return standard_output_of([&] { [[ZEB_Stream shared_stream] write_object:array]; });
}

template <class Array>
std::string printed(Array *array)
{
    return standard_output_of([&] { [array print_on_stream:[ZEB_Stream shared_stream]]; });
}

} // namespace

TEST(Element_Text, goes_by_the_writer_of_the_type)
{
    const uint8_t bytes[] = {7, 200};
    EXPECT_EQ(listed([ZEB_Byte_Array link_to_bytes:const_cast<uint8_t *>(bytes) count:2]), "{7, 200}");
    EXPECT_EQ(printed([ZEB_Byte_Array link_to_bytes:const_cast<uint8_t *>(bytes) count:2]), "{7, 200}");

    double doubles[] = {0.1, 1e7, 123456.789};
    EXPECT_EQ(listed([ZEB_Double_Array link_to_doubles:doubles count:3]), "{0.1, 1e+07, 123457}");
    EXPECT_EQ(printed([ZEB_Double_Array link_to_doubles:doubles count:3]), "{0.1, 1e+07, 123456.789}");

    char chars[] = {'a', '\xFF'};
    ZEB_String *const text = [ZEB_String link_to_chars:chars count:1];
    EXPECT_EQ(listed(text), "{a}");
    EXPECT_EQ(printed([ZEB_String link_to_chars:chars count:2]), "{97, -1}");

    uint32_t units[] = {0x41, 0xE9};
    ZEB_Wide_String *const wide = [ZEB_Wide_String link_to_wide_chars:units count:2];
    EXPECT_EQ(listed(wide), "{'\\041', '\\0E9'}");

    ZEB_String_Array *const strings = [ZEB_String_Array array_with_capacity:0];
    [strings append_string:text];
    EXPECT_EQ(listed(strings) + printed(strings), "{a}{a}");
    ZEB_Wide_String_Array *const wides = [ZEB_Wide_String_Array array_with_capacity:0];
    [wides append_wide_string:wide];
    EXPECT_EQ(listed(wides) + printed(wides), "{A\xC3\xA9}{A\xC3\xA9}");

    ZEB_Object_Array *const objects = [ZEB_Object_Array array_with_capacity:0];
    [objects append_object:strings];
    EXPECT_EQ(listed(objects), "{{a}}");
    void *pointers[] = {reinterpret_cast<void *>(12)};
    EXPECT_EQ(listed([ZEB_Pointer_Array link_to_pointers:pointers count:1]), "{12}");
    EXPECT_EQ(printed([ZEB_Pointer_Array array_with_capacity:0]), "{}");
}

TEST(Element_Text, a_collection_prints_itself_for_a_diagnosis)
{
    void *pointers[] = {reinterpret_cast<void *>(12)};
    EXPECT_EQ(standard_error_of([&] { [[ZEB_Pointer_Array link_to_pointers:pointers count:1] print]; }),
              "List contents:\n{12}\n");
}

TEST(Element_Text, bytes_give_both_extremes_in_one_number)
{
    uint8_t bytes[] = {9, 3, 200};
    EXPECT_EQ([[ZEB_Byte_Array link_to_bytes:bytes count:3] minimum_and_maximum], 200u * 256 + 3);
    EXPECT_EQ([[ZEB_Byte_Array array_with_capacity:0] minimum_and_maximum], 0u);
}

extern "C" unsigned count_met_in_order(ZEB_String_Array *strings);

TEST(Enumeration, meets_every_element_once_and_in_order)
{
    ZEB_String_Array *const strings = [ZEB_String_Array array_with_capacity:0];
    EXPECT_EQ(count_met_in_order(strings), 0u);
    for (uint32_t i = 0; i < 40; ++i)
        [strings append_string:support::Sample<ZEB_String *>::at(i)];
    EXPECT_EQ(count_met_in_order(strings), 40u);
}
