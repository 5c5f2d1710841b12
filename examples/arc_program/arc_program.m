// Keeps a diary of water levels, one for each day, in a file: arc_program DIARY DAY LEVEL. Written for
// automatic reference counting: no object is retained or released here.
#import <Korvane_ZEB/Korvane_ZEB.h>
#include <math.h>
#include <stdbool.h>
#include <stdio.h>

/// The level of one day, as text "2021-03-04;1.25".
@interface Reading : NSObject {
    ZEB_Date *day;
    double level;
}
- (instancetype)init_with_text:(ZEB_String *)text; // nil if it is none
- (ZEB_Date *)day;
- (double)level;
- (ZEB_String *)text;
@end

@implementation Reading
- (instancetype)init_with_text:(ZEB_String *)text
{
    self = [super init];
    if (self == nil)
        return nil;
    day = [[ZEB_Date alloc] init];
    const char *const chars = [text char_data];
    const uint32_t length = [text count], number_start = [day assign_from_iso8601_text:text] + 1;
    if (number_start == 1 || number_start >= length || chars[number_start - 1] != ';')
        return nil;
    const uint32_t rest = length - number_start;
    const bool is_number = ZC_assign_double_from_char_c_array(chars + number_start, rest, &level) == rest;
    return is_number && isfinite(level) ? self : nil;
}

- (ZEB_Date *)day
{
    return day;
}

- (double)level
{
    return level;
}

- (ZEB_String *)text
{
    ZEB_String *const text = [ZEB_String array_with_capacity:0];
    [day append_iso8601_date_text:text];
    [text append_char:';'];
    [text append_shortest_double:level];
    return text;
}
@end

static ZEB_Comparison by_day(id const *left, id const *right)
{
    const int32_t days = [[(Reading *)*left day] days_since:[(Reading *)*right day]];
    return days == 0 ? ZEB_COMPARED_EQUAL : days < 0 ? ZEB_COMPARED_LESS : ZEB_COMPARED_GREATER;
}

// Adds the reading of a text, in the place of one of the same day.
static bool add(ZEB_Object_Array *readings, ZEB_String *text)
{
    Reading *const reading = [[Reading alloc] init_with_text:text];
    if (reading == nil)
        return false;
    const uint32_t index = [readings ordered_insert_object:reading comparison:by_day inserts:1];
    Reading *const found = [readings checked_object_at_index:index];
    if (found != nil && [[found day] days_since:[reading day]] == 0)
        [readings set_object:reading at_index:index];
    return [readings index_of_object:reading] != ZEB_NOT_FOUND;
}

static bool load(ZEB_File *diary, ZEB_Object_Array *readings)
{
    [diary refresh_status];
    if (![diary exists])
        return [diary last_error] == 0;
    ZEB_Wide_String_Array *const table = [ZEB_Wide_String_Array array_with_capacity:0];
    if ([diary kind] != ZEB_FILE_KIND_REGULAR || ZC_load_checked_document(table, diary) != 1)
        return false;
    for (ZEB_Wide_String *row in table)
        if (!add(readings, [ZEB_String string_with_NSString:[row NSString_value]]))
            return false;
    return true;
}

static bool write(ZEB_File *diary, ZEB_Object_Array *readings)
{
    ZEB_Wide_String_Array *const table = [ZEB_Wide_String_Array array_with_capacity:[readings count]];
    for (Reading *reading in readings)
        [table
            append_wide_string:[ZEB_Wide_String string_with_NSString:[[reading text] NSString_utf8_value]]];
    ZEB_Object_Array *const loaded = [ZEB_Object_Array array_with_capacity:0];
    return ZC_save_checked_document(table, diary) == 1 && [diary last_error] == 0 && load(diary, loaded) &&
           [loaded count] == [readings count];
}

// The diary of before is kept as "DIARY~", and comes back if the new one cannot be written.
static bool save(ZEB_File *diary, ZEB_String *path, ZEB_Object_Array *readings)
{
    const bool is_there = [diary exists];
    if (is_there && [diary backstore] != 1)
        return false;
    [diary set_path:path];
    const bool is_written = [diary last_error] == 0 && write(diary, readings);
    if (!is_written && is_there)
        [diary restore];
    return is_written;
}

static bool print(ZEB_Object_Array *readings)
{
    ZEB_Double_Array *const levels = [ZEB_Double_Array array_with_capacity:[readings count]];
    ZEB_String *const text = [ZEB_String array_with_capacity:0];
    for (Reading *reading in readings) {
        [levels append_double:[reading level]];
        [text append_array:[reading text]];
        [text append_char:'\n'];
    }
    ZEB_Double_Statistics all;
    [levels get_double_statistics:&all];
    [text append_format:"%u days, mean ", all.number_count];
    [text append_shortest_double:all.mean];
    [text append_char:'\n'];
    return fwrite([text char_data], 1, [text count], stdout) == [text count] && fflush(stdout) == 0;
}

static bool run(const char **arguments)
{
    ZEB_String *const path = [ZEB_String string_with_c_string:arguments[1]];
    ZEB_File *const diary = [[ZEB_File alloc] init];
    [diary set_path:path];
    [diary set_greatest_contents_size:1U << 24];
    ZEB_Object_Array *const readings = [ZEB_Object_Array array_with_capacity:0];
    return [diary last_error] == 0 && load(diary, readings) &&
           add(readings, [ZEB_String string_with_format:"%s;%s", arguments[2], arguments[3]]) &&
           save(diary, path, readings) && print(readings);
}

int main(int count, const char **arguments)
{
    [ZEB_Release_Level push]; // an autorelease pool, the same for every compiler
    const bool is_done = count == 4 && run(arguments);
    [ZEB_Release_Level pop];
    if (!is_done)
        fprintf(stderr, "arc_program: nothing is noted; usage: arc_program DIARY DAY LEVEL\n");
    return is_done ? 0 : 1;
}
