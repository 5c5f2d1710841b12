/*
 * The file system's part of the framework's lazy start-up.
 */
#include <stdint.h>

@class ZEB_String_Array;

namespace zeb::engine
{

/// Reads the process's real user and group ids, and makes the table of key texts, on first need. Later
/// changes of the process's ids are not followed.
void start_up_filesystem();

uint32_t process_user();
uint32_t process_group();

/// One string: the key under which an application may keep an entry's state.
ZEB_String_Array *filesystem_keys();

} // namespace zeb::engine
