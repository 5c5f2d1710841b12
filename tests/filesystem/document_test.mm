#include "tests/support/exchange.hpp"
#include "tests/support/files.hpp"

#include <algorithm>

namespace
{

class Documents : public File_Test
{
protected:
    Documents()
    {
        for (const char32_t *const one : {U"first", U"", U"\U0001F600 and more"})
            [table append_wide_string:wide_text(one)];
    }

    /// Loads into a table that holds something else. A refusal leaves it and gives one line.
    uint32_t load(uint32_t (*load_table)(ZEB_Wide_String_Array *, ZEB_File *))
    {
        ZEB_Wide_String_Array *const loaded = [ZEB_Wide_String_Array array_with_capacity:0];
        [loaded append_wide_string:wide_text(U"before")];
        ZEB_Wide_String_Array *const before = [[loaded copy] autorelease];
        uint32_t answer = 2;
        const auto told = standard_error_of([&] { answer = load_table(loaded, file); });
        EXPECT_EQ(std::count(told.begin(), told.end(), '\n'), answer == 1 ? 0 : 1) << told;
        EXPECT_EQ([file last_error] == 0, answer == 1);
        EXPECT_TRUE(answer == 1 || [loaded isEqual:before]);
        is_the_same = [loaded isEqual:table];
        last_index =
            [loaded is_not_empty] ? [[loaded wide_string_at_index:[loaded count] - 1] pool_index] : -1;
        return answer;
    }

    ZEB_Wide_String_Array *const table = [ZEB_Wide_String_Array array_with_capacity:0];
    ZEB_File *const file = entry(path);
    bool is_the_same = false;
    int32_t last_index = -1;
};

} // namespace

TEST_F(Documents, either_form_is_read_by_both)
{
    for (const uint8_t is_compressed : {0, 1}) {
        [file set_contents_compressed:is_compressed];
        for (const auto save : {ZC_save_document, ZC_save_checked_document})
            for (const auto load_table : {ZC_load_document, ZC_load_checked_document}) {
                EXPECT_EQ(save(table, file), 1u);
                const std::string name = std::string("document_") + (is_compressed ? "z" : "") +
                                         (save == ZC_save_document ? "plain" : "checked");
                leave_for_others(name, file_text(path));
                put_file(path, left_by_others(name).value_or(file_text(path)));
                EXPECT_EQ(load(load_table), 1u);
                EXPECT_TRUE(is_the_same);
                EXPECT_EQ(last_index, 2);
            }
    }
    [file set_contents_compressed:0];
    EXPECT_EQ(ZC_save_document(nil, file), 1u);
    EXPECT_EQ(file_text(path).size(), 68u);
    EXPECT_EQ(load(ZC_load_document), 1u);
    EXPECT_EQ(last_index, -1);
    EXPECT_EQ(ZC_save_document(table, nil) + ZC_load_document(nil, file), 0u);
}

TEST_F(Documents, one_of_the_other_byte_order_is_read)
{
    for (const auto save : {ZC_save_document, ZC_save_checked_document}) {
        save(table, file);
        std::string document = file_text(path);
        const bool is_checked = save == ZC_save_checked_document;
        // Every word behind the header's text, and in the records, but for the tail.
        const std::size_t records_end = document.size() - (is_checked ? 4 : 0);
        for (std::size_t at = 32; at < records_end; at += 4)
            if (at != 60)
                std::reverse(&document[at], &document[at] + 4);
        put_file(path, document);
        EXPECT_EQ(load(ZC_load_document), 1u);
        EXPECT_TRUE(is_the_same);
        EXPECT_EQ(load(ZC_load_checked_document), is_checked ? 0u : 1u);
    }
}

TEST_F(Documents, a_cut_or_a_changed_byte_is_refused_with_one_line_or_loads)
{
    for (const auto save : {ZC_save_document, ZC_save_checked_document}) {
        save(table, file);
        const std::string document = file_text(path);
        for (std::size_t length = 0; length < document.size(); ++length) {
            put_file(path, document.substr(0, length));
            load(ZC_load_document);
            EXPECT_EQ(load(ZC_load_checked_document), 0u) << length;
        }
        for (std::size_t at = 0; at < document.size(); ++at)
            for (const int flip : {1, 0x80, 0xFF}) {
                std::string changed = document;
                changed[at] = static_cast<char>(changed[at] ^ flip);
                put_file(path, changed);
                load(ZC_load_document);
                EXPECT_TRUE(save == ZC_save_document || load(ZC_load_checked_document) == 0) << at;
            }
    }
}

TEST_F(Documents, a_greatest_size_bounds_what_is_read)
{
    [file set_contents_compressed:1];
    [table clear];
    [table append_wide_string:wide_text(std::u32string(1000000, U'x'))];
    ZC_save_document(table, file);
    [file set_greatest_contents_size:10000];
    EXPECT_EQ(load(ZC_load_document), 0u);
    EXPECT_EQ([file last_error], EFBIG);
    [file set_contents_compressed:0];
    for (const auto &[size, error] : {std::pair(10000, EILSEQ), std::pair(10001, EFBIG)}) {
        put_file(path, std::string(static_cast<std::size_t>(size), ' '));
        EXPECT_EQ(load(ZC_load_document), 0u);
        EXPECT_EQ([file last_error], error);
    }
    [file set_greatest_contents_size:4000072];
    [file set_contents_compressed:1];
    ZC_save_document(table, file);
    EXPECT_EQ(load(ZC_load_document), 1u);
}
