#define _GNU_SOURCE
#include "failing_calls.h"

#include <dirent.h>
#include <dlfcn.h>
#include <errno.h>
#include <fcntl.h>
#include <limits.h>
#include <pthread.h>
#include <signal.h>
#include <stdarg.h>
#include <stdatomic.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <sys/stat.h>
#include <unistd.h>

/* A name that begins with another one stands before it. */
/* clang-format off */
#define CALLS(X)                                                                                             \
    X(OPENAT, "openat") X(OPEN, "open") X(READDIR, "readdir") X(READLINK, "readlink") X(READ, "read")        \
    X(WRITE, "write") X(CLOSE, "close") X(RENAME, "rename") X(FTRUNCATE, "ftruncate") X(STAT, "stat")        \
    X(FSTAT, "fstat") X(LSTAT, "lstat") X(REMOVE, "remove") X(UNLINKAT, "unlinkat") X(UNLINK, "unlink")      \
    X(MKDIR, "mkdir") X(SYMLINK, "symlink") X(REALPATH, "realpath") X(FDOPENDIR, "fdopendir")                \
    X(FCHMOD, "fchmod") X(FCHOWN, "fchown") X(LCHOWN, "lchown") X(FSYNC, "fsync")                            \
    X(COPY_FILE_RANGE, "copy_file_range") X(MEMORY, "memory") X(THREAD, "thread") X(ANY_FILE, "file")
/* clang-format on */

#define CALL_NUMBER(number, name) number,
#define CALL_NAME(number, name) name,
enum { CALLS(CALL_NUMBER) CALL_COUNT };
static const char *const call_names[CALL_COUNT] = {CALLS(CALL_NAME)};

static char folder[4096];
static int planned_call = CALL_COUNT;
static unsigned first_number, last_number;
static int outcome;
static atomic_uint calls[CALL_COUNT];
static unsigned char is_watched[1024];

/* The number of the call that a text begins with. */
static int call_named(const char *text)
{
    int call = 0;
    while (call < CALL_COUNT && strncmp(call_names[call], text, strlen(call_names[call])) != 0)
        ++call;
    return call;
}

void zeb_plan_failure(const char *new_folder, const char *call, unsigned number, int new_outcome)
{
    planned_call = CALL_COUNT;
    snprintf(folder, sizeof folder, "%s", new_folder);
    for (int i = 0; i < CALL_COUNT; ++i)
        atomic_store(&calls[i], 0);
    first_number = number;
    last_number = strchr(call, '+') != NULL ? UINT_MAX : number;
    outcome = new_outcome;
    planned_call = call_named(call);
}

unsigned zeb_calls_made(const char *call) { return atomic_load(&calls[call_named(call)]); }

__attribute__((constructor)) static void take_plan_from_environment(void)
{
    const char *const where = getenv("ZEB_FAILING_FOLDER");
    if (where != NULL)
        zeb_plan_failure(where, getenv("ZEB_FAILING_CALL"), (unsigned)atoi(getenv("ZEB_FAILING_NUMBER")),
                         atoi(getenv("ZEB_FAILING_OUTCOME")));
}

__attribute__((destructor)) static void tell_counts(void)
{
    const char *const path = getenv("ZEB_FAILING_COUNTS");
    FILE *const file = path != NULL ? fopen(path, "w") : NULL;
    if (file == NULL)
        return;
    for (int i = 0; i < CALL_COUNT; ++i)
        fprintf(file, "%s %u\n", call_names[i], atomic_load(&calls[i]));
    fclose(file);
}

/* Counts a call under one of its names, and tells whether it is planned under that. */
static int is_due_as(int call)
{
    const unsigned number = atomic_fetch_add(&calls[call], 1) + 1;
    return planned_call == call && number >= first_number && number <= last_number;
}

static int is_due(int call)
{
    int due = is_due_as(call);
    if (call < MEMORY)
        due |= is_due_as(ANY_FILE);
    if (due && outcome == ZEB_CALL_IS_THE_LAST && call != WRITE && call != COPY_FILE_RANGE)
        raise(SIGKILL);
    return due;
}

