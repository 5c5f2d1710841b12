#include "core/engine/scan_format.hpp"

#include <cstring>
#include <new>

namespace zeb::engine
{
namespace
{

/// One conversion of a format, starting at its `%`.
struct Conversion {
    const char *letter; ///< first letter of the length modifier, or of the conversion
    const char *end;    ///< one past the conversion
    bool stores;
};

const char *skip_digits(const char *at) noexcept
{
    while (*at >= '0' && *at <= '9')
        ++at;
    return at;
}

/// Returns the position after a scan set whose `[` is at `bracket`; a `]` that comes first belongs to the
/// set.
const char *skip_scan_set(const char *bracket) noexcept
{
    const char *at = bracket + 1;
    if (*at == '^')
        ++at;
    if (*at == ']')
        ++at;
    while (*at != '\0' && *at != ']')
        ++at;
    return *at == '\0' ? at : at + 1;
}

Conversion conversion_at(const char *percent) noexcept
{
    const char *at = skip_digits(percent + 1);
    at = *at == '$' ? at + 1 : percent + 1;
    const bool stores = *at != '*';
    at = skip_digits(stores ? at : at + 1);
    const char *const letter = at;
    while (*at != '\0' && std::strchr("hlLjztqm", *at) != nullptr)
        ++at;
    const char *const end = *at == '[' ? skip_scan_set(at) : *at == '\0' ? at : at + 1;
    return {letter, end, stores};
}

bool is_floating(char letter) noexcept
{
    return letter != '\0' && std::strchr("aAeEfFgG", letter) != nullptr;
}

/// Writes the widened format, which is at most 1.5 times as long.
void widen(const char *format, char *widened) noexcept
{
    while (*format != '\0') {
        if (*format != '%') {
            *widened++ = *format++;
            continue;
        }
        const Conversion conversion = conversion_at(format);
        while (format < conversion.end) {
            if (format == conversion.letter && conversion.stores && is_floating(*format))
                *widened++ = 'l';
            *widened++ = *format++;
        }
    }
    *widened = '\0';
}

} // namespace

Double_Scan_Format::Double_Scan_Format(const char *format) noexcept : text("")
{
    const std::size_t room = std::strlen(format) * 3 / 2 + 1;
    char *widened = short_text;
    if (room > sizeof short_text) {
        long_text.reset(new (std::nothrow) char[room]);
        widened = long_text.get();
    }
    if (widened == nullptr)
        return;
    widen(format, widened);
    text = widened;
}

} // namespace zeb::engine
