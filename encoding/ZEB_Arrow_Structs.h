/*
 * The two structs of the Arrow C data interface, in plain C: how arrays go from one library to another within
 * a process, without a copy and without a common library. Their layout is fixed by that interface, and so is
 * the macro around them, by which headers of several libraries agree that one of them defines the structs.
 *
 * Whoever has a struct whose `release` is not null owns what it names, and calls that in the end, once.
 */
#ifndef ZEB_ARROW_STRUCTS_H
#define ZEB_ARROW_STRUCTS_H

#include <stdint.h>

#ifndef ARROW_C_DATA_INTERFACE
#define ARROW_C_DATA_INTERFACE

#ifdef __cplusplus
extern "C" {
#endif

#define ARROW_FLAG_DICTIONARY_ORDERED 1
#define ARROW_FLAG_NULLABLE 2
#define ARROW_FLAG_MAP_KEYS_SORTED 4

/* The type and name of an array, or of a table's columns. */
struct ArrowSchema {
    const char *format; /* "C" of bytes, "i" and "I" of 32-bit, "l" of 64-bit integers, "f", "g", ... */
    const char *name;
    const char *metadata;
    int64_t flags;
    int64_t n_children;
    struct ArrowSchema **children;
    struct ArrowSchema *dictionary;
    void (*release)(struct ArrowSchema *);
    void *private_data;
};

/* The elements of an array, or the columns of a table. */
struct ArrowArray {
    int64_t length;
    int64_t null_count; /* -1 if it was not counted */
    int64_t offset;     /* of the first element in the buffers */
    int64_t n_buffers;
    int64_t n_children;
    const void **buffers; /* of numbers: a bit for each that is not null, or none, and the numbers */
    struct ArrowArray **children;
    struct ArrowArray *dictionary;
    void (*release)(struct ArrowArray *);
    void *private_data;
};

#ifdef __cplusplus
}
#endif

#endif

#endif
