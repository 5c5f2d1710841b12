#import "filesystem/ZEB_File_Start_Up_Private.h"

#import <Korvane_ZEB/ZEB_File_Start_Up.h>
#import <Korvane_ZEB/ZEB_String_Table.h>

#include "core/engine/char_span.hpp"
#include "core/engine/one_time.hpp"

#include <unistd.h>

namespace zeb::engine
{
namespace
{

constexpr Char_Span key_texts[] = {span_of("file")};

uint8_t is_started;
uint32_t user;
uint32_t group;
ZEB_String_Array *keys;

} // namespace

void start_up_filesystem()
{
    run_once(is_started, [] {
        user = getuid();
        group = getgid();
        keys = ZC_string_array_from_spans(key_texts, sizeof key_texts / sizeof *key_texts);
    });
}

uint32_t process_user() { return user; }

uint32_t process_group() { return group; }

} // namespace zeb::engine

void ZC_start_up_file_system(void) { zeb::engine::start_up_filesystem(); }
