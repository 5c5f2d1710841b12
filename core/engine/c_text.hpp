/// A null-terminated copy of counted text.
#pragma once

#include <cstddef>
#include <cstdlib>
#include <cstring>

namespace zeb::engine
{

/// Owns the copy; c_string() is empty if allocation fails.
class C_Text
{
public:
    /// Appends `suffix`, which is null-terminated, to the characters.
    C_Text(const char *characters, std::size_t length, const char *suffix = "") noexcept
        : text(static_cast<char *>(std::malloc(length + std::strlen(suffix) + 1)))
    {
        if (text == nullptr)
            return;
        if (length != 0)
            std::memcpy(text, characters, length);
        std::strcpy(text + length, suffix);
    }

    ~C_Text() { std::free(text); }

    C_Text(const C_Text &) = delete;
    C_Text &operator=(const C_Text &) = delete;

    const char *c_string() const noexcept { return text != nullptr ? text : ""; }

    /// Returns the copy itself; null if allocation failed.
    char *data() noexcept { return text; }

private:
    char *text;
};

} // namespace zeb::engine
