/// Text printed through a printf format.
#pragma once

#include <cstdarg>
#include <cstdint>
#include <memory>
#include <span>

namespace zeb::engine
{

/// The text of a printf format and its arguments in the "C" locale, of any length that 32 bits can count: in
/// the buffer given, or in memory of its own if that is too small.
class Formatted_Text
{
public:
    Formatted_Text(std::span<char> buffer, const char *format, va_list arguments) noexcept;
    Formatted_Text(const Formatted_Text &) = delete;
    Formatted_Text &operator=(const Formatted_Text &) = delete;

    /// Whether the text could be printed: neither the C library nor the allocator failed.
    bool is_valid() const noexcept { return length >= 0; }

    /// Whether it is the allocator that failed.
    bool lacks_memory() const noexcept { return no_memory; }

    const char *characters() const noexcept { return long_text != nullptr ? long_text.get() : short_text; }

    /// Returns the number of characters without the terminating null; 0 for an invalid text.
    std::uint32_t count() const noexcept { return is_valid() ? static_cast<std::uint32_t>(length) : 0; }

private:
    const char *short_text;
    std::unique_ptr<char[]> long_text;
    int length;
    bool no_memory = false;
};

} // namespace zeb::engine
