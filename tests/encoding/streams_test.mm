#import <Korvane_ZEB/ZEB_String_Views.hpp>

#include "tests/support/class_test.hpp"
#include "tests/support/scratch_folder.hpp"

#include <csignal>
#include <fcntl.h>
#include <sys/stat.h>

namespace
{

template <class Value>
std::string raw(Value value)
{
    return {reinterpret_cast<const char *>(&value), sizeof value};
}

/// A write, its text, and the bytes that a binary stream gives instead.
struct Row {
    void (*write)(ZEB_Stream *stream);
    std::string text;
    std::string raw = text;
};

#define WRITES(...) [](ZEB_Stream *s) { __VA_ARGS__; }

const std::string long_text(5000, 'x'), wide_one = std::string(1497, ' ') + "1.0";

const Row rows[] = {
    {WRITES([s write_double:0.1]), "0.1", raw(0.1)},
    {WRITES([s write_double:-1e300]), "-1e+300", raw(-1e300)},
    {WRITES([s write_double_with_format:2.5 format:"<%.2f>"]), "<2.50>", raw(2.5)},
    {WRITES([s write_double_with_format:2.5 format:NULL]), "2.5", raw(2.5)},
    {WRITES([s write_double_with_format:1 format:"%1500.1f"]), wide_one, raw(1.0)},
    {WRITES([s write_float:0.1f]), "0.1", raw(0.1f)},
    {WRITES([s write_float_with_format:1.5f format:"%g!"]), "1.5!", raw(1.5f)},
    {WRITES([s write_int:INT32_MIN]), "-2147483648", raw(INT32_MIN)},
    {WRITES([s write_int_with_format:7 format:"%03d"]), "007", raw(7)},
    {WRITES([s write_unsigned:4000000000u]), "4000000000", raw(4000000000u)},
    {WRITES([s write_unsigned_with_format:7 format:"%x,"]), "7,", raw(7u)},
    {WRITES([s write_char:'c']), "c"},
    {WRITES([s write_char:0]), std::string(1, '\0')},
    {WRITES([s write_char_with_format:200 format:"%d"]), "200", "\xC8"},
    {WRITES([s write_character_code:65]), "'\\041'", raw(65u)},
    {WRITES([s write_character_code_with_format:65 format:"U+%04X"]), "U+0041", raw(65u)},
    {WRITES([s write_hex:0xABCD]), "0000ABCD", raw(0xABCDu)},
    {WRITES([s write_hex_with_format:0xABCD format:"%x"]), "abcd", raw(0xABCDu)},
    {WRITES([s write_unsigned_long:UINT64_MAX]), "18446744073709551615", raw(UINT64_MAX)},
    {WRITES([s write_unsigned_long_with_format:5 format:"%lu;"]), "5;", raw(uint64_t{5})},
    {WRITES([s write_string_with_format:text("ab") format:"[%4s]"]), "[  ab]", "ab"},
    {WRITES([s write_string:text("\xE9t\xE9")]), "\xE9t\xE9"},
    {WRITES([s write_string:nil]), ""},
    {WRITES([s write_bytes:"one two" length:3]), "one"},
    {WRITES([s write_string:text(long_text)]), long_text},
    {WRITES([s ZEB_send_list:ints({1, 2})]), "12", raw(1) + raw(2)},
    {WRITES([s write_object_with_format:ints({}) format:"ignored"]), "{}"},
};

/// What the rows give one after the other.
std::string text_of_rows(std::string Row::*part)
{
    std::string all;
    for (const Row &row : rows)
        all += row.*part;
    return all;
}

void write_rows(ZEB_Stream *stream)
{
    for (const Row &row : rows)
        row.write(stream);
}

class File_Streams : public testing::Test
{
protected:
    const Scratch_Folder folder;
    ZEB_File_Stream *const stream = [[[ZEB_File_Stream alloc] init] autorelease];

    template <class Stream>
    std::string written(void (*write)(ZEB_Stream *))
    {
        const std::string path = folder / "written";
        Stream *const writer = [[[Stream alloc] init_for_writing:text(path)] autorelease];
        write(writer);
        EXPECT_EQ([writer close], 1); // nothing has failed
        return file_text(path);
    }
};

} // namespace

TEST_F(File_Streams, every_writer_writes_the_same_onto_every_stream)
{
    const std::string expected = text_of_rows(&Row::text);
    EXPECT_EQ(standard_output_of([] { write_rows([ZEB_Stream shared_stream]); }), expected);
    EXPECT_EQ(written<ZEB_File_Stream>(write_rows), expected);

    ZEB_String_Stream *const narrow = [[[ZEB_String_Stream alloc] init] autorelease];
    write_rows(narrow);
    EXPECT_EQ(text_of([narrow target]), expected);

    ZEB_Wide_String_Stream *const wide = [[[ZEB_Wide_String_Stream alloc] init] autorelease];
    write_rows(wide);
    const std::u32string_view units = zeb::view([wide target]);
    const auto is_widened = [](char32_t unit, signed char c) { return unit == static_cast<char32_t>(c); };
    EXPECT_TRUE(std::equal(units.begin(), units.end(), expected.begin(), expected.end(), is_widened));
    // Both names of the reset are one operation.
    [wide reset_failure_count];
    EXPECT_EQ([[wide target] count], 0u);
}

