#import "replacing.h"

#import "files.h"
#import "store.h"

#include <errno.h>
#include <stdio.h>
#include <string.h>

namespace
{

struct Paths {
    const char *store;
    const char *aside;
    const char *fresh;
};

/// Returns the state of a path, and reports the fault of a file that must not be overwritten.
Store_State state_of(const char *path)
{
    const char *fault;
    const Store_State state = load_series(path, [[[Series alloc] init] autorelease], &fault);
    if (state == STORE_UNKNOWN)
        complain(path, fault);
    return state;
}

/// Whether all three paths may be overwritten. `present` is the state of the store.
bool may_be_replaced(const Paths &paths, Store_State present)
{
    if (present == STORE_UNKNOWN || state_of(paths.fresh) == STORE_UNKNOWN)
        return false;
    const Store_State aside = state_of(paths.aside);
    if (aside == STORE_UNKNOWN)
        return false;
    if (present == STORE_CUT_SHORT && aside != STORE_WHOLE)
        return complain(paths.store, "it is cut short, and no other is set aside: remove it first");
    if (present != STORE_WHOLE && aside == STORE_WHOLE)
        printf("%-12s%s, because %s is %s\n", "kept", paths.aside, paths.store,
               present == STORE_MISSING ? "not there" : "cut short");
    return true;
}

/// Writes the new store beside the old one, and loads it back.
bool write_fresh(const char *fresh, Series *series, ZEB_String *contents)
{
    Series *const loaded = [[[Series alloc] init] autorelease];
    const char *fault = write_store(fresh, contents);
    if (fault == NULL)
        load_series(fresh, loaded, &fault);
    if (fault == NULL && ![series is_identical_to:loaded])
        fault = "it does not come back as it was";
    return fault == NULL || complain(fresh, fault);
}

bool set_aside(const char *store)
{
    ZEB_File *const file = file_at(store);
    if ([file backstore] != 1)
        return complain(store, strerror(file != nil ? [file last_error] : ENOMEM));
    printf("%-12s%s\n", "backstored", [[file path] char_data]);
    return true;
}

/// Renames the new store to the path, or restores the old one.
bool move_in(const Paths &paths, bool is_set_aside)
{
    if (rename(paths.fresh, paths.store) == 0)
        return true;
    complain(paths.store, strerror(errno));
    if (is_set_aside && [file_at(paths.store) restore] != 1)
        complain(paths.aside, "it is now the only store");
    return false;
}

} // namespace

bool replace_store(const char *path, Series *series, ZEB_String *contents)
{
    const Paths paths{path, path_with_suffix(path, "~"), path_with_suffix(path, "~new")};
    if (paths.aside == NULL || paths.fresh == NULL)
        return complain(path, strerror(ENOMEM));
    const Store_State present = state_of(path);
    if (!may_be_replaced(paths, present))
        return false;
    const bool has_store = present == STORE_WHOLE;
    const bool is_replaced = write_fresh(paths.fresh, series, contents) && (!has_store || set_aside(path)) &&
                             move_in(paths, has_store);
    // If this fails, the next run overwrites the file.
    if (!is_replaced)
        remove(paths.fresh);
    return is_replaced;
}
