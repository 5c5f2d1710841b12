/// The rows of the table that are about strings.
#pragma once

#include "benchmarks/common/rows.hpp"

#include <cstdint>
#include <string>

namespace zeb_bench
{

void add_comparison_rows();
void add_replacement_rows();
void add_conversion_rows();
void add_text_rows();

/// Words of small letters and spaces, as frequent as in English.
std::string words(std::size_t length);

/// A copy as a user's compiler vectorises it, widening each byte with its sign.
void compiled_widening(const char *bytes, std::size_t count, std::uint32_t *units);

} // namespace zeb_bench
