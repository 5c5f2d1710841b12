#include "numbers/ZEB_Number_Functions.h"

#include "core/engine/namespace.hpp"
#include "numbers/engine/fixed_text.hpp"
#include "numbers/engine/number_scanning.hpp"
#include "numbers/engine/pretty_number.hpp"
#include "numbers/engine/scientific_form.hpp"
#include "numbers/engine/special_value_scan.hpp"
#include "numbers/engine/unsigned_text.hpp"

static_assert(ZEB_SCIENTIFIC_TEXT_SIZE == engine::scientific_text_size);

char *ZC_pretty_format_double(char *buffer, double value)
{
    return engine::write_pretty_double(buffer, value);
}

char *ZC_pretty_format_float(char *buffer, float value) { return engine::write_pretty_float(buffer, value); }

char *ZC_pretty_format_unsigned(char *buffer, uint32_t value)
{
    return engine::write_unsigned(buffer, value);
}

char *ZC_format_fixed_double(char *buffer, uint32_t decimals, double value)
{
    return engine::write_fixed(buffer, decimals, value);
}

char *ZC_format_fraction_double(char *buffer, uint32_t decimals, double value)
{
    return engine::write_fraction(buffer, decimals, value);
}

char *ZC_format_fixed_float(char *buffer, uint32_t decimals, float value)
{
    return engine::write_fixed_float(buffer, decimals, value);
}

char *ZC_format_scientific_double(char *buffer, uint32_t precision, uint32_t *result_kind,
                                  ZEB_Index_Range *range, double value, double base, double zero_reference)
{
    return engine::write_scientific(buffer, {precision, base, zero_reference}, value, result_kind, range);
}

uint32_t ZC_assign_double_from_char_c_array(const char *chars, uint32_t length, double *result)
{
    return engine::scan_double(chars, length, *result);
}

uint32_t ZC_assign_float_from_char_c_array(const char *chars, uint32_t length, float *result)
{
    return engine::scan_float(chars, length, *result);
}

uint32_t ZC_assign_int_from_char_c_array(const char *chars, uint32_t length, int32_t *result)
{
    return engine::scan_int(chars, length, 10, *result);
}

uint32_t ZC_assign_unsigned_from_char_c_array(const char *chars, uint32_t length, uint32_t *result)
{
    return engine::scan_unsigned(chars, length, 10, *result);
}

uint32_t ZC_assign_int_with_base_from_char_c_array(const char *chars, uint32_t length, int32_t base,
                                                   int32_t *result)
{
    return engine::scan_int(chars, length, base, *result);
}

uint32_t ZC_assign_unsigned_with_base_from_char_c_array(const char *chars, uint32_t length, int32_t base,
                                                        uint32_t *result)
{
    return engine::scan_unsigned(chars, length, base, *result);
}

uint32_t ZC_assign_int64_with_base_from_char_c_array(const char *chars, uint32_t length, int32_t base,
                                                     int64_t *result)
{
    return engine::scan_int_64(chars, length, base, *result);
}

uint32_t ZC_assign_unsigned64_with_base_from_char_c_array(const char *chars, uint32_t length, int32_t base,
                                                          uint64_t *result)
{
    return engine::scan_unsigned_64(chars, length, base, *result);
}

uint32_t ZC_find_special_value_in_char_c_array(const char *chars, uint32_t length)
{
    return engine::find_special_value(chars, length);
}
