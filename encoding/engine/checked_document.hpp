/// Documents with a check sum: the header with another tail, the records, and the sum of all bytes before it.
#pragma once

#include <cstdint>

namespace zeb::engine
{

inline constexpr std::uint32_t check_sum_size = sizeof(std::uint32_t);

/// Gives a plain document, which begins with a header, its check sum, for which there must be room.
void add_check_sum(char *document, std::uint32_t length) noexcept;

/// What a document's tail and check sum say.
enum class Document_Check { plain, intact, damaged };

Document_Check check_document(const char *document, std::uint32_t length, bool needs_swap) noexcept;

} // namespace zeb::engine
