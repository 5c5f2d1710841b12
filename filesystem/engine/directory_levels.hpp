/// The missing directories on the way to a path.
#pragma once

#include "core/engine/c_text.hpp"
#include "core/engine/char_span.hpp"
#include "filesystem/engine/entry_creation.hpp"

#include <cstdint>

namespace zeb::engine
{

/// A level that was to be created. `prefix_length` is the length of its path.
struct Directory_Level {
    std::uint32_t number; // from 1
    std::uint32_t prefix_length;
    int error;
    int attribute_error; // the permissions or the owner could not be set
};

/// Creates directories one below the other.
class Missing_Levels
{
public:
    /// `directory` is the path of the last level, without a null inside.
    explicit Missing_Levels(Char_Span directory) noexcept;

    /// Whether the last level exists already.
    bool is_complete() const noexcept { return done == length; }

    /// Creates the next missing level, or tries to. Levels that exist when their turn comes are passed over.
    /// Returns false if there is none left.
    bool create_next(const Entry_Attributes &attributes, Directory_Level &level) noexcept;

private:
    bool exists_up_to(std::uint32_t prefix_length) noexcept;
    std::uint32_t end_of_component(std::uint32_t start) const noexcept;

    C_Text text;
    char *const path; // of the last level, ended after a prefix for a moment
    const std::uint32_t length;
    std::uint32_t done;       // the length of the prefix that exists
    std::uint32_t number = 0; // of levels created
};

} // namespace zeb::engine