static int is_inside(const char *path)
{
    return *folder != '\0' && strncmp(path, folder, strlen(folder)) == 0;
}

static int is_watched_file(int file)
{
    return file >= 0 && file < (int)sizeof is_watched && is_watched[file];
}

/* A path below an open folder, or below the working one. */
static int is_below(int folder_file, const char *path)
{
    return is_inside(path) || (path[0] != '/' && is_watched_file(folder_file));
}

static void watch(int file)
{
    if (file >= 0 && file < (int)sizeof is_watched)
        is_watched[file] = 1;
}

static int refusal(void)
{
    errno = outcome;
    return outcome > 0 ? -1 : 0;
}

#define PLATFORM(name) ((__typeof__(&name))dlsym(RTLD_NEXT, #name))

/* A call that opens a file, with a mode if it may create it. */
#define OPENS(name, parameters, is_ours, call, ...)                                                          \
    int name parameters                                                                                      \
    {                                                                                                        \
        va_list rest;                                                                                        \
        va_start(rest, flags);                                                                               \
        const mode_t mode = flags & O_CREAT ? va_arg(rest, mode_t) : 0;                                      \
        va_end(rest);                                                                                        \
        if (!(is_ours))                                                                                      \
            return PLATFORM(name)(__VA_ARGS__, mode);                                                        \
        if (is_due(call))                                                                                    \
            return refusal();                                                                                \
        const int file = PLATFORM(name)(__VA_ARGS__, mode);                                                  \
        watch(file);                                                                                         \
        return file;                                                                                         \
    }

OPENS(open, (const char *path, int flags, ...), is_inside(path), OPEN, path, flags)
OPENS(openat, (int folder_file, const char *path, int flags, ...), is_below(folder_file, path), OPENAT,
      folder_file, path, flags)

ssize_t read(int file, void *bytes, size_t size)
{
    if (!is_watched_file(file) || !is_due(READ))
        return PLATFORM(read)(file, bytes, size);
    return outcome >= 0 ? refusal() : PLATFORM(read)(file, bytes, size / 2);
}

ssize_t write(int file, const void *bytes, size_t size)
{
    if (!is_watched_file(file) || !is_due(WRITE))
        return PLATFORM(write)(file, bytes, size);
    if (outcome >= 0)
        return refusal();
    const ssize_t written = PLATFORM(write)(file, bytes, size / 2);
    if (outcome == ZEB_CALL_IS_THE_LAST)
        raise(SIGKILL);
    return written;
}

ssize_t copy_file_range(int from, off64_t *from_offset, int to, off64_t *to_offset, size_t size,
                        unsigned flags)
{
    if (is_watched_file(to) && (planned_call == READ || planned_call == WRITE)) {
        errno = ENOSYS;
        return -1;
    }
    if (!is_watched_file(to) || !is_due(COPY_FILE_RANGE))
        return PLATFORM(copy_file_range)(from, from_offset, to, to_offset, size, flags);
    if (outcome >= 0)
        return refusal();
    const ssize_t moved = PLATFORM(copy_file_range)(from, from_offset, to, to_offset, (size + 1) / 2, flags);
    if (outcome == ZEB_CALL_IS_THE_LAST)
        raise(SIGKILL);
    return moved;
}

int close(int file)
{
    if (!is_watched_file(file))
        return PLATFORM(close)(file);
    const int due = is_due(CLOSE);
    is_watched[file] = 0;
    const int closed = PLATFORM(close)(file);
    return due ? refusal() : closed;
}

/* A call that either fails or is the platform's. */
#define MAY_FAIL(name, parameters, arguments, is_ours, call)                                                 \
    int name parameters { return (is_ours) && is_due(call) ? refusal() : PLATFORM(name) arguments; }

