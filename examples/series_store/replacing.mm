#import "replacing.h"

#import "files.h"
#import "store.h"

#include <errno.h>
#include <stdio.h>
#include <string.h>
#include <string>

namespace
{

struct Paths {
    explicit Paths(const char *path) : store(path), aside(store + "~"), part(store + ".part") {}

    std::string store;
    std::string aside;
    std::string part;
};

/// What stands at a path; tells what is wrong with it where it is not to be written over.
Store_State state_of(const std::string &path)
{
    const char *fault;
    const Store_State state = load_series(path.c_str(), [[[Series alloc] init] autorelease], &fault);
    if (state == STORE_UNKNOWN)
        complain(path.c_str(), fault);
    return state;
}

/// Whether all three paths may be written over. `present` is the state of the store.
bool may_be_replaced(const Paths &paths, Store_State present)
{
    if (present == STORE_UNKNOWN || state_of(paths.part) == STORE_UNKNOWN)
        return false;
    const Store_State aside = state_of(paths.aside);
    if (aside == STORE_UNKNOWN)
        return false;
    if (present == STORE_CUT_SHORT && aside != STORE_WHOLE)
        return complain(paths.store.c_str(), "it is cut short, and no other is set aside: remove it first");
    if (present != STORE_WHOLE && aside == STORE_WHOLE)
        printf("%-12s%s, because %s is %s\n", "kept", paths.aside.c_str(), paths.store.c_str(),
               present == STORE_MISSING ? "not there" : "cut short");
    return true;
}

/// Writes the new store beside the old one, and reads it again.
bool write_part(const char *part, Series *series, ZEB_String *contents)
{
    Series *const loaded = [[[Series alloc] init] autorelease];
    const char *fault = write_store(part, contents);
    if (fault == NULL)
        load_series(part, loaded, &fault);
    if (fault == NULL && ![series is_identical_to:loaded])
        fault = "it does not come back as it was";
    if (fault == NULL)
        return true;
    complain(part, fault);
    // Nothing is lost where it stays: the next run writes over it.
    remove(part);
    return false;
}

bool set_aside(const Paths &paths)
{
    ZEB_File *const file = file_at(paths.store.c_str());
    if ([file backstore] != 1)
        return complain(paths.store.c_str(), strerror([file last_error]));
    printf("%-12s%s\n", "backstored", [[file path] char_data]);
    return true;
}

void bring_back(const Paths &paths)
{
    ZEB_File *const file = file_at(paths.store.c_str());
    if ([file restore] != 1)
        complain(paths.aside.c_str(), "it is now the only store");
}

} // namespace

bool replace_store(const char *path, Series *series, ZEB_String *contents)
{
    const Paths paths(path);
    const Store_State present = state_of(paths.store);
    if (!may_be_replaced(paths, present) || !write_part(paths.part.c_str(), series, contents))
        return false;
    if (present == STORE_WHOLE && !set_aside(paths))
        return false;
    if (rename(paths.part.c_str(), path) == 0)
        return true;
    complain(path, strerror(errno));
    if (present == STORE_WHOLE)
        bring_back(paths);
    return false;
}
