/// Different objects on different threads, after start-up on one. What races the thread sanitizer tells.
#include "tests/support/files.hpp"

#include <atomic>
#include <chrono>
#include <thread>

namespace
{

constexpr int thread_count = 4, turns = 40;

std::atomic<int> begun, well, ended;

/// Whether a thread's own objects hold what it put there, whatever the others do meanwhile.
bool works_alone(int number, const std::string &folder)
{
    ZEB_Double_Array *const doubles = [ZEB_Double_Array array_with_capacity:0];
    ZEB_String_Array *const strings = [ZEB_String_Array array_with_capacity:0];
    for (int i = 100; i-- > 0;) {
        [doubles append_double:number + i / 4.0];
        [strings append_string:text("text " + std::to_string(i))];
    }
    [doubles sort];
    [strings sort];
    ZEB_String_Stream *const stream = [[[ZEB_String_Stream alloc] init] autorelease];
    [stream write_object:doubles];
    ZEB_String *const written = [stream target];
    ZEB_String *const buffer = [ZEB_String array_with_capacity:0];
    [doubles ZEB_encode_binary_contents:buffer];
    ZEB_Double_Array *const decoded = [ZEB_Double_Array array_with_capacity:0];
    [decoded ZEB_decode_binary_contents:buffer needs_swap:0];
    ZEB_File *const file = entry(folder + "/" + std::to_string(number));
    [file set_contents_compressed:1];
    [file write_contents:[written char_data] length:[written count]];
    [file refresh_status];
    ZEB_Byte_Array *const read = [ZEB_Byte_Array array_with_capacity:0];
    [file read_contents:read];
    ZEB_Date *const date = [[[ZEB_Date alloc] init_with_current_time] autorelease];
    [date append_strftime_text:written format:"%c"];
    [date append_iso8601_text:buffer];
    ZEB_Wide_String *const shown = [[[ZEB_Wide_String alloc] init] autorelease];
    ZEB_Number_Format *const format = [[[ZEB_Number_Format alloc] init] autorelease];
    [format set_text:shown];
    [format format_value:number + 0.5];
    return [decoded isEqual:doubles] && [doubles double_at_index:0] == number && [strings count] == 100 &&
           text_of(written).rfind(text_of(read), 0) == 0 && [read count] > 400 && [shown count] != 0 &&
           [[shown NSString_value] length] == [shown count];
}

} // namespace

/** A thread's work. */
@interface Alone : NSObject
- (void)work_in:(NSString *)folder;
@end

@implementation Alone
- (void)work_in:(NSString *)folder
{
    const int number = ++begun;
    while (begun < thread_count)
        std::this_thread::yield();
    for (int i = 0; i < turns; ++i) {
        NSAutoreleasePool *const pool = [[NSAutoreleasePool alloc] init];
        well += works_alone(number, [folder UTF8String]);
        [pool drain];
    }
    ++ended;
}
@end

TEST(Concurrency, different_objects_are_used_on_different_threads_at_once)
{
    ZC_start_up_framework();
    const Scratch_Folder folder;
    Alone *const alone = [[[Alone alloc] init] autorelease];
    NSString *const path = [NSString stringWithUTF8String:folder.path.c_str()];
    for (int i = 0; i < thread_count; ++i)
        [ZEB_Thread detach:@selector(work_in:) target:alone object:path];
    while (ended < thread_count)
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
    EXPECT_EQ(well, thread_count * turns);
}
