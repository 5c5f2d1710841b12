/// Documents with a check sum: the header with another tail, the records, and the sum of all bytes before it.
#pragma once

#include <cstdint>

namespace zeb::engine
{

inline constexpr std::uint32_t check_sum_size = sizeof(std::uint32_t);

/// Gives a plain document, which begins with a header, its check sum, for which there must be room.
void add_check_sum(char *document, std::uint32_t length) noexcept;

/// Whether a document is neither a plain one nor one whose check sum agrees.
bool is_damaged(const char *document, std::uint32_t length, bool needs_swap) noexcept;

} // namespace zeb::engine
