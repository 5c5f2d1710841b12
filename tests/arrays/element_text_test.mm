#include "tests/support/class_test.hpp"
#include "tests/support/samples.hpp"

namespace
{

uint8_t small_bytes[] = {7, 200, 3};
double doubles[] = {0.1, 1e7, 123456.789};
char chars[] = {'a', '\xFF'};
uint32_t units[] = {0x41, 0xE9};
void *pointers[] = {reinterpret_cast<void *>(12)};

} // namespace

TEST(Element_Text, goes_by_the_writer_of_the_type)
{
    ZEB_Byte_Array *const some_bytes = [ZEB_Byte_Array link_to_bytes:small_bytes count:3];
    ZEB_Wide_String *const wide = [ZEB_Wide_String link_to_wide_chars:units count:2];
    ZEB_String_Array *const strings = [ZEB_String_Array array_with_capacity:0];
    [strings append_string:support::text("a")];
    ZEB_Wide_String_Array *const wides = [ZEB_Wide_String_Array array_with_capacity:0];
    [wides append_wide_string:wide];
    ZEB_Object_Array *const objects = [ZEB_Object_Array array_with_capacity:0];
    [objects append_object:strings];
    // What an array writes as an object, and what it prints of its elements.
    const struct {
        id array;
        const char *listed, *printed;
    } rows[] = {{some_bytes, "{7, 200, 3}", "{7, 200, 3}"},
                {[ZEB_Double_Array link_to_doubles:doubles count:3], "{0.1, 1e+07, 123457}",
                 "{0.1, 1e+07, 123456.789}"},
                {support::text("a"), "{a}", "{97}"},
                {wide, "{'\\041', '\\0E9'}", "{65, 233}"},
                {strings, "{a}", "{a}"},
                {wides, "{A\xC3\xA9}", "{A\xC3\xA9}"},
                {objects, "{{a}}", "{{a}}"},
                {[ZEB_Pointer_Array link_to_pointers:pointers count:1], "{12}", "{12}"},
                {[ZEB_Pointer_Array array_with_capacity:0], "{}", "{}"}};
    ZEB_Stream *const stream = [ZEB_Stream shared_stream];
    for (const auto &row : rows) {
        EXPECT_EQ(support::standard_output_of([&] { [stream write_object:row.array]; }), row.listed);
        EXPECT_EQ(support::standard_output_of([&] { [row.array print_on_stream:stream]; }), row.printed);
    }
    EXPECT_EQ(support::standard_error_of([&] { [some_bytes print]; }), "List contents:\n{7, 200, 3}\n");
    EXPECT_EQ([some_bytes minimum_and_maximum], 200u * 256 + 3);
    EXPECT_EQ([[ZEB_Byte_Array array_with_capacity:0] minimum_and_maximum], 0u);
}

/// Characters are signed bytes on every processor.
TEST(Element_Text, shows_characters_as_signed_numbers)
{
    ZEB_Stream *const stream = [[[ZEB_Stream alloc] init] autorelease];
    [stream set_char_format:"%d"];
    ZEB_String *const text = [ZEB_String link_to_chars:chars count:2];
    EXPECT_EQ(support::standard_output_of([&] { [text print_on_stream:stream]; }), "{97, -1}");
    EXPECT_EQ(support::standard_output_of([&] { [text send_to_stream:stream]; }), "{97, -1}");
}

TEST(Enumeration, meets_every_element_once_and_in_order)
{
    ZEB_String_Array *const strings = [ZEB_String_Array array_with_capacity:0];
    [strings set_length:40];
    // As `for in` does, which Objective-C++ on this runtime does not have.
    NSFastEnumerationState state = {};
    id room[16];
    uint32_t met = 0;
    while (const NSUInteger more = [strings countByEnumeratingWithState:&state objects:room count:16])
        for (NSUInteger i = 0; i < more; ++i)
            EXPECT_EQ(state.itemsPtr[i], [strings string_at_index:met++]);
    EXPECT_EQ(met, 40u);
    EXPECT_NE(state.mutationsPtr, nullptr);
}
