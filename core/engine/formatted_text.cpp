#include "core/engine/formatted_text.hpp"

#include "core/engine/c_locale.hpp"

#include <cstddef>
#include <cstdio>
#include <new>

namespace zeb::engine
{

Formatted_Text::Formatted_Text(std::span<char> buffer, const char *format, va_list arguments) noexcept
    : short_text(buffer.data())
{
    const C_Locale_Scope in_c_locale;
    va_list again;
    va_copy(again, arguments);
    length = std::vsnprintf(buffer.data(), buffer.size(), format, arguments);
    if (length >= 0 && static_cast<std::size_t>(length) >= buffer.size()) {
        const std::size_t size = static_cast<std::size_t>(length) + 1;
        long_text.reset(new (std::nothrow) char[size]);
        no_memory = long_text == nullptr;
        length = long_text != nullptr ? std::vsnprintf(long_text.get(), size, format, again) : -1;
    }
    va_end(again);
}

} // namespace zeb::engine
