/*
 * Lazy start-up of the file system.
 */
#include <stdint.h>

namespace zeb::engine
{

/// Reads the process's real user and group ids and creates the table of keys, on the first call. Later
/// changes of the ids have no effect.
void start_up_filesystem();

uint32_t process_user();
uint32_t process_group();

} // namespace zeb::engine
