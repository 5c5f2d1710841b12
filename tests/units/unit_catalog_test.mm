#include "tests/support/class_test.hpp"
#include "tests/support/memory.hpp"

#include <fstream>
#include <map>

namespace
{

struct Row {
    uint32_t dimension, code, group, position;
    std::string told;
};

const std::map<ZEB_Unit_Identity, Row> table = [] {
    std::map<ZEB_Unit_Identity, Row> rows;
    std::ifstream in(ZEB_UNIT_TABLES "units.tsv");
    Row row;
    std::getline(in, row.told);
    while (in >> row.dimension >> row.code >> row.group >> row.position && std::getline(in, row.told))
        rows[ZEB_unit_identity(row.dimension, row.code)] = row;
    return rows;
}();

/// What a catalog has of a unit, in the table's columns; "?" for the display text of none.
std::string told(ZEB_Unit_Catalog *units, ZEB_Unit_Identity unit, uint32_t group, uint32_t position)
{
    ZEB_Wide_String *const none = wide_text(U"?"), *const one = wide_text(U""), *const many = wide_text(U"");
    ZEB_Wide_String *const symbol = wide_text(U""), *const enclosed = wide_text(U"");
    const int answer = [units append_unit_text:one identity:unit fallback:none plural:0];
    EXPECT_EQ([units append_unit_text:many identity:unit fallback:none plural:2], answer);
    EXPECT_EQ([one is_equal:none], !answer);
    const int has_symbol = [units append_unit_symbol:symbol group:group position:position];
    EXPECT_EQ([units append_unit_symbol_in_parentheses:enclosed group:group position:position], has_symbol);
    EXPECT_EQ([symbol is_not_empty], has_symbol);
    std::string line;
    for (ZEB_Wide_String *text :
         {[units unit_singular_name:unit], [units unit_plural_name:unit], [units unit_abbreviation:unit],
          [units unit_plural_abbreviation:unit], one, many, symbol, enclosed})
        line += "\t" + (text != nil ? std::string([[text description] UTF8String]) : "nil");
    return line;
}

const std::string nothing = "\tnil\tnil\tnil\tnil\t?\t?\t\t";

} // namespace

TEST(Unit_Catalog, holds_what_the_table_holds)
{
    ZEB_Unit_Catalog *const units = [[[ZEB_Unit_Catalog alloc] init] autorelease];
    for (const auto &[unit, row] : table) {
        EXPECT_EQ(told(units, unit, row.group, row.position), row.told);
        EXPECT_EQ([ZEB_Unit_Catalog group_of_dimension:row.dimension], row.group);
        ZEB_Wide_String_Array *const names = [units unit_names_of_dimension:row.dimension];
        EXPECT_EQ([names wide_string_at_index:row.position], [units unit_singular_name:unit]);
        EXPECT_EQ([names count], [names capacity]);
        for (const uint32_t position : {[names count], [names count] + 1, ZEB_NOT_FOUND})
            EXPECT_EQ(told(units, 0, row.group, position), nothing);
    }
    for (const uint32_t group : {0u, 13u, UINT32_MAX})
        EXPECT_EQ(told(units, ZEB_unit_identity(3, 2), group, 0), nothing);
    EXPECT_STREQ([[[units dimension_names] description] UTF8String],
                 "{No Dimension, Length, Weight, Temperature, Time, Currency, Angle, Uno, Byte, Histogram, "
                 "Categorical, Electrical Potential}");
    EXPECT_EQ([units selection], -1);
}

TEST(Unit_Catalog, finds_what_a_plain_search_finds_and_nothing_else)
{
    for (uint32_t dimension = 0; dimension <= 10010; ++dimension)
        for (uint32_t code = [ZEB_Unit_Catalog group_of_dimension:dimension] != 0 ? 601 : 20; code-- > 0;) {
            const auto unit = ZEB_unit_identity(dimension, code == 0 ? UINT32_MAX : code - 1);
            const auto found = table.find(unit);
            ASSERT_EQ([ZEB_Unit_Catalog position_of_unit:unit],
                      found != table.end() ? found->second.position : ZEB_NOT_FOUND);
        }
}

