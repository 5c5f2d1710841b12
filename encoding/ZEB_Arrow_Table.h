/*
 * Columns of numbers that go to another library as a table, through the Arrow C data interface.
 */
#import <Korvane_ZEB/ZEB_Arrow_Structs.h>
#import <Korvane_ZEB/ZEB_Object_Vector.h>
#import <Korvane_ZEB/ZEB_String_Vector.h>

ZEB_EXTERN_C_BEGIN
ZEB_ASSUME_NONNULL_BEGIN

/**
 * Sets both structs to a table of columns, which are vectors, arrays or links of numbers: of bytes, of 32-
 * and 64-bit integers, of floats or doubles, all of one count; each with the name at the same index, in
 * UTF-8. A vector may be in the table more than once. Nothing but the names is copied: the table's `release`,
 * or that of the column which was moved out of it, drops a reference to the column, and until then what
 * `export_to_arrow_array:schema:` says holds.
 *
 * Returns 1; or 0, with nothing set, for null and nil, without columns, for a number of names that is
 * another, for columns of different counts or of another kind, for a name with a null inside, and if
 * allocation fails.
 */
ZEB_EXPORT uint8_t ZC_export_arrow_table(ZEB_Object_Vector *ZEB_NULLABLE columns,
                                         ZEB_String_Vector *ZEB_NULLABLE names,
                                         struct ArrowArray *ZEB_NULLABLE array,
                                         struct ArrowSchema *ZEB_NULLABLE schema);

ZEB_ASSUME_NONNULL_END
ZEB_EXTERN_C_END
