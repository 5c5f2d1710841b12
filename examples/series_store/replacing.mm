#import "replacing.h"

#import "files.h"
#import "store.h"

#include <errno.h>
#include <stdio.h>
#include <string.h>

namespace
{

/// Returns the state of a path, and reports the fault of a file that must not be overwritten.
Store_State state_of(const char *path)
{
    const char *fault;
    const Store_State state = load_series(path, [[[Series alloc] init] autorelease], &fault);
    if (state == STORE_UNKNOWN)
        complain(path, fault);
    return state;
}

/// Whether both files may be overwritten. A backup of something less than a whole store is not made.
bool may_be_replaced(const char *path, Store_State store, const char *backup_path, Store_State backup)
{
    if (backup == STORE_UNKNOWN)
        return false;
    if (store == STORE_CUT_SHORT && backup != STORE_WHOLE)
        return complain(path, "it is cut short, and no other is set aside: remove it first");
    if (store != STORE_WHOLE && backup == STORE_WHOLE)
        printf("%-12s%s, because %s is %s\n", "kept", backup_path, path,
               store == STORE_MISSING ? "not there" : "cut short");
    return true;
}

/// Copies the store. If that fails it is still at its path.
bool back_up(const char *path, const char *backup_path)
{
    ZEB_File *const file = file_at(path), *const backup = file_at(backup_path);
    [file refresh_status];
    const bool is_copied = [file copy_to:[backup path]] == 1;
    // A copy that only has another owner is as good; one that is not whole is none.
    if (!is_copied)
        return complain(backup_path, strerror(file != nil ? [file last_error] : ENOMEM));
    const Store_State copy = state_of(backup_path);
    if (copy != STORE_WHOLE)
        return copy == STORE_UNKNOWN ? false : complain(backup_path, "it was not copied whole");
    printf("%-12s%s\n", "backstored", backup_path);
    return true;
}

} // namespace

bool replace_store(const char *path, ZEB_String *contents)
{
    const char *const backup_path = path_with_suffix(path, "~");
    if (backup_path == NULL)
        return complain(path, strerror(ENOMEM));
    const Store_State store = state_of(path);
    if (store == STORE_UNKNOWN || !may_be_replaced(path, store, backup_path, state_of(backup_path)) ||
        (store == STORE_WHOLE && !back_up(path, backup_path)))
        return false;
    const char *const fault = write_store(path, contents);
    return fault == NULL || complain(path, fault);
}