MAY_FAIL(ftruncate, (int file, off_t size), (file, size), is_watched_file(file), FTRUNCATE)
MAY_FAIL(rename, (const char *from, const char *to), (from, to), is_inside(from), RENAME)
MAY_FAIL(remove, (const char *path), (path), is_inside(path), REMOVE)
MAY_FAIL(unlink, (const char *path), (path), is_inside(path), UNLINK)
MAY_FAIL(fsync, (int file), (file), is_watched_file(file), FSYNC)
MAY_FAIL(fchmod, (int file, mode_t mode), (file, mode), is_watched_file(file), FCHMOD)
MAY_FAIL(fchown, (int file, uid_t owner, gid_t group), (file, owner, group), is_watched_file(file), FCHOWN)
MAY_FAIL(fstat, (int file, struct stat *found), (file, found), is_watched_file(file), FSTAT)
MAY_FAIL(lstat, (const char *restrict path, struct stat *restrict found), (path, found), is_inside(path),
         LSTAT)
MAY_FAIL(stat, (const char *restrict path, struct stat *restrict found), (path, found), is_inside(path), STAT)
MAY_FAIL(fstatat, (int folder, const char *restrict path, struct stat *restrict found, int flags),
         (folder, path, found, flags), is_below(folder, path), STAT)
MAY_FAIL(unlinkat, (int folder, const char *path, int flags), (folder, path, flags), is_below(folder, path),
         UNLINKAT)
MAY_FAIL(mkdir, (const char *path, mode_t mode), (path, mode), is_inside(path), MKDIR)
MAY_FAIL(symlink, (const char *target, const char *path), (target, path), is_inside(path), SYMLINK)
MAY_FAIL(lchown, (const char *path, uid_t user, gid_t group), (path, user, group), is_inside(path), LCHOWN)

/* One that answers something else than 0. */
#define MAY_GIVE(type, failure, name, parameters, arguments, is_ours, call)                                  \
    type name parameters                                                                                     \
    {                                                                                                        \
        return (is_ours) && is_due(call) && refusal() != 0 ? (failure) : PLATFORM(name) arguments;           \
    }

MAY_GIVE(ssize_t, -1, readlink, (const char *restrict path, char *restrict target, size_t size),
         (path, target, size), is_inside(path), READLINK)
MAY_GIVE(char *, NULL, realpath, (const char *restrict path, char *restrict resolved), (path, resolved),
         is_inside(path), REALPATH)
MAY_GIVE(DIR *, NULL, fdopendir, (int file), (file), is_watched_file(file), FDOPENDIR)
MAY_GIVE(struct dirent *, NULL, readdir, (DIR * stream), (stream), is_watched_file(dirfd(stream)), READDIR)

int pthread_create(pthread_t *thread, const pthread_attr_t *attributes, void *(*work)(void *), void *argument)
{
    return is_due(THREAD) ? outcome : PLATFORM(pthread_create)(thread, attributes, work, argument);
}

/* The C library's own names for these, which serve before the loader can be asked for others. */
void *__libc_malloc(size_t size);
void *__libc_calloc(size_t count, size_t size);
void *__libc_realloc(void *block, size_t size);

/* The Objective-C runtime ends the process where it gets no memory: it is spared. */
static int is_the_runtime(const void *caller)
{
    Dl_info place;
    return dladdr(caller, &place) != 0 &&
           (strstr(place.dli_fname, "libobjc") != NULL || strstr(place.dli_fname, "libgnustep") != NULL);
}

static int is_refused_memory(const void *caller)
{
    if (atomic_load(&calls[ANY_FILE]) == 0 || is_the_runtime(caller) || !is_due(MEMORY))
        return 0;
    errno = ENOMEM;
    return 1;
}

#define UNLESS_REFUSED(call) return is_refused_memory(__builtin_return_address(0)) ? NULL : (call)

void *malloc(size_t size) { UNLESS_REFUSED(__libc_malloc(size)); }

void *calloc(size_t count, size_t size) { UNLESS_REFUSED(__libc_calloc(count, size)); }

void *realloc(void *block, size_t size) { UNLESS_REFUSED(__libc_realloc(block, size)); }
