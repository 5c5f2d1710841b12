/*
 * The value types and shared codes of the framework, in plain C11.
 *
 * Nothing here needs Objective-C or C++; every other header of the framework builds on it.
 */
#ifndef ZEB_TYPES_H
#define ZEB_TYPES_H

#include <Korvane_ZEB/ZEB_Annotations.h>

#include <stddef.h>
#include <stdint.h>

ZEB_ASSUME_NONNULL_BEGIN

#ifdef __cplusplus
#define ZEB_EXTERN_C_BEGIN extern "C" {
#define ZEB_EXTERN_C_END }
#else
#define ZEB_EXTERN_C_BEGIN
#define ZEB_EXTERN_C_END
#endif

/* Marks what the dynamic library exports. Linux exports by its version script instead, because g++
   ignores the attribute on an @interface. */
#if defined(__APPLE__)
#define ZEB_EXPORT __attribute__((visibility("default")))
#else
#define ZEB_EXPORT
#endif

/* A counted run of 8-bit characters, not owned; no terminating null is needed. */
typedef struct ZEB_Char_Span {
    const char *ZEB_NULLABLE char_c_array; /* may be null where the length is 0 */
    uint32_t length;
} ZEB_Char_Span;

/* An inclusive range of zero-based indexes. */
typedef struct ZEB_Index_Range {
    uint32_t start;
    uint32_t end;
} ZEB_Index_Range;

/* A date of the proleptic Gregorian calendar. Years are astronomical: year 0 exists. */
typedef struct ZEB_Gregorian_Date {
    int32_t year;
    int32_t month; /* 1 is January */
    int32_t day;   /* of the month, from 1 */
} ZEB_Gregorian_Date;

/* A time of day, or a time since 1970-01-01 00:00, as documented by the operation that uses it. */
typedef struct ZEB_Time_Value {
    uint64_t second;
    uint64_t nanosecond;
} ZEB_Time_Value;

/* What one pixel column of a chart shows of the points of a series that are in it: `ZC_decimate`. */
typedef struct ZEB_Chart_Column {
    double first;
    double lowest;
    double highest;
    double last;
    uint32_t count; /* of points */
} ZEB_Chart_Column;

/* The elements that a histogram has no bin for: `count_in_bins:from:to:rest:` of numeric vectors. */
typedef struct ZEB_Histogram_Rest {
    uint32_t below;
    uint32_t above;
    uint32_t nan_count;
} ZEB_Histogram_Rest;

/* The result of every search that finds nothing. */
#define ZEB_NOT_FOUND UINT32_MAX

/* The result of a comparison; any other value is an unknown comparison. */
typedef uint32_t ZEB_Comparison;
enum {
    ZEB_COMPARED_EQUAL = 1,
    ZEB_COMPARED_LESS = 2,   /* the first (the key, the receiver) orders before the second */
    ZEB_COMPARED_GREATER = 3 /* the first orders after the second */
};

/* The text encoding of a conversion to or from an NSString. */
typedef uint32_t ZEB_Encoding_Type;
enum {
    ZEB_ENCODING_ASCII = 0,
    ZEB_ENCODING_ASCII_ALSO = 1,
    ZEB_ENCODING_UTF8 = 2,
    ZEB_ENCODING_UTF16 = 3,
    ZEB_ENCODING_UTF8_PATH = 4
};

/* The type of a file-system entry. */
typedef uint32_t ZEB_File_Kind;
enum {
    ZEB_FILE_KIND_OTHER = 0,
    ZEB_FILE_KIND_REGULAR = 1,
    ZEB_FILE_KIND_LINK = 2,
    ZEB_FILE_KIND_DIRECTORY = 3
};

/* The units of calendar arithmetic; codes 7 to 10 are unassigned. */
typedef int32_t ZEB_Time_Unit;
enum {
    ZEB_UNIT_NANOSECOND = 1,
    ZEB_UNIT_MICROSECOND = 2,
    ZEB_UNIT_MILLISECOND = 3,
    ZEB_UNIT_SECOND = 4,
    ZEB_UNIT_MINUTE = 5,
    ZEB_UNIT_HOUR = 6,
    ZEB_UNIT_DAY = 11,
    ZEB_UNIT_WEEK = 12,
    ZEB_UNIT_MONTH = 13,
    ZEB_UNIT_QUARTER = 14,
    ZEB_UNIT_YEAR = 15
};

/* The dimensions of units of measure. */
typedef uint32_t ZEB_Dimension;
enum {
    ZEB_DIMENSION_NONE = 0,
    ZEB_DIMENSION_LENGTH = 1,
    ZEB_DIMENSION_WEIGHT = 2,
    ZEB_DIMENSION_TEMPERATURE = 3,
    ZEB_DIMENSION_TIME = 4, /* whose units are those of ZEB_Time_Unit */
    ZEB_DIMENSION_ELECTRICAL_POTENTIAL = 31,
    ZEB_DIMENSION_CURRENCY = 101,
    ZEB_DIMENSION_ANGLE = 201,
    ZEB_DIMENSION_UNO = 1001,
    ZEB_DIMENSION_BYTE = 1002,
    ZEB_DIMENSION_HISTOGRAM = 9002,
    ZEB_DIMENSION_CATEGORICAL = 9003,
    ZEB_DIMENSION_PAGE_LAYOUT = 10001
};

/* A unit of measure: the code of its dimension in the low 32 bits, its own in the high ones. */
typedef uint64_t ZEB_Unit_Identity;

static inline ZEB_Unit_Identity ZEB_unit_identity(ZEB_Dimension dimension, uint32_t unit)
{
    const ZEB_Unit_Identity wide_unit = unit;
    return wide_unit << 32 | dimension;
}

ZEB_ASSUME_NONNULL_END

#endif
