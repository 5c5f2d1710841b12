#include "filesystem/engine/file_replacement.hpp"

#include "filesystem/engine/file_contents.hpp"

#include <cerrno>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <new>
#include <unistd.h>

namespace zeb::engine
{
namespace
{

constexpr mode_t private_mode = 0600;
constexpr std::size_t name_size = 64;
constexpr unsigned most_attempts = 100;

struct Free {
    void operator()(char *text) const noexcept { std::free(text); }
};

/// The file to replace.
struct Target {
    const char *path;
    std::unique_ptr<char, Free> resolved;
    bool exists;
    struct stat status;
};

/// Returns why nothing can be created at a path at which nothing is.
int refusal_of_new(const char *path) noexcept
{
    const std::size_t length = std::strlen(path);
    if (length == 0)
        return ENOENT;
    return path[length - 1] == '/' ? EISDIR : 0;
}

/// Follows a symbolic link to the file that it leads to.
int resolve(Target &target) noexcept
{
    target.resolved.reset(::realpath(target.path, nullptr));
    if (target.resolved == nullptr)
        return errno;
    target.path = target.resolved.get();
    return ::lstat(target.path, &target.status) == 0 ? 0 : errno;
}

int find(Target &target) noexcept
{
    target.exists = ::lstat(target.path, &target.status) == 0;
    if (!target.exists)
        return errno == ENOENT ? refusal_of_new(target.path) : errno;
    const int error = S_ISLNK(target.status.st_mode) ? resolve(target) : 0;
    if (error != 0)
        return error;
    if (!S_ISREG(target.status.st_mode))
        return S_ISDIR(target.status.st_mode) ? EISDIR : EINVAL;
    // A file that is protected from writing is not replaced either.
    return Open_File::for_rewriting(target.path).opening_error();
}

/// Gives a new file the owner and the mode of another. Where it cannot have the group, the rights of its own
/// group are no more than those of others, so that nobody gains any.
int take_attributes(Open_File &file, const struct stat &other) noexcept
{
    mode_t mode = other.st_mode & 07777;
    if (file.set_owner(other.st_uid, other.st_gid) != 0) {
        mode &= 0777;
        if (file.set_owner(static_cast<uid_t>(-1), other.st_gid) != 0)
            mode &= ~((~mode & 07U) << 3);
    }
    return file.set_mode(mode);
}

int write_all(Open_File &file, const void *bytes, std::size_t size) noexcept
{
    std::size_t count;
    const int error = file.write(bytes, size, count);
    return error == 0 && count != size ? EIO : error;
}

/// A new file in the directory of another, removed by the destructor unless it has taken that one's place.
class Sibling
{
public:
    explicit Sibling(const Target &target) noexcept;
    ~Sibling();
    Sibling(const Sibling &) = delete;
    Sibling &operator=(const Sibling &) = delete;

    int creation_error() const noexcept { return path == nullptr ? ENOMEM : file.opening_error(); }

    /// Writes the contents and flushes them to the device.
    int fill(const Target &target, const void *bytes, std::size_t size) noexcept;

    int take_place_of(const Target &target) noexcept;

    /// Flushes the directory, so that the renaming is on the device. Uses up the path.
    int flush_directory() noexcept;

private:
    std::size_t directory_length; // with the '/' that ends it
    std::unique_ptr<char[]> path;
    Open_File file;
    bool is_there;
};

/// Writes a name that no other file should have, and that fits beside every name.
void write_name(char *name, unsigned attempt) noexcept
{
    const long long now = std::chrono::system_clock::now().time_since_epoch().count();
    std::snprintf(name, name_size, ".zeb-%llx-%lx-%x", static_cast<unsigned long long>(now),
                  static_cast<unsigned long>(::getpid()), attempt);
}

std::size_t length_of_directory(const char *path) noexcept
{
    const char *const slash = std::strrchr(path, '/');
    return slash != nullptr ? static_cast<std::size_t>(slash - path) + 1 : 0;
}

Sibling::Sibling(const Target &target) noexcept
    : directory_length(length_of_directory(target.path)),
      path(new (std::nothrow) char[directory_length + name_size]), is_there(false)
{
    if (path == nullptr)
        return;
    std::memcpy(path.get(), target.path, directory_length);
    unsigned attempt = 0;
    do {
        write_name(path.get() + directory_length, attempt);
        file = Open_File::for_new_file(path.get(), target.exists ? private_mode : mode_of_new_files);
    } while (file.opening_error() == EEXIST && ++attempt < most_attempts);
    is_there = file.opening_error() == 0;
}

Sibling::~Sibling()
{
    if (is_there)
        ::unlink(path.get());
}

int Sibling::fill(const Target &target, const void *bytes, std::size_t size) noexcept
{
    int error = target.exists ? take_attributes(file, target.status) : 0;
    if (error == 0)
        error = write_all(file, bytes, size);
    if (error == 0)
        error = file.flush_to_device();
    return error == 0 ? file.close() : error;
}

int Sibling::take_place_of(const Target &target) noexcept
{
    if (std::rename(path.get(), target.path) != 0)
        return errno;
    is_there = false;
    return 0;
}

int Sibling::flush_directory() noexcept
{
    path[directory_length] = '\0';
    Open_File directory = Open_File::for_reading(directory_length != 0 ? path.get() : ".");
    if (directory.opening_error() != 0)
        return directory.opening_error();
    const int error = directory.flush_to_device();
    // Some file systems have nothing to flush there.
    return error == EINVAL ? 0 : error;
}

} // namespace

Replacement_Result replace_file(const char *path, const void *bytes, std::size_t size) noexcept
{
    Target target{path, nullptr, false, {}};
    int error = find(target);
    if (error != 0)
        return {Replacing_Step::opening, error};
    Sibling sibling(target);
    if (sibling.creation_error() != 0)
        return {Replacing_Step::opening, sibling.creation_error()};
    error = sibling.fill(target, bytes, size);
    if (error == 0)
        error = sibling.take_place_of(target);
    if (error != 0)
        return {Replacing_Step::writing, error};
    return {Replacing_Step::flushing_name, sibling.flush_directory()};
}

} // namespace zeb::engine
