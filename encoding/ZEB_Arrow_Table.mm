#import <Korvane_ZEB/ZEB_Arrow_Table.h>

#import <Korvane_ZEB/ZEB_String.h>

#import "encoding/ZEB_Arrow_Private.h"

#include "arrays/engine/scratch.hpp"

#include <string.h>

namespace
{

/// Sets the column to what an object is; false unless that is a vector of numbers.
bool get_column(id object, engine::Arrow_Column &column)
{
    if (![object respondsToSelector:@selector(arrow_column)])
        return false;
    column = [static_cast<ZEB_Collection *>(object) arrow_column];
    return true;
}

/// Sets the name to a string's text; false for nil and for a text with a null inside.
bool get_name(ZEB_String *string, engine::Arrow_Name &name)
{
    name = {[string char_data], [string count]};
    return string != nil && (name.length == 0 || memchr(name.chars, '\0', name.length) == nullptr);
}

/// Sets the columns and names of a table; false if they do not make one.
bool get_table(ZEB_Object_Vector *columns, ZEB_String_Vector *names, engine::Arrow_Column *table_columns,
               engine::Arrow_Name *table_names)
{
    for (uint32_t i = 0; i < [columns count]; ++i)
        if (!get_column([columns object_data][i], table_columns[i]) ||
            !get_name([names string_data][i], table_names[i]) ||
            table_columns[i].count != table_columns[0].count)
            return false;
    return true;
}

} // namespace

uint8_t ZC_export_arrow_table(ZEB_Object_Vector *columns, ZEB_String_Vector *names, struct ArrowArray *array,
                              struct ArrowSchema *schema)
{
    const uint32_t count = [columns count];
    const engine::Scratch<engine::Arrow_Column> table_columns(count);
    const engine::Scratch<engine::Arrow_Name> table_names(count);
    if (array == nullptr || schema == nullptr || count == 0 || [names count] != count ||
        table_columns.get() == nullptr || table_names.get() == nullptr ||
        !get_table(columns, names, table_columns.get(), table_names.get()) ||
        !engine::export_table({table_columns.get(), count}, {table_names.get(), count},
                              table_columns.get()[0].count, *array, *schema))
        return 0;
    for (uint32_t i = 0; i < count; ++i)
        [[columns object_data][i] retain]; // for the release of each column
    return 1;
}
