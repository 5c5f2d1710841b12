#include "filesystem/engine/directory_levels.hpp"

#include <cerrno>

namespace zeb::engine
{
namespace
{

/// Ends a path after a prefix, for as long as it lives.
class Prefix
{
public:
    Prefix(char *path, std::uint32_t length) noexcept : end(path + length), kept(*end) { *end = '\0'; }
    ~Prefix() { *end = kept; }
    Prefix(const Prefix &) = delete;
    Prefix &operator=(const Prefix &) = delete;

private:
    char *end;
    char kept;
};

} // namespace

Missing_Levels::Missing_Levels(Char_Span directory) noexcept
    : text(directory.char_c_array, directory.length), path(text.data()), length(directory.length),
      done(path != nullptr ? length : 0)
{
    while (done != 0 && !(end_of_component(done) == done && exists_up_to(done)))
        --done;
}

bool Missing_Levels::create_next(const Entry_Attributes &attributes, Directory_Level &level) noexcept
{
    level = {number + 1, length, ENOMEM, 0};
    if (path == nullptr)
        return true;
    while (done < length) {
        done = end_of_component(done + 1);
        const Prefix prefix(path, done);
        level = {number + 1, done, 0, 0};
        level.error = create_directory(path, attributes, level.attribute_error);
        if (level.error == EEXIST && exists_at(path))
            continue;
        ++number;
        return true;
    }
    return false;
}

bool Missing_Levels::exists_up_to(std::uint32_t prefix_length) noexcept
{
    const Prefix prefix(path, prefix_length);
    return exists_at(path);
}

std::uint32_t Missing_Levels::end_of_component(std::uint32_t start) const noexcept
{
    std::uint32_t end = start;
    while (end < length && path[end] != '/')
        ++end;
    return end;
}

} // namespace zeb::engine
