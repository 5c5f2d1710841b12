#include "core/engine/scan_format.hpp"

#include <cstring>

namespace zeb
{
namespace
{

/// The letter of the conversion that begins after the `%` at `percent`, past the star and the width.
const char *conversion_letter(const char *percent) noexcept
{
    const char *at = percent + 1;
    while (*at == '*' || (*at >= '0' && *at <= '9'))
        ++at;
    return at;
}

/// The first place where a double conversion lacks its `l`; null where none does.
const char *missing_length(const char *format) noexcept
{
    for (const char *at = std::strchr(format, '%'); at != nullptr; at = std::strchr(at, '%')) {
        const char *letter = conversion_letter(at);
        if (*letter != '\0' && std::strchr("aAeEfFgG", *letter) != nullptr)
            return letter;
        at = *letter == '\0' ? letter : letter + 1;
    }
    return nullptr;
}

} // namespace

bool widen_double_format(const char *format, char *widened, std::size_t size) noexcept
{
    const std::size_t length = std::strlen(format);
    if (length + 2 > size)
        return false;
    const char *letter = missing_length(format);
    const std::size_t head = letter == nullptr ? length : static_cast<std::size_t>(letter - format);
    std::memcpy(widened, format, head);
    std::size_t end = head;
    if (letter != nullptr)
        widened[end++] = 'l';
    std::memcpy(widened + end, format + head, length - head + 1);
    return true;
}

} // namespace zeb
