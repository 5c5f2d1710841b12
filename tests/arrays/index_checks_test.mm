/// Indexes past the end, where the build checks them: one row for each operation that does not check them
/// else.
#include "tests/support/class_test.hpp"
#include "tests/support/samples.hpp"

#include <functional>

namespace
{

constexpr char none_returned[] = "Index is not below the count, no element returned.";
constexpr char none_set[] = "Index is not below the count, no element set.";

} // namespace

TEST(Room, is_stored_in_before_it_is_counted)
{
    ZEB_Int_Array *const array = [ZEB_Int_Array array_with_capacity:4];
    EXPECT_EQ(standard_error_of([=] {
                  for (int32_t i = 0; i < 4; ++i)
                      [array set_int:10 + i at_index:static_cast<uint32_t>(i)];
                  [array set_count:4];
                  EXPECT_EQ([array int_at_index:3], 13);
                  EXPECT_EQ([array pointer_to_int_at_index:4] - [array int_data], 4);
              }),
              "");
}

TEST(Index_Checks, report_what_has_no_element_and_change_nothing)
{
#if ZEB_CHECK_INDEXES
    ZEB_Int_Array *const array = [ZEB_Int_Array array_with_capacity:4];
    [array append_int:7];
    [array append_int:8];
    ZEB_Int_Vector *const vector = [[[ZEB_Int_Vector alloc] init_as_copy_of_int_vector:array] autorelease];
    ZEB_Int_Vector *const link = [ZEB_Int_Array link_to_ints:[array int_data] count:2];
    ZEB_Stream *const stream = [ZEB_Error_Stream shared_error_stream];
    // By the number of slots that may be stored in.
    const struct {
        ZEB_Int_Vector *in;
        uint32_t slots;
    } places[] = {{array, 4}, {vector, 2}, {link, 2}};
    for (const auto &place : places) {
        ZEB_Int_Vector *const in = place.in;
        const uint32_t slots = place.slots;
        const char *const named = object_getClassName(in);
        const auto line = [=](const char *selector, const char *note) {
            return fix_line(selector, named, note);
        };
        const struct {
            std::function<bool()> is_neutral;
            std::string lines;
        } rows[] = {
            {[=] { return [in int_at_index:2] == 0; }, line("int_at_index:", none_returned)},
            {[=] { return [in ZEB_Int_element_at_index:UINT32_MAX] == 0; },
             line("ZEB_Int_element_at_index:", none_returned)},
            {[=] { return [in int_at_index_from_end:2] == 0; },
             line("int_at_index_from_end:", none_returned)},
            {[=] { return [in pointer_to_int_at_index:slots + 1] == nullptr; },
             line("pointer_to_int_at_index:", none_returned)},
            {[=] { return [in pointer_to_int_at_index_from_end:2] == nullptr; },
             line("pointer_to_int_at_index_from_end:", none_returned)},
            {[=] { return [in set_int:9 at_index:slots], true; }, line("set_int:at_index:", none_set)},
            {[=] { return [in set_int:9 at_index_from_end:2], true; },
             line("set_int:at_index_from_end:", none_set)},
            {[=] { return [in send_element_to_stream:2 stream:stream], true; },
             line("send_element_to_stream:stream:", none_returned) + "0"},
        };
        for (const auto &row : rows)
            EXPECT_EQ(standard_error_of([&] { EXPECT_TRUE(row.is_neutral()); }), row.lines);
        EXPECT_TRUE([in count] == 2 && [in first_int] == 7 && [in last_int] == 8);
        EXPECT_EQ(standard_error_of([=] { [in set_int:8 at_index:slots - 1]; }), "");
    }
    ZEB_Object_Array *const objects = [ZEB_Object_Array array_with_capacity:0];
    EXPECT_EQ(standard_error_of([=] { EXPECT_EQ([objects object_at_index:0], nil); }),
              fix_line("object_at_index:", "ZEB_Object_Array", none_returned));
    ZEB_String_Array *const strings = [ZEB_String_Array array_with_capacity:0];
    EXPECT_EQ(standard_error_of([=] { [strings set_string:text("a") at_index:0]; }),
              fix_line("set_string:at_index:", "ZEB_String_Array", none_set));
#else
    GTEST_SKIP() << "this build does not check indexes";
#endif
}