TEST_F(File_Streams, binary_streams_write_the_bytes_of_values)
{
    // The list of the last row is text on a file, and nothing on a string.
    const std::string expected = text_of_rows(&Row::raw);
    EXPECT_EQ(written<ZEB_Binary_File_Stream>(write_rows), expected);
    const auto list = written<ZEB_Binary_File_Stream>(WRITES([s ZEB_send_delimited_list:ints({1, 2})]));
    EXPECT_EQ(list, "{" + raw(1) + ", " + raw(2) + "}");
    ZEB_Binary_String_Stream *const stream = [[[ZEB_Binary_String_Stream alloc] init] autorelease];
    write_rows(stream);
    EXPECT_EQ(text_of([stream target]), expected.substr(0, expected.size() - 2));
}

TEST(Binary_String_Stream, a_list_is_followed_by_the_element_behind_it)
{
    ZEB_Binary_String_Stream *const stream = [[[ZEB_Binary_String_Stream alloc] init] autorelease];
    const auto listed = [=](ZEB_Collection *list) {
        [stream reset];
        [stream ZEB_send_delimited_list:list];
        return text_of([stream target]);
    };
    ZEB_Int_Array *const owner = ints({1, 2, 3});
    [owner int_data][3] = 77;
    EXPECT_EQ(listed(owner), raw(1) + raw(2) + raw(3) + raw(77));
    EXPECT_EQ(listed([ZEB_Int_Array link_to_ints:[owner int_data] count:2]), raw(1) + raw(2) + raw(0));
    EXPECT_EQ(listed([[owner copy] autorelease]), raw(1) + raw(2) + raw(3) + raw(0));
    EXPECT_EQ(listed(ints({})), "");

    ZEB_String_Array *const strings = [ZEB_String_Array array_with_capacity:0];
    [strings append_string:text("ab")];
    EXPECT_EQ(listed(strings), "ab");
    [strings append_string:text("cd")];
    [strings set_count:1];
    EXPECT_EQ(listed(strings), "abcd");

    ZEB_Object_Array *const objects = [ZEB_Object_Array array_with_capacity:0];
    [objects append_object:owner];
    EXPECT_EQ(listed(objects), listed(owner));
    EXPECT_EQ(listed([[[ZEB_Collection alloc] init] autorelease]), "");
}

TEST(String_Stream, a_target_belongs_to_whoever_made_it)
{
    ZEB_String *const first = text("");
    ZEB_String_Stream *const stream = [[[ZEB_String_Stream alloc] init_with_string:first] autorelease];
    EXPECT_EQ([stream owns_target], 0);
    [stream ZEB_send_delimited_list:ints({1, 2, 3})];
    EXPECT_EQ(text_of(first), "{1, 2, 3}");
    [stream set_string:text("kept ")];
    [stream write_string:[stream target]];
    EXPECT_EQ(text_of([stream target]), "kept kept ");
    EXPECT_EQ([first retainCount], 1u);

    ZEB_String_Stream *const owner = [[[ZEB_String_Stream alloc] init] autorelease];
    EXPECT_EQ([[owner target] capacity], 1024u);
    [owner set_read_position:3];
    [owner set_string:[owner target]];
    EXPECT_EQ([owner owns_target], 1);
    EXPECT_EQ([owner read_position], 0u);
    [owner set_formatting_buffer:NULL];
    [owner write_hex:1];
    EXPECT_EQ(text_of([owner target]), "00000001");
}

TEST(String_Stream, what_a_target_does_not_take_is_counted)
{
    char viewed[] = "viewed";
    for (ZEB_String *const target : {[ZEB_String link_to_chars:viewed count:4], (ZEB_String *)nil}) {
        ZEB_String_Stream *const stream = [[[ZEB_String_Stream alloc] init_with_string:target] autorelease];
        standard_error_of([=] {
            [stream write_int:5];
            [stream write_hex:5];
        });
        EXPECT_EQ([stream failure_count], 2u);
        [stream reset];
        EXPECT_EQ([stream failure_count], 0u);
    }
    EXPECT_STREQ(viewed, "viewed");
}

