/*
 * Names, abbreviations and symbols of units of measure, and values of one unit in another.
 */
#import <Korvane_ZEB/ZEB_Object.h>

@class ZEB_Double_Vector;
@class ZEB_Wide_Char_Vector;
@class ZEB_Wide_String;
@class ZEB_Wide_String_Array;

ZEB_ASSUME_NONNULL_BEGIN

/** The number of groups of units, counted from 1, and of the lists of texts in each. */
enum { ZEB_UNIT_GROUP_COUNT = 12, ZEB_UNIT_LIST_COUNT = 4 };

/**
 * Copies of the framework's fixed lists of units. A unit is named by its identity (`ZEB_unit_identity`), or
 * by its group, 1 to 12, and its zero-based position there.
 *
 * Looking up what does not exist reports nothing and answers nil or 0. Names are what the catalog's lists
 * hold; a list that was switched off (`ZC_unit_catalog_flags`) when the catalog was made is empty, and its
 * units have no texts. Symbols and conversions do not depend on the lists. Strings and arrays that are
 * returned belong to the catalog.
 *
 * Different catalogs may be used on different threads; ZEB_Object.h says what may not.
 */
ZEB_EXPORT
@interface ZEB_Unit_Catalog : ZEB_Object {
    ZEB_PROTECTED
    int32_t selection;
    ZEB_UNRETAINED ZEB_Wide_String_Array *ZEB_NULLABLE dimension_names;
    ZEB_UNRETAINED ZEB_Wide_String_Array *ZEB_NULLABLE unit_lists[ZEB_UNIT_GROUP_COUNT][ZEB_UNIT_LIST_COUNT];
}

/** Returns the proprietary notice. */
+ (const char *)get_KVX_proprietary_software_notice;

/** Initialises a catalog with selection -1 and the lists whose flags are set. If an allocation fails, that
    is reported, and a list ends before the text that it concerned. */
- (instancetype)init;

/** A number for the application's use, -1 at first; the catalog does not interpret it. */
- (int32_t)selection;
- (void)set_selection:(int32_t)value;

/** Returns the names of the dimensions; that of the page layout is not among them. */
- (ZEB_Wide_String_Array *)dimension_names;

/** Returns the singular names of a dimension's units; nil for a dimension that is unknown or has none. */
- (ZEB_Wide_String_Array *ZEB_NULLABLE)unit_names_of_dimension:(ZEB_Dimension)code;

/** Return a text of a unit; nil for an unknown one. */
- (ZEB_Wide_String *ZEB_NULLABLE)unit_singular_name:(ZEB_Unit_Identity)identity;
- (ZEB_Wide_String *ZEB_NULLABLE)unit_plural_name:(ZEB_Unit_Identity)identity;
- (ZEB_Wide_String *ZEB_NULLABLE)unit_abbreviation:(ZEB_Unit_Identity)identity;
- (ZEB_Wide_String *ZEB_NULLABLE)unit_plural_abbreviation:(ZEB_Unit_Identity)identity;

/** Appends a unit's symbol, of one to four code points, and returns 1. Returns 0, with nothing appended,
    where the unit has no symbol, for a group or position that does not exist and for nil. A link reports as
    its `append_wide_char:` does, and gets nothing: 0. */
- (uint8_t)append_unit_symbol:(ZEB_Wide_String *ZEB_NULLABLE)target
                        group:(uint32_t)group
                     position:(uint32_t)position;

/** The same with a space, "(", the symbol and ")". */
- (uint8_t)append_unit_symbol_in_parentheses:(ZEB_Wide_String *ZEB_NULLABLE)target
                                       group:(uint32_t)group
                                    position:(uint32_t)position;

/** Appends a unit's plural name if `plural` is not 0, else its singular name, and returns 1. In the page
    layout units 1, 3, 9 and 11 have the singular name only, and unit 5 in the singular is "Background
    Page". For an unknown unit the fallback, which may be nil, is appended, and 0 returned; so it is for a
    nil target. A link reports as its `append_array:` does, and gets nothing: 0. */
- (uint8_t)append_unit_text:(ZEB_Wide_String *ZEB_NULLABLE)target
                   identity:(ZEB_Unit_Identity)identity
                   fallback:(ZEB_Wide_Char_Vector *ZEB_NULLABLE)fallback
                     plural:(uint8_t)plural;

/** Returns the group of a dimension's units; 0 for an unknown dimension and one without units. */
+ (uint32_t)group_of_dimension:(ZEB_Dimension)code;

/** Returns a unit's position in its group; ZEB_NOT_FOUND for an unknown one. */
+ (uint32_t)position_of_unit:(ZEB_Unit_Identity)identity;

/** Converts a value in place and returns 1. Returns 0, with nothing changed, unless both units are of the
    same dimension and have a fixed size: those of length, weight, temperature, angle, electrical potential,
    uno and byte, and those of time up to the week. Month, quarter and year have none, and no unit of the
    other dimensions.

    A size is the exact one: the inch is 0.0254 m, the pound 453.59237 g, the ton (38) 2000 and the imperial
    ton 2240 of them, the stone 14, the carat 0.2 g, the point 1/72 inch, the pica 1/6; the atomic mass unit
    is 1.66053906660e-24 g (CODATA 2018).

    The result is correctly rounded where one unit is a whole number (of 53 bits at most) of the other, and
    where the value's product with the numerator of their ratio, in lowest terms, has 53 bits at most. Else
    its error is below 1.5 units in its last place; below 2.5 where the ratio itself takes more than 53
    bits: angles, the atomic mass unit, the yottabyte, units of uno 10^23 or more apart. A temperature's
    error is below 2^-53 times the value, in the other unit's degrees, plus 1.5 units in the result's last
    place. NaN and infinities stay, and a result that is too large is infinite. Magnitudes below 1e-307 have
    fewer digits. */
+ (uint8_t)convert_value:(double *ZEB_NULLABLE)value from:(ZEB_Unit_Identity)from to:(ZEB_Unit_Identity)to;

/** Converts every element, with the same results, also through a link. Returns 0, with nothing changed, for
    units that do not convert and for nil. */
+ (uint8_t)convert_values:(ZEB_Double_Vector *ZEB_NULLABLE)values
                     from:(ZEB_Unit_Identity)from
                       to:(ZEB_Unit_Identity)to;

@end

ZEB_ASSUME_NONNULL_END