TEST(Unit_Catalog, appends_nothing_to_links_and_to_nil)
{
    ZEB_Unit_Catalog *const units = [[[ZEB_Unit_Catalog alloc] init] autorelease];
    const auto meter = ZEB_unit_identity(1, 11);
    EXPECT_EQ([units append_unit_text:nil identity:meter fallback:nil plural:0], 0);
    EXPECT_EQ([units append_unit_text:wide_text(U"") identity:0 fallback:nil plural:0], 0);
    EXPECT_EQ([units append_unit_symbol:nil group:1 position:5], 0);

    uint32_t characters[] = {'a', 'b'};
    ZEB_Wide_String *const link = [ZEB_Wide_String link_to_wide_chars:characters count:1];
    EXPECT_EQ(standard_error_of([&] {
                  EXPECT_EQ([units append_unit_symbol:link group:5 position:20], 0);
                  EXPECT_EQ([units append_unit_text:link identity:meter fallback:nil plural:0], 0);
              }),
              fix_line("append_wide_char:", "ZEB_Wide_String",
                       "Cannot append element through link, no append made.") +
                  fix_line("append_array:", "ZEB_Wide_String",
                           "Cannot append array through link, no append made."));
    EXPECT_EQ([link count] + characters[1], 1u + 'b');
}

TEST(Unit_Catalog, lists_that_are_switched_off_are_empty)
{
    for (uint32_t off = 0; off < ZEB_UNIT_FLAG_COUNT; ++off) {
        ZC_start_up_unit_catalog();
        ZC_unit_catalog_flags()[off] = 0;
        ZEB_Unit_Catalog *const units = [[[ZEB_Unit_Catalog alloc] init] autorelease];
        ZC_unit_catalog_flags()[off] = 1;
        EXPECT_EQ([[units dimension_names] count], off == 0 ? 0u : 12u);
        for (const auto &[unit, row] : table) {
            EXPECT_EQ(told(units, unit, 0, 0) == nothing, row.group == off);
            EXPECT_EQ([[units unit_names_of_dimension:row.dimension] capacity] == 0, row.group == off);
        }
    }
}

TEST(Unit_Catalog, holds_no_wrong_text_where_memory_fails)
{
    ZEB_Unit_Catalog *const whole = [[[ZEB_Unit_Catalog alloc] init] autorelease];
    [[ZEB_Error_Stream shared_error_stream] set_verbose:0];
    ZEB_Wide_String *const target = [ZEB_Wide_String array_with_capacity:2];
    memory.is_out = true;
    EXPECT_EQ([whole append_unit_symbol_in_parentheses:target group:5 position:20] + [target count], 0u);
    memory.is_out = false;
    const long before = memory.blocks;
    for (int call = 0, has_failed = 1; has_failed; call += 1 + call / 8) {
        memory.calls_until_failure = call;
        ZEB_Unit_Catalog *const units = [[ZEB_Unit_Catalog alloc] init];
        has_failed = memory.calls_until_failure < 0;
        memory.calls_until_failure = -1;
        for (const auto &[unit, row] : table) {
            ZEB_Wide_String *const found = [units unit_plural_name:unit];
            EXPECT_TRUE(found == nil || [found is_equal:[whole unit_plural_name:unit]]);
        }
        [units release];
        EXPECT_EQ(memory.blocks, before);
    }
    [[ZEB_Error_Stream shared_error_stream] set_verbose:1];
}

TEST(Unit_Catalog, converts_elements_as_it_converts_values_also_through_links)
{
    const auto from = ZEB_unit_identity(3, 21), to = ZEB_unit_identity(3, 22);
    double given[37], held[37];
    for (int i = 0; i < 37; ++i)
        given[i] = held[i] = i * 0.37 - 3;
    ZEB_Double_Array *const link = [ZEB_Double_Array link_to_doubles:held count:35];
    EXPECT_EQ([ZEB_Unit_Catalog convert_values:link from:from to:ZEB_unit_identity(4, 4)], 0);
    EXPECT_EQ([ZEB_Unit_Catalog convert_values:link from:from to:to], 1);
    for (uint32_t i = 0; i < 37; ++i) {
        EXPECT_EQ([ZEB_Unit_Catalog convert_value:&given[i] from:from to:i < 35 ? to : from], 1);
        EXPECT_EQ(held[i], given[i]);
    }
    EXPECT_EQ([ZEB_Unit_Catalog convert_value:NULL from:from to:to], 0);
    EXPECT_EQ([ZEB_Unit_Catalog convert_values:nil from:from to:to], 0);
}