TEST_F(File_Streams, paths_stand_in_the_default_directory)
{
    put_file(folder / "here", "12 0x");
    [ZEB_File_Stream set_default_directory:text(folder.path)];
    EXPECT_EQ([stream open_for_reading:text("here")], 1);
    EXPECT_EQ(text_of([stream path]), folder / "here");
    EXPECT_EQ([stream read_int], 12);
    EXPECT_EQ([stream open_for_reading:[stream path]], 1);
    EXPECT_EQ([stream open_for_reading:text(folder / "here")], 1);
    // The null at the end of a path that was set aside is no part of it; any other is.
    EXPECT_EQ([stream open_for_reading:text(std::string("here\0", 5))], 1);
    EXPECT_EQ([stream open_for_reading:text(std::string("here\0there", 10))], 0);
    EXPECT_EQ([stream open_for_reading:nil], 0);
    [stream set_path_from_c_string:"here"];
    EXPECT_EQ([stream reopen_for_reading], 1);
    [ZEB_File_Stream set_default_directory:nil];
    EXPECT_EQ([stream open_for_reading:text("here")], 0);
    EXPECT_EQ([stream close], 0);
    EXPECT_EQ([stream is_good], 1);
}

TEST_F(File_Streams, whole_contents_are_read_or_counted)
{
    put_file(folder / "some", "0123456789");
    put_file(folder / "none", "");
    ZEB_String *const target = text("before");
    [stream open_for_reading:text(folder / "none")];
    [stream read_contents:target];
    EXPECT_EQ(text_of(target), "before");
    EXPECT_EQ([stream is_good], 1);

    [stream open_for_reading:text(folder / "some")];
    [stream read_char];
    [stream read_contents:target];
    EXPECT_EQ(text_of(target), std::string("123456789\0", 10));
    EXPECT_EQ([stream failure_count], 1u);

    unlink((folder / "some").c_str());
    [stream read_contents:target];
    [stream close];
    [stream read_contents:target];
    EXPECT_EQ([stream failure_count], 1u);
    EXPECT_EQ([target count], 10u);
}

TEST_F(File_Streams, binary_readers_read_back_either_order)
{
    ZEB_Binary_File_Stream *const reader = [[[ZEB_Binary_File_Stream alloc] init] autorelease];
    std::string values, swapped;
    for (const std::string &one : {raw(2.5), raw(-7), raw(7u), raw(0.5f), std::string("\xFF")}) {
        values += one;
        swapped.append(one.rbegin(), one.rend());
    }
    for (const uint8_t needs_swap : {0, 1}) {
        put_file(folder / "values", needs_swap ? swapped : values);
        [reader set_needs_swap:needs_swap];
        EXPECT_EQ([reader open_for_reading:text(folder / "values")], 1);
        EXPECT_EQ([reader read_double], 2.5);
        EXPECT_EQ([reader read_int_with_format:"ignored"], -7);
        EXPECT_EQ([reader read_unsigned], 7u);
        EXPECT_EQ([reader read_float], 0.5f);
        EXPECT_EQ([reader read_char], -1);
        EXPECT_EQ([reader is_good], 1);
        EXPECT_EQ([reader read_double], 0);
        EXPECT_EQ([reader failure_count], 1u);
    }
}

TEST_F(File_Streams, failures_are_counted_and_nothing_else_happens)
{
    EXPECT_EQ(standard_output_of([&] { write_rows(stream); }), "");
    EXPECT_GE([stream failure_count], std::size(rows));
    EXPECT_EQ([stream read_int], 0);
    [stream reset];
    [stream write_string_with_format:text("x") format:"%s"];
    [stream flush];
    EXPECT_EQ([stream failure_count], 2u);

    EXPECT_EQ([stream open_for_writing:text(folder / "no/such/folder")], 0);
    EXPECT_EQ([stream failure_count], 1u);
    EXPECT_EQ([stream open_for_writing:text(folder.path)], 0);

    if ([stream open_for_writing:text("/dev/full")]) {
        [stream write_int:1];
        EXPECT_EQ([stream is_good], 1);
        EXPECT_EQ([stream flush], 0);
        [stream write_string:text(std::string(100000, 'x'))];
        EXPECT_EQ([stream failure_count], 2u);
        EXPECT_EQ([stream close], 0);
    }

    std::signal(SIGPIPE, SIG_DFL); // whatever was inherited
    const std::string pipe = folder / "pipe";
    ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
    const int reader = open(pipe.c_str(), O_RDONLY | O_NONBLOCK);
    EXPECT_EQ([stream open_for_writing:text(pipe)], 1);
    close(reader);
    [stream write_int:1];
    EXPECT_EQ([stream flush], 0);
    EXPECT_EQ([stream close], 0);
}

TEST_F(File_Streams, opening_an_open_stream_keeps_what_was_written)
{
    [stream open_for_writing:text(folder / "a")];
    [stream write_string:text("first")];
    [stream open_for_writing:text(folder / "b")];
    EXPECT_EQ(file_text(folder / "a"), "first");
    [stream write_string:text("second")];
    [stream reopen_for_writing];
    EXPECT_EQ([stream close], 1);
    EXPECT_EQ(file_text(folder / "b"), "");
}
